#include <examples/town/survey.h>

#include <fstream>
#include <sstream>
#include <stdexcept>

namespace town {

namespace {

/// The three lists of a solid while its rings are read.
struct boundary {
    ox::ox_list<ox::ox_3dvector> vertices;
    ox::ox_list<unsigned int> contours;
    ox::ox_list<int> sizes;
    bool begins_face = false;

    /// "N x y z x y z ...": the first ring of a face is its outline, the others are holes.
    void add_ring(std::istream& line) {
        int count = 0;
        line >> count;
        int size = 0;
        ox::ox_3dvector vertex;
        for (; size < count && line >> vertex.x >> vertex.y >> vertex.z; ++size) {
            contours.push_right(static_cast<unsigned int>(vertices.size()));
            vertices.push_right(vertex);
        }
        sizes.push_right(begins_face ? size : -size);
        begins_face = false;
    }

    void store(ox::ox_solid& solid) const {
        solid.set_vertices(vertices);
        solid.set_contours(contours);
        solid.set_contour_sizes(sizes);
    }
};

} // namespace

std::vector<surveyed> read_survey(const std::string& path) {
    std::ifstream file(path);
    std::vector<surveyed> buildings;
    boundary current;
    std::string text;
    const auto finish = [&] {
        if (!buildings.empty()) {
            current.store(buildings.back().solid);
        }
        current = boundary();
    };
    while (std::getline(file, text)) {
        std::istringstream line(text);
        std::string word;
        line >> word;
        if (word == "building") {
            finish();
            std::string kind;
            buildings.emplace_back();
            line >> kind >> buildings.back().name;
        } else if (word == "face") {
            current.begins_face = true;
        } else if (word == "ring") {
            current.add_ring(line);
        }
    }
    finish();
    if (buildings.empty()) {
        throw std::runtime_error("no buildings in " + path);
    }
    return buildings;
}

} // namespace town
