#include <ox/solid/internal/csg/bounded_triangulation.h>

#include <algorithm>
#include <cstdlib>
#include <utility>

#include <ox/solid/internal/csg/edge_register.h>
#include <ox/solid/internal/csg/monotone_face.h>
#include <ox/solid/internal/csg/planar_triangulation.h>
#include <ox/solid/internal/csg/planar_view.h>

namespace ox::internal::csg {

namespace {

/// Heights to widths from which a view is laid down.
constexpr std::int64_t long_share = 4;

/// Fewer points make no fan worth the turn.
constexpr std::size_t fewest_laid_down = 16;

/// The points of some faces under numbers of their own, in the view along a normal.
struct viewed_points {
    std::vector<int> names; // ascending
    std::vector<planar_point> places;

    viewed_points(const std::vector<grid_point>& points,
                  const std::vector<const face_boundary*>& faces, const planar_view& view) {
        for (const face_boundary* face : faces) {
            for (const directed_edge& edge : *face) {
                names.insert(names.end(), edge.begin(), edge.end());
            }
        }
        std::sort(names.begin(), names.end());
        names.erase(std::unique(names.begin(), names.end()), names.end());
        for (const int name : names) {
            places.push_back(view.see(points[static_cast<std::size_t>(name)]));
        }
        lay_down();
    }

    int number_of(int name) const {
        return static_cast<int>(std::lower_bound(names.begin(), names.end(), name) - names.begin());
    }

    int name_of(int number) const { return names[static_cast<std::size_t>(number)]; }

private:
    void lay_down();
};

/// Turns what is much higher than wide by a quarter, so that the sweep from left to right goes
/// along it: across, it would join points from all along the one side to the end of the other.
void viewed_points::lay_down() {
    if (places.size() < fewest_laid_down) {
        return;
    }
    const auto across =
        std::minmax_element(places.begin(), places.end(),
                            [](const planar_point& a, const planar_point& b) { return a.x < b.x; });
    const auto along =
        std::minmax_element(places.begin(), places.end(),
                            [](const planar_point& a, const planar_point& b) { return a.y < b.y; });
    const std::int64_t width = across.second->x - across.first->x;
    if (along.second->y - along.first->y <= long_share * width) {
        return;
    }
    for (planar_point& place : places) {
        place = {place.y, -place.x};
    }
}

/// A triangle as often as its face covers it, turned over where it does so negatively.
void append_covered(const viewed_points& viewed, const covered_triangle& covered,
                    triangle_list& triangles) {
    std::array<int, 3> named = {viewed.name_of(covered.vertices[0]),
                                viewed.name_of(covered.vertices[1]),
                                viewed.name_of(covered.vertices[2])};
    if (covered.winding < 0) {
        std::swap(named[1], named[2]);
    }
    triangles.insert(triangles.end(), static_cast<std::size_t>(std::abs(covered.winding)), named);
}

triangle_list make_cone(const face_boundary& face) {
    triangle_list cone;
    for (const directed_edge& edge : face) {
        const int apex = face.front()[0];
        if (edge[0] != apex && edge[1] != apex) {
            cone.push_back({apex, edge[0], edge[1]});
        }
    }
    return cone;
}

/// Cuts faces by a sweep over the regions of all of them.
std::vector<triangle_list> triangulate_any(const std::vector<grid_point>& points,
                                           const std::vector<const face_boundary*>& faces,
                                           const std::array<double, 3>& normal,
                                           std::vector<bool>& fits) {
    const viewed_points viewed(points, faces, planar_view(normal));
    std::vector<region_edge> edges;
    for (std::size_t f = 0; f < faces.size(); ++f) {
        for (const directed_edge& edge : *faces[f]) {
            edges.push_back(
                {viewed.number_of(edge[0]), viewed.number_of(edge[1]), static_cast<int>(f)});
        }
    }
    std::vector<covered_triangle> covered;
    std::vector<triangle_list> triangles(faces.size());
    if (triangulate_regions(viewed.places, edges, covered)) {
        for (const covered_triangle& triangle : covered) {
            append_covered(viewed, triangle, triangles[static_cast<std::size_t>(triangle.region)]);
        }
    }
    for (std::size_t f = 0; f < faces.size(); ++f) {
        if (!is_boundary_of(*faces[f], triangles[f])) {
            triangles[f].clear();
            fits[f] = false;
        }
    }
    return triangles;
}

/// Cuts one face, or two that lie beside each other along an edge, where they are simple enough;
/// false for any others.
bool triangulate_simple(const std::vector<grid_point>& points,
                        const std::vector<const face_boundary*>& faces,
                        const std::array<double, 3>& normal,
                        std::vector<triangle_list>& triangles) {
    std::array<monotone_face, 2> read;
    if (faces.size() > read.size()) {
        return false;
    }
    const planar_view view(normal);
    for (std::size_t f = 0; f < faces.size(); ++f) {
        if (!read[f].read(points, *faces[f], view) || !read[f].triangulate(triangles[f])) {
            return false;
        }
    }
    return faces.size() < 2 || read[0].has_outside(read[1]) || read[1].has_outside(read[0]);
}

} // namespace

bool is_boundary_of(const face_boundary& boundary, const triangle_list& triangles) {
    face_boundary difference;
    difference.reserve(boundary.size() + 3 * triangles.size());
    for (const directed_edge& edge : boundary) {
        difference.push_back({edge[1], edge[0]});
    }
    for (const std::array<int, 3>& t : triangles) {
        difference.push_back({t[0], t[1]});
        difference.push_back({t[1], t[2]});
        difference.push_back({t[2], t[0]});
    }
    cancel_opposites(difference);
    return difference.empty();
}

bool winds_once(const std::vector<grid_point>& points, const face_boundary& border,
                const planar_view& view) {
    const viewed_points viewed(points, {&border}, view);
    std::vector<region_edge> edges;
    for (const directed_edge& edge : border) {
        edges.push_back({viewed.number_of(edge[0]), viewed.number_of(edge[1]), 0});
    }
    std::vector<covered_triangle> covered;
    return triangulate_regions(viewed.places, edges, covered) && !covered.empty() &&
           std::all_of(covered.begin(), covered.end(), [&](const covered_triangle& triangle) {
               return triangle.winding == covered.front().winding &&
                      std::abs(triangle.winding) == 1;
           });
}

std::vector<triangle_list> triangulate_together(const std::vector<grid_point>& points,
                                                const std::vector<const face_boundary*>& faces,
                                                const std::array<double, 3>& normal,
                                                std::vector<bool>& fits) {
    std::vector<triangle_list> triangles(faces.size());
    fits.assign(faces.size(), true);
    if (!triangulate_simple(points, faces, normal, triangles)) {
        triangles = triangulate_any(points, faces, normal, fits);
    }
    return triangles;
}

triangle_list triangulate_alone(const std::vector<grid_point>& points, const face_boundary& face,
                                const std::array<double, 3>& normal) {
    std::vector<bool> fits;
    std::vector<triangle_list> made = triangulate_together(points, {&face}, normal, fits);
    return fits.front() ? std::move(made.front()) : make_cone(face);
}

} // namespace ox::internal::csg
