#ifndef OX_POLYGON_INTERNAL_CONTOUR_TREE_H
#define OX_POLYGON_INTERNAL_CONTOUR_TREE_H

#include <vector>

#include <clipper.hpp>

namespace ox {

/// Visits the contours of a tree depth first, a contour before those inside it, siblings in the
/// tree's order: `visit(path, hole, parent)` with the position of the parent in this order, -1 at
/// the top. O(n), without recursion.
///
/// Whether a contour is a hole follows from its depth alone: top-level contours are outer
/// boundaries, and every level down turns the kind over. Carrying it saves a climb to the root for
/// every contour.
template <typename Visit>
void visit_contours(const ClipperLib::PolyTree& tree, Visit visit) {
    struct pending_node {
        const ClipperLib::PolyNode* node;
        int parent;
        bool hole;
    };
    std::vector<pending_node> stack{{&tree, -1, true}};
    int count = 0;
    while (!stack.empty()) {
        const pending_node visited = stack.back();
        stack.pop_back();
        int parent = visited.parent;
        if (!visited.node->Contour.empty()) {
            parent = count++;
            visit(visited.node->Contour, visited.hole, visited.parent);
        }
        const ClipperLib::PolyNodes& inside = visited.node->Childs;
        for (auto child = inside.rbegin(); child != inside.rend(); ++child) {
            stack.push_back({*child, parent, !visited.hole}); // the first is visited next
        }
    }
}

} // namespace ox

#endif
