#include <examples/building/description.h>

#include <examples/building/description_checks.h>
#include <examples/support/record_reader.h>

namespace building {

namespace {

using ox_examples::line_reader;
using ox_examples::quoted;

/// Turns the lines of a description into records.
class parser {
public:
    void read(const std::string& path);

    description result;

private:
    void read_building(line_reader& line);
    void read_storey(line_reader& line);
    void read_wall(line_reader& line);
    void read_opening(line_reader& line);
    void read_slab(line_reader& line);
    void read_hole(line_reader& line);
    void read_roof(line_reader& line);
    void read_slope(line_reader& line);

    std::size_t read_storey_number(line_reader& line);

    ox_examples::unique_names names;
};

void parser::read(const std::string& path) {
    ox_examples::read_records(path,
                              {
                                  {"building", [this](line_reader& line) { read_building(line); }},
                                  {"storey", [this](line_reader& line) { read_storey(line); }},
                                  {"wall", [this](line_reader& line) { read_wall(line); }},
                                  {"opening", [this](line_reader& line) { read_opening(line); }},
                                  {"slab", [this](line_reader& line) { read_slab(line); }},
                                  {"hole", [this](line_reader& line) { read_hole(line); }},
                                  {"roof", [this](line_reader& line) { read_roof(line); }},
                                  {"slope", [this](line_reader& line) { read_slope(line); }},
                              });
}

/// The record of that name among `records`.
template <typename T>
std::size_t find_record(line_reader& line, const std::vector<T>& records, const std::string& kind) {
    const std::string name = line.word("name of a " + kind);
    for (std::size_t i = 0; i < records.size(); ++i) {
        if (records[i].name == name) {
            return i;
        }
    }
    line.fail("unknown " + kind + " " + quoted(name));
}

std::size_t parser::read_storey_number(line_reader& line) {
    line.label("storey");
    const std::size_t number = line.index("storey number");
    if (number >= result.storeys.size()) {
        line.fail("unknown storey " + std::to_string(number));
    }
    return number;
}

void parser::read_building(line_reader& line) {
    if (!result.name.empty()) {
        line.fail("the building has a name already");
    }
    result.name = line.name("name of the building");
}

void parser::read_storey(line_reader& line) {
    if (line.index("storey number") != result.storeys.size()) {
        line.fail("storeys are numbered 0, 1, 2, ... from the ground up");
    }
    const double level = line.labelled_number("level");
    if (!result.storeys.empty() && level <= result.storeys.back().level) {
        line.fail("a storey lies above the one before it");
    }
    result.storeys.push_back({level});
}

void parser::read_wall(line_reader& line) {
    wall w;
    w.line = line.get_line();
    w.name = names.take(line);
    w.storey = read_storey_number(line);
    w.from = line.labelled_point("from");
    w.to = line.labelled_point("to");
    w.thickness = line.labelled_size("thickness");
    w.height = line.labelled_size("height");
    result.walls.push_back(w);
}

opening_shape read_shape(line_reader& line) {
    line.label("shape");
    const std::string shape = line.word("shape of an opening");
    if (shape == "arch") {
        return opening_shape::arch;
    }
    if (shape == "round") {
        return opening_shape::round;
    }
    line.fail("unknown shape " + quoted(shape));
}

void parser::read_opening(line_reader& line) {
    opening o;
    o.line = line.get_line();
    o.name = names.take(line);
    line.label("wall");
    o.wall = find_record(line, result.walls, "wall");
    o.distance = line.labelled_number("at");
    o.sill = line.labelled_number("sill");
    o.width = line.labelled_size("width");
    o.height = line.labelled_size("height");
    if (!line.at_end()) {
        o.shape = read_shape(line);
    }
    result.openings.push_back(o);
}

void parser::read_slab(line_reader& line) {
    slab s;
    s.line = line.get_line();
    s.name = names.take(line);
    s.level = line.labelled_number("level");
    s.thickness = line.labelled_size("thickness");
    line.label("outline");
    s.outline = line.contour();
    result.slabs.push_back(s);
}

void parser::read_hole(line_reader& line) {
    slab& s = result.slabs[find_record(line, result.slabs, "slab")];
    line.label("outline");
    s.holes.push_back(line.contour());
}

void parser::read_roof(line_reader& line) {
    roof r;
    r.line = line.get_line();
    r.name = names.take(line);
    r.storey = read_storey_number(line);
    r.level = line.labelled_number("level");
    r.thickness = line.labelled_size("thickness");
    line.label("outline");
    r.outline = line.contour();
    result.roofs.push_back(r);
}

void parser::read_slope(line_reader& line) {
    roof& r = result.roofs[find_record(line, result.roofs, "roof")];
    slope s;
    s.from = line.labelled_point("from");
    s.to = line.labelled_point("to");
    s.level = line.labelled_number("level");
    s.rise = line.labelled_number("rise");
    r.slopes.push_back(s);
}

} // namespace

description read_description(const std::string& path) {
    parser p;
    p.read(path);
    check_description(p.result, path);
    return p.result;
}

} // namespace building
