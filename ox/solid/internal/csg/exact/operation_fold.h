#ifndef OX_SOLID_INTERNAL_CSG_EXACT_OPERATION_FOLD_H
#define OX_SOLID_INTERNAL_CSG_EXACT_OPERATION_FOLD_H

#include <cstdint>
#include <vector>

#include <ox/solid/internal/csg/arrangement.h>

namespace ox::internal::csg::exact {

/// A set of the numbers below a count that knows its greatest one: words of bits, and above each
/// level the words of the bits of those that are not empty. Every change costs O(log n).
class number_set {
public:
    explicit number_set(int count);

    void insert(int number);
    void remove(int number);

    /// The greatest number in the set, or -1.
    int greatest() const;

private:
    std::vector<std::vector<std::uint64_t>> levels;
};

/// Whether a point is in the result, from the winding numbers of the operands there.
///
/// Where it is known whether a point is inside an operand, its operation is constant (inside after
/// a union, outside after a difference, outside after an intersection with what it is not in) or
/// changes nothing. So the last operation that is constant decides.
class operation_fold {
public:
    /// The fold where every winding number is 0. The operations outlive it.
    explicit operation_fold(const std::vector<operation>& applied);

    /// Adds to the winding number of an operand.
    void wind(int operand, int turns);

    /// True if the point is in the result.
    bool is_inside() const;

private:
    const std::vector<operation>& operations;
    std::vector<int> windings;
    number_set constants;
};

} // namespace ox::internal::csg::exact

#endif
