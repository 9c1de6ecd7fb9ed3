#ifndef OX_INTERNAL_DISJOINT_SETS_H
#define OX_INTERNAL_DISJOINT_SETS_H

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <vector>

namespace ox::internal {

/// Disjoint sets of the numbers below a count, which are joined pair by pair.
class disjoint_sets {
public:
    explicit disjoint_sets(int count) : parents(static_cast<std::size_t>(count)) {
        std::iota(parents.begin(), parents.end(), 0);
    }

    /// The number that stands for the set of a number: its smallest one.
    int find(int number) {
        while (parent(number) != number) {
            parent(number) = parent(parent(number));
            number = parent(number);
        }
        return number;
    }

    void join(int a, int b) {
        a = find(a);
        b = find(b);
        parent(std::max(a, b)) = std::min(a, b);
    }

private:
    int& parent(int number) { return parents[static_cast<std::size_t>(number)]; }

    std::vector<int> parents;
};

} // namespace ox::internal

#endif
