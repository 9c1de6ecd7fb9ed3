#include <ox/solid/internal/csg/convex_faces.h>

#include <utility>

#include <ox/solid/internal/csg/planar_view.h>

namespace ox::internal::csg {

namespace {

constexpr std::size_t most_corners = 4;

/// A corner of a face in a view.
struct seen_corner {
    int name;
    planar_point place;
};

/// The corners of a small face, in the order of its ring.
struct small_ring {
    std::array<seen_corner, most_corners> corners;
    std::size_t count = 0;

    const planar_point& at(std::size_t i) const { return corners[i % count].place; }
};

/// The start of the edge that follows one; -1 where it is none or several.
int find_next(const face_boundary& face, int point) {
    int next = -1;
    for (const directed_edge& edge : face) {
        if (edge[0] == point) {
            if (next >= 0) {
                return -1;
            }
            next = edge[1];
        }
    }
    return next;
}

/// The ring of a face; without corners where its edges are not one ring.
small_ring read_ring(const std::vector<grid_point>& points, const face_boundary& face,
                     const planar_view& view) {
    small_ring ring;
    int point = face.front()[0];
    for (std::size_t i = 0; i < face.size(); ++i) {
        if (point < 0 || (i > 0 && point == face.front()[0])) {
            return {};
        }
        ring.corners[i] = {point, view.see(points[static_cast<std::size_t>(point)])};
        point = find_next(face, point);
    }
    ring.count = point == face.front()[0] ? face.size() : 0;
    return ring;
}

/// True if the ring turns to the left at every corner.
bool is_convex(const small_ring& ring) {
    for (std::size_t i = 0; i < ring.count; ++i) {
        if (orientation(ring.at(i), ring.at(i + 1), ring.at(i + 2)) <= 0) {
            return false;
        }
    }
    return ring.count > 0;
}

/// Puts the corners in order from left to right.
void sort_by_place(small_ring& ring) {
    for (std::size_t end = 1; end < ring.count; ++end) {
        for (std::size_t i = end; i > 0; --i) {
            if (is_before(ring.corners[i].place, ring.corners[i - 1].place)) {
                std::swap(ring.corners[i], ring.corners[i - 1]);
            }
        }
    }
}

} // namespace

// The corners are met from left to right. A corner on the same side of the face as the one before
// cuts that one off; one on the other side makes a triangle with the two before. Triangles name
// what is below the corner, the corner, and what is above it.
triangle_list cut_convex_face(const std::vector<grid_point>& points, const face_boundary& face,
                              const std::array<double, 3>& normal) {
    if (face.size() < 3 || face.size() > most_corners) {
        return {};
    }
    small_ring ring = read_ring(points, face, planar_view(normal));
    if (!is_convex(ring)) {
        return {};
    }
    const std::array<seen_corner, most_corners>& c = ring.corners;
    sort_by_place(ring);
    const auto is_low = [&](std::size_t i) {
        return orientation(c[0].place, c[ring.count - 1].place, c[i].place) < 0;
    };
    const auto cut_off = [&](std::size_t back, std::size_t front, std::size_t met) {
        return is_low(front) ? std::array<int, 3>{c[front].name, c[met].name, c[back].name}
                             : std::array<int, 3>{c[back].name, c[met].name, c[front].name};
    };
    if (ring.count == 3) {
        return {cut_off(0, 1, 2)};
    }
    const bool is_same_side = is_low(1) == is_low(2);
    return {cut_off(0, 1, 2), is_same_side ? cut_off(0, 2, 3) : cut_off(1, 2, 3)};
}

} // namespace ox::internal::csg
