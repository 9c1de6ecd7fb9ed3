#include <ox/solid/internal/search/face_tree.h>

#include <algorithm>
#include <cstddef>

namespace ox::internal {

namespace {

/// A leaf of so few faces is searched faster than it is split.
constexpr int largest_leaf = 8;

/// Twice the middle of the bounds along an axis.
double middle(const face_bounds& bounds, unsigned int axis) {
    return static_cast<double>(bounds.low.at(axis)) + static_cast<double>(bounds.high.at(axis));
}

unsigned int longest_axis(const face_bounds& bounds) {
    unsigned int longest = 0;
    double length = -1.0;
    for (unsigned int axis = 0; axis < 3; ++axis) {
        const double side = bounds.get_extent(axis);
        if (side > length) {
            length = side;
            longest = axis;
        }
    }
    return longest;
}

} // namespace

face_tree::face_tree(const std::vector<face_bounds>& bounds) {
    faces.reserve(bounds.size());
    for (std::size_t i = 0; i < bounds.size(); ++i) {
        if (!bounds[i].is_empty()) {
            faces.push_back(static_cast<int>(i));
        }
    }
    if (!faces.empty()) {
        build_node(bounds, 0, static_cast<int>(faces.size()));
    }
    boxes.reserve(faces.size());
    for (const int face : faces) {
        boxes.push_back(bounds[static_cast<std::size_t>(face)]);
    }
}

/// Recursion as deep as the logarithm of the number of faces: every split halves them.
void face_tree::build_node(const std::vector<face_bounds>& bounds, int first, int end) {
    const std::size_t number = nodes.size();
    nodes.push_back({face_bounds(), first, end, 0});
    face_bounds enclosing;
    for (int i = first; i < end; ++i) {
        enclosing.enlarge(bounds[static_cast<std::size_t>(faces[static_cast<std::size_t>(i)])]);
    }
    nodes[number].bounds = enclosing;
    if (end - first <= largest_leaf) {
        return;
    }
    const int halfway = split(bounds, enclosing, first, end);
    build_node(bounds, first, halfway);
    nodes[number].second_child = static_cast<int>(nodes.size());
    build_node(bounds, halfway, end);
}

/// Sorts the faces of a node into two halves along the longest side of its bounds.
int face_tree::split(const std::vector<face_bounds>& bounds, const face_bounds& enclosing,
                     int first, int end) {
    const unsigned int axis = longest_axis(enclosing);
    const int halfway = first + (end - first) / 2;
    std::nth_element(faces.begin() + first, faces.begin() + halfway, faces.begin() + end,
                     [&](int a, int b) {
                         return middle(bounds[static_cast<std::size_t>(a)], axis) <
                                middle(bounds[static_cast<std::size_t>(b)], axis);
                     });
    return halfway;
}

std::vector<int> face_tree::find_faces_at(const ox_3dvector& point, const ox_3dvector& normal,
                                          float tolerance) const {
    std::vector<int> found;
    std::vector<int> pending;
    if (!nodes.empty()) {
        pending.push_back(0);
    }
    while (!pending.empty()) {
        const int number = pending.back();
        const node& visited = nodes[static_cast<std::size_t>(number)];
        pending.pop_back();
        if (visited.bounds.surely_uncrossed_by(point, normal, tolerance)) {
            continue;
        }
        if (visited.second_child > 0) {
            pending.push_back(visited.second_child);
            pending.push_back(number + 1);
            continue;
        }
        for (std::size_t i = static_cast<std::size_t>(visited.first);
             i < static_cast<std::size_t>(visited.end); ++i) {
            if (!boxes[i].surely_uncrossed_by(point, normal, tolerance)) {
                found.push_back(faces[i]);
            }
        }
    }
    // Leaf by leaf, the faces come in long runs, which quicksort takes badly.
    std::stable_sort(found.begin(), found.end());
    return found;
}

} // namespace ox::internal
