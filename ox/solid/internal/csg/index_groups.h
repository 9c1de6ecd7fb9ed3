#ifndef OX_SOLID_INTERNAL_CSG_INDEX_GROUPS_H
#define OX_SOLID_INTERNAL_CSG_INDEX_GROUPS_H

#include <algorithm>
#include <numeric>
#include <vector>

namespace ox::internal::csg {

/// Indices that are put together step by step; the lowest one of a group stands for it.
class index_groups {
public:
    explicit index_groups(std::size_t count) : parents(count) {
        std::iota(parents.begin(), parents.end(), 0);
    }

    /// The lowest index of the group of `index`.
    int find(int index) {
        while (parent(index) != index) {
            parent(index) = parent(parent(index));
            index = parent(index);
        }
        return index;
    }

    /// Puts the groups of two indices together.
    void join(int a, int b) {
        a = find(a);
        b = find(b);
        parent((std::max)(a, b)) = (std::min)(a, b);
    }

private:
    int& parent(int index) { return parents[static_cast<std::size_t>(index)]; }

    std::vector<int> parents;
};

} // namespace ox::internal::csg

#endif
