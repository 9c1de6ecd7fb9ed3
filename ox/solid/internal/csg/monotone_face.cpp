#include <ox/solid/internal/csg/monotone_face.h>

#include <algorithm>
#include <utility>

#include <ox/solid/internal/csg/planar_orientation.h>

namespace ox::internal::csg {

bool monotone_face::read(const std::vector<grid_point>& points, const face_boundary& boundary,
                         const planar_view& view) {
    return boundary.size() >= 3 && boundary.size() <= largest_count &&
           read_corners(points, boundary, view) && link(boundary) && find_sides();
}

/// Reads the corners and puts them in order; false where two are at one place.
bool monotone_face::read_corners(const std::vector<grid_point>& points,
                                 const face_boundary& boundary, const planar_view& view) {
    count = 0;
    for (const directed_edge& edge : boundary) {
        corners[static_cast<std::size_t>(count++)] = {
            edge[0], view.see(points[static_cast<std::size_t>(edge[0])]), -1, -1};
    }
    std::sort(corners.begin(), corners.begin() + count,
              [](const corner& a, const corner& b) { return is_before(a.place, b.place); });
    for (int i = 1; i < count; ++i) {
        if (!is_before(at(i - 1), at(i))) {
            return false;
        }
    }
    return true;
}

int monotone_face::find_corner(int name) const {
    const auto found = std::find_if(corners.begin(), corners.begin() + count,
                                    [name](const corner& c) { return c.name == name; });
    return static_cast<int>(found - corners.begin());
}

/// Links the corners along the boundary; false where it does not pass each of them once.
bool monotone_face::link(const face_boundary& boundary) {
    for (const directed_edge& edge : boundary) {
        const int from = find_corner(edge[0]);
        const int to = find_corner(edge[1]);
        if (to == count || corners[static_cast<std::size_t>(to)].before >= 0) {
            return false;
        }
        corners[static_cast<std::size_t>(from)].next = to;
        corners[static_cast<std::size_t>(to)].before = from;
    }
    return true;
}

/// Finds the sides; false where one of them runs to the left somewhere, or there are other rings.
bool monotone_face::find_sides() {
    const int turn = orientation(at(0), at(corners[0].next), at(corners[0].before));
    is_reversed = turn < 0;
    int met = 2;
    for (const bool below : {true, false}) {
        int place = 0;
        for (int next = ahead(0, below); next != count - 1; next = ahead(next, below)) {
            if (next <= place) {
                return false;
            }
            is_below[static_cast<std::size_t>(next)] = below;
            place = next;
            ++met;
        }
    }
    return turn != 0 && met == count;
}

/// The sweep over one face. What is to the left of the last corner on either side is cut already
/// but for what a chain of corners bounds, which none of its own corners sees (as in the sweep over
/// any regions).
class monotone_sweep {
public:
    monotone_sweep(const monotone_face& swept, std::vector<std::array<int, 3>>& made)
        : face(swept), triangles(made) {}

    bool run();

private:
    /// Corners from the left end of the edge below or above to the one met last.
    struct chain {
        std::array<int, monotone_face::largest_count> corners = {0};
        std::size_t count = 1;
        int left = 0; ///< the ends of the edge
        int right = 0;
    };

    bool meet(int corner, bool is_below);
    bool consume(const chain& links, bool is_lower, int corner);
    void cut_off_visible(chain& links, bool is_lower, int corner);
    void emit(int a, int b, int c);
    int turn(int a, int b, int c) const { return orientation(face.at(a), face.at(b), face.at(c)); }

    const monotone_face& face;
    std::vector<std::array<int, 3>>& triangles;
    chain lower;
    chain upper;
};

bool monotone_sweep::run() {
    lower.right = face.ahead(0, true);
    upper.right = face.ahead(0, false);
    const int last = face.count - 1;
    for (int corner = 1; corner < last; ++corner) {
        if (!meet(corner, face.is_below[static_cast<std::size_t>(corner)])) {
            return false;
        }
    }
    return consume(lower, true, last) && consume(upper, false, last);
}

/// Makes the triangles of a corner on one side; false where it is not inside of the other side.
bool monotone_sweep::meet(int corner, bool is_below) {
    chain& own = is_below ? lower : upper;
    chain& other = is_below ? upper : lower;
    const int side = turn(other.left, other.right, corner);
    if ((is_below ? -side : side) <= 0 || !consume(own, is_below, corner)) {
        return false;
    }
    cut_off_visible(other, !is_below, corner);
    own.corners[0] = corner;
    own.count = 1;
    own.left = corner;
    own.right = face.ahead(corner, is_below);
    return true;
}

/// Makes a triangle of the corner with every link of a chain.
bool monotone_sweep::consume(const chain& links, bool is_lower, int corner) {
    for (std::size_t i = 0; i + 1 < links.count; ++i) {
        const int below = links.corners[is_lower ? i : i + 1];
        const int above = links.corners[is_lower ? i + 1 : i];
        if (turn(below, corner, above) <= 0) {
            return false;
        }
        emit(below, corner, above);
    }
    return true;
}

/// Makes triangles with the links at the end of a chain that the corner sees, and becomes that end.
void monotone_sweep::cut_off_visible(chain& links, bool is_lower, int corner) {
    while (links.count > 1) {
        const int front = links.corners[links.count - 1];
        const int behind = links.corners[links.count - 2];
        const int below = is_lower ? behind : front;
        const int above = is_lower ? front : behind;
        if (turn(below, corner, above) <= 0) {
            break;
        }
        emit(below, corner, above);
        --links.count;
    }
    links.corners[links.count++] = corner;
}

/// Adds a triangle, turned over where the face is.
void monotone_sweep::emit(int a, int b, int c) {
    const auto name = [this](int i) { return face.corners[static_cast<std::size_t>(i)].name; };
    triangles.push_back(face.is_reversed ? std::array<int, 3>{name(a), name(c), name(b)}
                                         : std::array<int, 3>{name(a), name(b), name(c)});
}

bool monotone_face::triangulate(std::vector<std::array<int, 3>>& triangles) const {
    triangles.reserve(static_cast<std::size_t>(count) - 2);
    return monotone_sweep(*this, triangles).run();
}

bool monotone_face::has_outside(const monotone_face& other) const {
    for (int from = 0; from < count; ++from) {
        const int to = is_reversed ? corners[static_cast<std::size_t>(from)].before
                                   : corners[static_cast<std::size_t>(from)].next;
        const auto is_inside_or_end = [&](const corner& c) {
            return orientation(at(from), at(to), c.place) >= 0;
        };
        const auto is_outside_or_end = [&](const corner& c) {
            return c.name == corners[static_cast<std::size_t>(from)].name ||
                   c.name == corners[static_cast<std::size_t>(to)].name || !is_inside_or_end(c);
        };
        if (std::all_of(corners.begin(), corners.begin() + count, is_inside_or_end) &&
            std::all_of(other.corners.begin(), other.corners.begin() + other.count,
                        is_outside_or_end)) {
            return true;
        }
    }
    return false;
}

} // namespace ox::internal::csg
