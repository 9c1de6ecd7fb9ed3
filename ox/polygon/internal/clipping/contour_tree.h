#ifndef OX_POLYGON_INTERNAL_CLIPPING_CONTOUR_TREE_H
#define OX_POLYGON_INTERNAL_CLIPPING_CONTOUR_TREE_H

#include <vector>

#include <clipper.hpp>

namespace ox::internal {

/// A contour of a tree, which owns the path.
struct tree_contour {
    const ClipperLib::Path* path;
    bool hole;
    int parent; ///< position of the contour around it in the same list, -1 at the top
};

/// The contours of a tree depth first: a contour before those inside it, siblings in the tree's
/// order. O(n), without recursion.
///
/// Whether a contour is a hole follows from its depth alone: top-level contours are outer
/// boundaries, and every level down turns the kind over. Carrying it saves a climb to the root for
/// every contour.
inline std::vector<tree_contour> contours_of(const ClipperLib::PolyTree& tree) {
    struct pending_node {
        const ClipperLib::PolyNode* node;
        int parent;
        bool hole;
    };
    std::vector<tree_contour> contours;
    std::vector<pending_node> stack{{&tree, -1, true}};
    while (!stack.empty()) {
        const pending_node visited = stack.back();
        stack.pop_back();
        int parent = visited.parent;
        if (!visited.node->Contour.empty()) {
            parent = static_cast<int>(contours.size());
            contours.push_back({&visited.node->Contour, visited.hole, visited.parent});
        }
        const ClipperLib::PolyNodes& inside = visited.node->Childs;
        for (auto child = inside.rbegin(); child != inside.rend(); ++child) {
            stack.push_back({*child, parent, !visited.hole}); // the first is visited next
        }
    }
    return contours;
}

} // namespace ox::internal

#endif
