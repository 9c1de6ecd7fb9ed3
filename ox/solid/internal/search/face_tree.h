#ifndef OX_SOLID_INTERNAL_SEARCH_FACE_TREE_H
#define OX_SOLID_INTERNAL_SEARCH_FACE_TREE_H

#include <vector>

#include <ox/geometry/ox_3dvector.h>
#include <ox/solid/internal/search/face_bounds.h>

namespace ox::internal {

/// A bounding-volume hierarchy over the faces of a solid: finds those that a plane may cross
/// without looking at the others. Knows the faces by their number, and their bounds.
class face_tree {
public:
    /// Builds the tree over the faces with these bounds; faces without vertices are never found.
    /// O(n log n).
    explicit face_tree(const std::vector<face_bounds>& bounds);

    /// The faces that may cross the plane, in ascending order: all that have an edge across it,
    /// seen with `tolerance`, and some that have none. O(log n + k log k) for k faces found and a
    /// plane that leaves most faces well on one side.
    std::vector<int> find_faces_at(const ox_3dvector& point, const ox_3dvector& normal,
                                   float tolerance) const;

private:
    /// A range of the sorted faces. A leaf has no children.
    struct node {
        face_bounds bounds;
        int first;
        int end;
        int second_child; // the first one comes right behind its parent; 0 for a leaf
    };

    void build_node(const std::vector<face_bounds>& bounds, int first, int end);
    int split(const std::vector<face_bounds>& bounds, const face_bounds& enclosing, int first,
              int end);

    std::vector<int> faces;         // sorted so that each node has a range of them
    std::vector<face_bounds> boxes; // in the same order
    std::vector<node> nodes;        // depth first
};

} // namespace ox::internal

#endif
