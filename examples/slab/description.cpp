#include <examples/slab/description.h>

#include <examples/slab/shapes.h>

#include <examples/support/record_reader.h>

#include <algorithm>
#include <cmath>

namespace slab {

namespace {

using ox_examples::line_reader;
using ox_examples::quoted;

/// Metres. A line shorter than this has no direction.
constexpr double shortest_line = 0.01;

/// Square metres. Less is a slip of the pen.
constexpr double smallest_slab = 0.01;

/// More than a floor has; its picture can list no more, and its checks end soon.
constexpr std::size_t most_beams = 99;
constexpr std::size_t most_holes = 99;

/// By which the shares may miss 1: the rounding of decimal numbers such as thirds.
constexpr double share_tolerance = 1e-3;

/// Turns the lines of a description into records.
class parser {
public:
    void read(const std::string& path);

    description result;

private:
    void read_slab(line_reader& line);
    void read_outline(line_reader& line);
    void read_hole(line_reader& line);
    void read_span(line_reader& line);
    void read_beam(line_reader& line);

    ox_examples::unique_names names;
};

double length_of(const plan_point& p) {
    return std::hypot(p.x, p.y);
}

void parser::read(const std::string& path) {
    ox_examples::read_records(path,
                              {
                                  {"slab", [this](line_reader& line) { read_slab(line); }},
                                  {"outline", [this](line_reader& line) { read_outline(line); }},
                                  {"hole", [this](line_reader& line) { read_hole(line); }},
                                  {"span", [this](line_reader& line) { read_span(line); }},
                                  {"beam", [this](line_reader& line) { read_beam(line); }},
                              });
}

void parser::read_slab(line_reader& line) {
    if (!result.name.empty()) {
        line.fail("the slab has a name already");
    }
    result.name = line.name("name of the slab");
    result.weight = line.labelled_number("weight");
    if (result.weight <= 0) {
        line.fail("the slab has no weight");
    }
}

void parser::read_outline(line_reader& line) {
    if (result.outline.line != 0) {
        line.fail("the slab has an outline already");
    }
    result.outline = {line.contour(), line.get_line()};
}

void parser::read_hole(line_reader& line) {
    if (result.holes.size() == most_holes) {
        line.fail("more than " + std::to_string(most_holes) + " holes");
    }
    result.holes.push_back({line.contour(), line.get_line()});
}

void parser::read_span(line_reader& line) {
    span s;
    s.name = names.take(line);
    s.direction = line.labelled_point("direction");
    s.share = line.labelled_number("share");
    if (length_of(s.direction) < shortest_line) {
        line.fail("span " + quoted(s.name) + " has no direction");
    }
    if (s.share <= 0 || s.share > 1) {
        line.fail("a share lies between 0 and 1");
    }
    if (result.spans.size() == 2) {
        line.fail("a slab spans in one direction or in two");
    }
    result.spans.push_back(s);
}

void parser::read_beam(line_reader& line) {
    beam b;
    b.name = names.take(line);
    b.from = line.labelled_point("from");
    b.to = line.labelled_point("to");
    if (b.length() < shortest_line) {
        line.fail("beam " + quoted(b.name) + " has no length");
    }
    if (result.beams.size() == most_beams) {
        line.fail("more than " + std::to_string(most_beams) + " beams");
    }
    result.beams.push_back(b);
}

/// The checks of a whole description; each throws at the first thing that does not fit.
class checker {
public:
    checker(const description& checked, const std::string& file_name)
        : d(checked), require(file_name) {}

    void check_completeness() const;
    void check_shares() const;
    void check_contours() const;

private:
    const description& d;
    const ox_examples::requirement require;
};

void checker::check_completeness() const {
    require(!d.name.empty(), 0, "no 'slab' line names the slab");
    require(d.outline.line != 0, 0, "the slab has no outline");
    require(!d.spans.empty(), 0, "the slab spans in no direction");
    require(!d.beams.empty(), 0, "the slab has no beams");
}

void checker::check_shares() const {
    double shares = 0;
    for (const span& s : d.spans) {
        shares += s.share;
    }
    require(std::abs(shares - 1) <= share_tolerance, 0, "the shares of the spans do not sum to 1");
}

/// The polygon sorts its contours into outline and holes: what it finds must be what is said.
void checker::check_contours() const {
    description part;
    part.outline = d.outline;
    const auto is_sound = [&part] {
        ox::ox_polygon shape = polygon_of(part);
        const int nb_contours = static_cast<int>(part.holes.size()) + 1;
        return shape.count_outer_contours() == 1 &&
               shape.get_contour_sizes().size() == nb_contours &&
               double{shape.get_area()} >= smallest_slab;
    };
    require(is_sound(), d.outline.line, "the outline crosses itself or encloses nothing");
    for (const contour& hole : d.holes) {
        part.holes.push_back(hole);
        require(is_sound(), hole.line, "the hole crosses a contour or lies outside the slab");
    }
}

/// Moves the whole slab so that the first corner of its outline is the origin.
void move_to_origin(description& d) {
    const plan_point origin = d.outline.points[0];
    const auto move = [&origin](plan_point& p) { p = {p.x - origin.x, p.y - origin.y}; };
    std::for_each(d.outline.points.begin(), d.outline.points.end(), move);
    for (contour& hole : d.holes) {
        std::for_each(hole.points.begin(), hole.points.end(), move);
    }
    for (beam& b : d.beams) {
        move(b.from);
        move(b.to);
    }
}

} // namespace

double beam::length() const {
    return std::hypot(to.x - from.x, to.y - from.y);
}

description read_description(const std::string& path) {
    parser p;
    p.read(path);
    const checker c(p.result, path);
    c.check_completeness();
    c.check_shares();
    move_to_origin(p.result);
    c.check_contours();
    return p.result;
}

} // namespace slab
