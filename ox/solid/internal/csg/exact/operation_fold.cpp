#include <ox/solid/internal/csg/exact/operation_fold.h>

#include <ox/solid/internal/csg/exact/item.h>
#include <ox/solid/internal/csg/exact/wide_integer.h>

namespace ox::internal::csg::exact {

namespace {

constexpr int word_bits = 64;

std::uint64_t bit_of(int number) {
    return std::uint64_t(1) << (number % word_bits);
}

} // namespace

number_set::number_set(int count) {
    do {
        count = (count + word_bits - 1) / word_bits;
        levels.emplace_back(static_cast<std::size_t>(count), 0);
    } while (count > 1);
}

void number_set::insert(int number) {
    for (std::vector<std::uint64_t>& level : levels) {
        item(level, number / word_bits) |= bit_of(number);
        number /= word_bits;
    }
}

void number_set::remove(int number) {
    for (std::vector<std::uint64_t>& level : levels) {
        std::uint64_t& word = item(level, number / word_bits);
        word &= ~bit_of(number);
        if (word != 0) {
            return;
        }
        number /= word_bits;
    }
}

int number_set::greatest() const {
    int number = 0;
    for (std::size_t level = levels.size(); level-- > 0;) {
        if (levels[level].empty() || item(levels[level], number) == 0) {
            return -1;
        }
        number = number * word_bits + bit_length(item(levels[level], number)) - 1;
    }
    return number;
}

operation_fold::operation_fold(const std::vector<operation>& applied)
    : operations(applied), windings(applied.size(), 0), constants(count_of(applied)) {
    for (int operand = 0; operand < count_of(operations); ++operand) {
        if (item(operations, operand) == operation::intersect) {
            constants.insert(operand);
        }
    }
}

void operation_fold::wind(int operand, int turns) {
    int& winding = item(windings, operand);
    const bool was_inside = winding != 0;
    winding += turns;
    const bool is_now_inside = winding != 0;
    if (was_inside != is_now_inside) {
        const bool is_constant =
            is_now_inside != (item(operations, operand) == operation::intersect);
        if (is_constant) {
            constants.insert(operand);
        } else {
            constants.remove(operand);
        }
    }
}

bool operation_fold::is_inside() const {
    const int last = constants.greatest();
    return last >= 0 && item(operations, last) == operation::unite;
}

} // namespace ox::internal::csg::exact
