#include <examples/slab/description.h>

#include <examples/slab/shapes.h>

#include <examples/support/line_reader.h>

#include <cmath>
#include <map>
#include <set>

namespace slab {

namespace {

using ox_examples::line_reader;
using ox_examples::quoted;

/// Metres. A line shorter than this has no direction.
constexpr double shortest_line = 0.01;

/// Square metres. Less is a slip of the pen.
constexpr double smallest_slab = 0.01;

/// More beams than a floor has, and than its picture can list.
constexpr std::size_t most_beams = 99;

/// By which the shares may miss 1: the rounding of decimal numbers such as thirds.
constexpr double share_tolerance = 1e-3;

/// Turns the lines of a description into records, one keyword each.
class parser {
public:
    void read(line_reader& line);

    description result;

private:
    void read_slab(line_reader& line);
    void read_outline(line_reader& line);
    void read_hole(line_reader& line);
    void read_span(line_reader& line);
    void read_beam(line_reader& line);

    std::string read_new_name(line_reader& line);

    std::set<std::string> names;
};

double length_of(const plan_point& p) {
    return std::hypot(p.x, p.y);
}

void parser::read(line_reader& line) {
    static const std::map<std::string, void (parser::*)(line_reader&)> keywords = {
        {"slab", &parser::read_slab}, {"outline", &parser::read_outline},
        {"hole", &parser::read_hole}, {"span", &parser::read_span},
        {"beam", &parser::read_beam},
    };
    if (line.at_end()) {
        return;
    }
    const std::string keyword = line.word("keyword");
    const auto found = keywords.find(keyword);
    if (found == keywords.end()) {
        line.fail("unknown keyword " + quoted(keyword));
    }
    (this->*found->second)(line);
    line.expect_end();
}

std::string parser::read_new_name(line_reader& line) {
    const std::string name = line.name("name");
    if (!names.insert(name).second) {
        line.fail("duplicate name " + quoted(name));
    }
    return name;
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
    if (!result.outline.empty()) {
        line.fail("the slab has an outline already");
    }
    result.outline = line.contour();
}

void parser::read_hole(line_reader& line) {
    result.holes.push_back(line.contour());
}

void parser::read_span(line_reader& line) {
    span s;
    s.name = read_new_name(line);
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
    b.name = read_new_name(line);
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

/// The checks that need the whole description.
void check_whole(const description& d, const std::string& file) {
    const auto require = [&](bool condition, const std::string& reason) {
        if (!condition) {
            throw description_error(file, 0, reason);
        }
    };
    require(!d.name.empty(), "no 'slab' line names the slab");
    require(!d.outline.empty(), "the slab has no outline");
    require(!d.spans.empty(), "the slab spans in no direction");
    require(!d.beams.empty(), "the slab has no beams");

    double shares = 0;
    for (const span& s : d.spans) {
        shares += s.share;
    }
    require(std::abs(shares - 1) <= share_tolerance, "the shares of the spans do not sum to 1");

    // The polygon sorts its contours into outline and holes: what it finds must be what is said.
    ox::ox_polygon shape = polygon_of(d);
    const int nb_contours = static_cast<int>(d.holes.size()) + 1;
    require(shape.count_outer_contours() == 1 && shape.get_contour_sizes().size() == nb_contours,
            "the outline and the holes of the slab cross, are not nested or enclose nothing");
    require(double{shape.get_area()} >= smallest_slab, "the slab has no area");
}

} // namespace

double beam::length() const {
    return std::hypot(to.x - from.x, to.y - from.y);
}

description read_description(const std::string& path) {
    parser p;
    int number = 0;
    for (const std::string& text : ox_examples::read_lines(path)) {
        line_reader line(path, ++number, text);
        p.read(line);
    }
    check_whole(p.result, path);
    return p.result;
}

} // namespace slab
