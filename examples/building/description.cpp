#include <examples/building/description.h>

#include <examples/building/description_checks.h>
#include <examples/support/line_reader.h>

#include <map>
#include <set>

namespace building {

namespace {

using ox_examples::line_reader;
using ox_examples::quoted;

/// Turns the lines of a description into records, one keyword each.
class parser {
public:
    void read(line_reader& line);

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

    std::string read_new_name(line_reader& line);
    std::size_t read_storey_number(line_reader& line);

    std::set<std::string> names;
};

void parser::read(line_reader& line) {
    static const std::map<std::string, void (parser::*)(line_reader&)> keywords = {
        {"building", &parser::read_building}, {"storey", &parser::read_storey},
        {"wall", &parser::read_wall},         {"opening", &parser::read_opening},
        {"slab", &parser::read_slab},         {"hole", &parser::read_hole},
        {"roof", &parser::read_roof},         {"slope", &parser::read_slope},
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

std::string parser::read_new_name(line_reader& line) {
    const std::string name = line.name("name");
    if (!names.insert(name).second) {
        line.fail("duplicate name " + quoted(name));
    }
    return name;
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
    w.name = read_new_name(line);
    w.storey = read_storey_number(line);
    w.from = line.labelled_point("from");
    w.to = line.labelled_point("to");
    w.thickness = line.labelled_size("thickness");
    w.height = line.labelled_size("height");
    result.walls.push_back(w);
}

void parser::read_opening(line_reader& line) {
    opening o;
    o.line = line.get_line();
    o.name = read_new_name(line);
    line.label("wall");
    o.wall = find_record(line, result.walls, "wall");
    o.distance = line.labelled_number("at");
    o.sill = line.labelled_number("sill");
    o.width = line.labelled_size("width");
    o.height = line.labelled_size("height");
    result.openings.push_back(o);
}

void parser::read_slab(line_reader& line) {
    slab s;
    s.line = line.get_line();
    s.name = read_new_name(line);
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
    r.name = read_new_name(line);
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
    int number = 0;
    for (const std::string& text : ox_examples::read_lines(path)) {
        line_reader line(path, ++number, text);
        p.read(line);
    }
    check_description(p.result, path);
    return p.result;
}

} // namespace building
