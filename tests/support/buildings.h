#ifndef OX_TESTS_SUPPORT_BUILDINGS_H
#define OX_TESTS_SUPPORT_BUILDINGS_H

#include <cstdlib>
#include <fstream>
#include <istream>
#include <limits>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include <ox/solid/ox_solid.h>

namespace support {

/// A surveyed building: its faces, each of an outer ring and its holes.
struct building {
    using ring = ox::ox_list<ox::ox_3dvector>;
    using face = std::vector<ring>;

    std::string kind; ///< "Solid" is meant to be closed, "MultiSurface" is not
    std::string name;
    std::vector<face> faces;
};

/// Corners of one building nearer than this are the same corner (metres): surveyed faces are only
/// nearly planar.
constexpr float survey_tolerance = 0.02f;

/// "N x y z x y z ...", as in the rest of a ring line.
inline building::ring read_ring(std::istream& line) {
    int count = 0;
    line >> count;
    building::ring ring;
    ox::ox_3dvector vertex;
    while (count-- > 0 && line >> vertex.x >> vertex.y >> vertex.z) {
        ring.push_right(vertex);
    }
    return ring;
}

/// Reads the format that tests/data/README.md describes; empty where there is no such file.
inline std::vector<building> read_buildings(const std::string& path) {
    std::ifstream file(path);
    std::vector<building> buildings;
    std::string text;
    while (std::getline(file, text)) {
        std::istringstream line(text);
        std::string word;
        line >> word;
        if (word == "building") {
            buildings.emplace_back();
            line >> buildings.back().kind >> buildings.back().name;
        } else if (word == "face") {
            buildings.back().faces.emplace_back();
        } else if (word == "ring") {
            buildings.back().faces.back().push_back(read_ring(line));
        }
    }
    return buildings;
}

inline std::vector<building> read_surveyed_buildings() {
    return read_buildings(OX_SOURCE_DIR "/tests/data/buildings.txt");
}

/// The building as a solid whose faces went through polygons: each is flattened by itself.
inline ox::ox_solid flattened_solid(const building& surveyed) {
    ox::ox_solid solid;
    for (const building::face& face : surveyed.faces) {
        ox::ox_polygon polygon;
        for (const building::ring& ring : face) {
            polygon.add_contour(ring);
        }
        solid.add_face(polygon);
    }
    return solid;
}

/// The point of the face's rings that is nearest to a vertex of its triangles.
inline ox::ox_3dvector surveyed_point(const building::face& face, const ox::ox_3dvector& vertex) {
    ox::ox_3dvector nearest = vertex;
    float distance = std::numeric_limits<float>::max();
    for (const building::ring& ring : face) {
        for (const ox::ox_3dvector& corner : ring) {
            const float apart = (corner - vertex).size();
            if (apart < distance) {
                distance = apart;
                nearest = corner;
            }
        }
    }
    return nearest;
}

/// The building as a solid of triangles between the very points of its rings, each a face.
inline ox::ox_solid triangulated_solid(const building& surveyed) {
    ox::ox_solid solid;
    for (const building::face& face : surveyed.faces) {
        ox::ox_polygon polygon;
        for (const building::ring& ring : face) {
            polygon.add_contour(ring);
        }
        const ox::ox_list<ox::ox_3dvector>& vertices = polygon.get_tesselation_vertices();
        const ox::ox_list<unsigned int>& triangles = polygon.get_tesselation_triangles();
        for (int t = 0; t + 2 < triangles.size(); t += 3) {
            building::ring corners;
            for (int i = 0; i < 3; ++i) {
                corners.push_right(
                    surveyed_point(face, vertices[static_cast<int>(triangles[t + i])]));
            }
            ox::ox_polygon triangle;
            triangle.add_contour(corners);
            solid.add_face(triangle);
        }
    }
    return solid;
}

/// The building as a solid with the very points of its rings.
inline ox::ox_solid exact_solid(const building& surveyed) {
    ox::ox_list<ox::ox_3dvector> vertices;
    ox::ox_list<unsigned int> contours;
    ox::ox_list<int> sizes;
    for (const building::face& face : surveyed.faces) {
        for (std::size_t r = 0; r < face.size(); ++r) {
            for (const ox::ox_3dvector& vertex : face[r]) {
                contours.push_right(static_cast<unsigned int>(vertices.size()));
                vertices.push_right(vertex);
            }
            sizes.push_right(r == 0 ? face[r].size() : -face[r].size());
        }
    }
    ox::ox_solid solid;
    solid.set_vertices(vertices);
    solid.set_contours(contours);
    solid.set_contour_sizes(sizes);
    return solid;
}

} // namespace support

#endif
