#ifndef OX_TESTS_SUPPORT_MEASURES_H
#define OX_TESTS_SUPPORT_MEASURES_H

#include <cmath>
#include <cstddef>
#include <map>
#include <utility>
#include <vector>

#include <ox/polygon/ox_polygon.h>
#include <ox/solid/ox_solid.h>

namespace support {

/// A point in double precision: what is measured must not add rounding of its own.
struct point {
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
};

inline point to_point(const ox::ox_3dvector& v) {
    return {static_cast<double>(v.x), static_cast<double>(v.y), static_cast<double>(v.z)};
}
inline point operator-(const point& a, const point& b) {
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}
inline double dot(const point& a, const point& b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}
inline point cross(const point& a, const point& b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
inline double length(const point& a) {
    return std::sqrt(dot(a, a));
}
inline double distance(const point& a, const point& b) {
    return length(a - b);
}
inline bool is_finite(const ox::ox_3dvector& v) {
    return std::isfinite(v.x) && std::isfinite(v.y) && std::isfinite(v.z);
}

/// Volume and area of a triangulated surface.
struct measure {
    double volume = 0.0;
    double area = 0.0;
};

/// The volume enclosed by the solid's triangles (sum of signed tetrahedra from `apex`, by the
/// divergence theorem) and their area.
///
/// The faces of a solid are each rounded to a grid of their own, so hair cracks make the volume
/// depend a little on the apex. Volumes that are compared are measured from one apex: what a
/// boolean only hands on from solid to solid then cancels exactly.
inline measure measure_solid(ox::ox_solid& solid, const point& apex) {
    const ox::ox_list<ox::ox_3dvector>& vertices = solid.get_tesselation_vertices();
    const ox::ox_list<unsigned int>& triangles = solid.get_tesselation_triangles();
    measure result;
    for (int i = 0; i + 2 < triangles.size(); i += 3) {
        const point a = to_point(vertices[static_cast<int>(triangles[i])]) - apex;
        const point b = to_point(vertices[static_cast<int>(triangles[i + 1])]) - apex;
        const point c = to_point(vertices[static_cast<int>(triangles[i + 2])]) - apex;
        result.volume += dot(a, cross(b, c)) / 6.0;
        result.area += length(cross(b - a, c - a)) / 2.0;
    }
    return result;
}

/// The same from the middle of the solid's box, where cracks weigh least.
inline measure measure_solid(ox::ox_solid& solid) {
    const ox::ox_box& box = solid.get_bounding_box();
    return measure_solid(solid, to_point(box.origin + box.size * 0.5f));
}

inline double volume_of(ox::ox_solid& solid) {
    return measure_solid(solid).volume;
}

inline double volume_of(ox::ox_solid& solid, const point& apex) {
    return measure_solid(solid, apex).volume;
}

/// Finds the edges of a boundary that no other edge closes.
///
/// Vertices nearer than the tolerance are one; an edge is split at every vertex that lies on
/// it, so a long edge is closed by two short ones of its neighbour. What is left over, of every
/// piece minus its opposites, is open.
class edge_balance {
public:
    explicit edge_balance(double weld_tolerance) : tolerance(weld_tolerance) {}

    void add_contour(const std::vector<point>& contour) {
        for (std::size_t i = 0; i < contour.size(); ++i) {
            const std::size_t start = weld(contour[i]);
            const std::size_t end = weld(contour[(i + 1) % contour.size()]);
            if (start != end) {
                edges.emplace_back(start, end);
            }
        }
    }

    /// Number of edge pieces without an opposite.
    int count_open() const {
        std::map<std::pair<std::size_t, std::size_t>, int> balance;
        for (const auto& edge : edges) {
            add_pieces(edge.first, edge.second, balance);
        }
        int open = 0;
        for (const auto& entry : balance) {
            open += std::abs(entry.second);
        }
        return open;
    }

private:
    using piece_balance = std::map<std::pair<std::size_t, std::size_t>, int>;

    std::size_t weld(const point& p) {
        for (std::size_t i = 0; i < vertices.size(); ++i) {
            if (distance(vertices[i], p) < tolerance) {
                return i;
            }
        }
        vertices.push_back(p);
        return vertices.size() - 1;
    }

    void add_pieces(std::size_t start, std::size_t end, piece_balance& balance) const {
        const std::map<double, std::size_t> stops = vertices_along(start, end);
        std::size_t from = start;
        for (const auto& stop : stops) {
            add_piece(from, stop.second, balance);
            from = stop.second;
        }
        add_piece(from, end, balance);
    }

    /// The vertices strictly inside an edge, by their distance from its start.
    std::map<double, std::size_t> vertices_along(std::size_t start, std::size_t end) const {
        const point origin = vertices[start];
        const point way = vertices[end] - origin;
        const double extent = length(way);
        std::map<double, std::size_t> stops;
        for (std::size_t i = 0; i < vertices.size(); ++i) {
            const point offset = vertices[i] - origin;
            const double along = dot(offset, way) / extent;
            const double beside = length(cross(offset, way)) / extent;
            if (i != start && i != end && along > 0.0 && along < extent && beside < tolerance) {
                stops[along] = i;
            }
        }
        return stops;
    }

    static void add_piece(std::size_t from, std::size_t to, piece_balance& balance) {
        if (from < to) {
            ++balance[{from, to}];
        } else {
            --balance[{to, from}];
        }
    }

    double tolerance;
    std::vector<point> vertices;
    std::vector<std::pair<std::size_t, std::size_t>> edges;
};

/// Two vertices of a result nearer than this are the same corner seen by two faces (model
/// units): ten steps of the integer grid the faces are computed on.
constexpr double corner_tolerance = 0.001;

/// Number of edge pieces of the solid's faces that no other face closes; 0 for a closed solid.
inline int count_open_edges(ox::ox_solid& solid, double tolerance = corner_tolerance) {
    edge_balance balance(tolerance);
    const ox::ox_list<ox::ox_polygon*>& faces = solid.get_faces();
    for (int f = 0; f < faces.size(); ++f) {
        const ox::ox_list<ox::ox_3dvector>& vertices = faces[f]->get_contour_vertices();
        const ox::ox_list<unsigned int>& sizes = faces[f]->get_contour_sizes();
        int next = 0;
        for (int c = 0; c < sizes.size(); ++c) {
            std::vector<point> contour;
            for (unsigned int i = 0; i < sizes[c]; ++i) {
                contour.push_back(to_point(vertices[next++]));
            }
            balance.add_contour(contour);
        }
    }
    return balance.count_open();
}

inline bool is_closed(ox::ox_solid& solid) {
    return count_open_edges(solid) == 0;
}

/// Number of contours that open a face.
inline int count_faces(const ox::ox_solid& solid) {
    const ox::ox_list<int>& sizes = solid.get_contour_sizes();
    int faces = 0;
    for (int i = 0; i < sizes.size(); ++i) {
        faces += sizes[i] > 0 ? 1 : 0;
    }
    return faces;
}

} // namespace support

#endif
