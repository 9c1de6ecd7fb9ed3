#include <ox/polygon/internal/integer_grid.h>

#include <utility>
#include <vector>

#include <ox/polygon/internal/tolerances.h>

namespace ox {
namespace {

// Rounds half away from zero. False when the value is not a number or outside the grid: the
// conversion to an integer would then be undefined.
bool to_grid_unit(float coordinate, ClipperLib::cInt& unit) {
    const float scaled = coordinate / grid_unit;
    const float shifted = scaled > 0.0f ? scaled + 0.5f : scaled - 0.5f;
    if (!(shifted > -grid_end && shifted < grid_end)) {
        return false;
    }
    unit = static_cast<ClipperLib::cInt>(shifted);
    return true;
}

// A node of the tree that is still to be visited.
struct pending_node {
    const ClipperLib::PolyNode* node;
    int parent; // index of the contour around it
    bool hole;
};

using node_stack = std::vector<pending_node>;

// Pushed last to first, so that the first child is visited next.
void push_children(node_stack& stack, const ClipperLib::PolyNode& node, int parent, bool hole) {
    for (auto child = node.Childs.rbegin(); child != node.Childs.rend(); ++child) {
        stack.push_back({*child, parent, hole});
    }
}

// The four lists of normalised contours, gathered aside: a failed allocation leaves those of the
// polygon as they are.
struct contour_lists {
    ox_list<ox_3dvector> vertices;
    ox_list<unsigned int> sizes;
    ox_list<bool> orientations;
    ox_list<int> parents;

    void append(const ox_polygon_data& plane, const pending_node& visited) {
        const ClipperLib::Path& path = visited.node->Contour;
        sizes.push_right(static_cast<unsigned int>(path.size()));
        orientations.push_right(!visited.hole);
        parents.push_right(visited.parent);
        for (const ClipperLib::IntPoint& p : path) {
            vertices.push_right(grid_to_plane(plane, p));
        }
    }

    void move_to(ox_polygon_data& polygon) {
        polygon.contour_vertices = std::move(vertices);
        polygon.contour_sizes = std::move(sizes);
        polygon.contour_orientations = std::move(orientations);
        polygon.contour_parents = std::move(parents);
    }
};

} // namespace

bool contour_to_grid(const ox_polygon_data& plane, const ox_3dvector* vertices, unsigned int size,
                     ClipperLib::Path& path) {
    path.clear();
    path.reserve(size);
    for (unsigned int i = 0; i < size; ++i) {
        const ox_3dvector offset = vertices[i] - plane.point;
        ClipperLib::IntPoint p;
        if (!to_grid_unit(ox_dot(offset, plane.dx), p.X) ||
            !to_grid_unit(ox_dot(offset, plane.dy), p.Y)) {
            return false;
        }
        path.push_back(p);
    }
    return true;
}

void contours_to_grid(const ox_polygon_data& plane, const ox_list<ox_3dvector>& vertices,
                      const ox_list<unsigned int>& sizes, ClipperLib::Paths& paths) {
    const ox_3dvector* contour = vertices.get_data();
    ClipperLib::Path path;
    for (const unsigned int size : sizes) {
        if (contour_to_grid(plane, contour, size, path)) {
            paths.push_back(path);
        }
        contour += size;
    }
}

ox_3dvector grid_to_plane(const ox_polygon_data& plane, const ClipperLib::IntPoint& p) {
    const float u = static_cast<float>(p.X) * grid_unit;
    const float v = static_cast<float>(p.Y) * grid_unit;
    return plane.point + u * plane.dx + v * plane.dy;
}

// Whether a contour is a hole follows from its depth alone: top-level contours are outer
// boundaries, and every level down turns the kind over. Carrying it saves a climb to the root for
// every contour.
void rebuild_contours(ox_polygon_data& polygon, const ClipperLib::PolyTree& tree) {
    contour_lists made;
    node_stack stack;
    push_children(stack, tree, -1, false);
    while (!stack.empty()) {
        const pending_node visited = stack.back();
        stack.pop_back();
        int parent = visited.parent;
        if (!visited.node->Contour.empty()) {
            parent = made.sizes.size();
            made.append(polygon, visited);
        }
        push_children(stack, *visited.node, parent, !visited.hole);
    }
    made.move_to(polygon);
    polygon.forget_derived();
    polygon.drop_region_unless_finite();
}

void clip_paths(ClipperLib::ClipType operation, const ClipperLib::Paths& subjects,
                const ClipperLib::Paths& clips, ClipperLib::PolyTree& tree) {
    try {
        ClipperLib::Clipper clipper;
        for (const ClipperLib::Path& path : subjects) {
            clipper.AddPath(path, ClipperLib::ptSubject, true);
        }
        for (const ClipperLib::Path& path : clips) {
            clipper.AddPath(path, ClipperLib::ptClip, true);
        }
        clipper.Execute(operation, tree, ClipperLib::pftEvenOdd, ClipperLib::pftEvenOdd);
    } catch (const ClipperLib::clipperException&) {
        tree.Clear();
    }
}

} // namespace ox
