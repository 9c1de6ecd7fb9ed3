#ifndef OX_SOLID_INTERNAL_CSG_EXACT_DISJOINT_SETS_H
#define OX_SOLID_INTERNAL_CSG_EXACT_DISJOINT_SETS_H

#include <numeric>
#include <vector>

#include <ox/solid/internal/csg/exact/item.h>

namespace ox::internal::csg::exact {

/// Disjoint sets of the numbers below a count, which are joined pair by pair.
class disjoint_sets {
public:
    explicit disjoint_sets(int count) : parents(static_cast<std::size_t>(count)) {
        std::iota(parents.begin(), parents.end(), 0);
    }

    /// The number that stands for the set of a number: its smallest one.
    int find(int number) {
        while (item(parents, number) != number) {
            item(parents, number) = item(parents, item(parents, number));
            number = item(parents, number);
        }
        return number;
    }

    void join(int a, int b) {
        a = find(a);
        b = find(b);
        if (a < b) {
            item(parents, b) = a;
        } else {
            item(parents, a) = b;
        }
    }

private:
    std::vector<int> parents;
};

} // namespace ox::internal::csg::exact

#endif
