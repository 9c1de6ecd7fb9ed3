#include <ox/internal/sweep_window.h>

#include <array>
#include <cstdint>
#include <cstring>
#include <utility>

namespace ox::internal {

namespace {

using interval = sweep_window::interval;

/// Below so many intervals comparing them is as fast as counting their digits.
constexpr std::size_t fewest_counted = 4096;

constexpr unsigned int digit_bits = 8;
constexpr unsigned int digit_count = 4; // those of a float

/// A place among the intervals in the lower half, `at` in the upper one, where it makes the number
/// ascend with it.
using ascending_number = std::uint64_t;

/// Both zeros are one. NaN has no place.
ascending_number ascending(float at, std::size_t place) {
    const float one_zero = at + 0.0f;
    std::uint32_t bits = 0;
    std::memcpy(&bits, &one_zero, sizeof bits);
    constexpr std::uint32_t sign = 0x80000000u;
    bits = (bits & sign) != 0 ? ~bits : bits | sign;
    return std::uint64_t{bits} << 32 | place;
}

std::size_t digit_of(ascending_number number, unsigned int digit) {
    return number >> (32 + digit * digit_bits) & ((1u << digit_bits) - 1);
}

/// Where the numbers of each value of a digit begin, when they lie by that digit.
using digit_places = std::array<std::uint32_t, 1u << digit_bits>;

std::array<digit_places, digit_count> count_digits(const std::vector<ascending_number>& numbers) {
    std::array<digit_places, digit_count> places{};
    for (const ascending_number number : numbers) {
        for (unsigned int digit = 0; digit < digit_count; ++digit) {
            ++places[digit][digit_of(number, digit)];
        }
    }
    for (digit_places& of_digit : places) {
        std::uint32_t first = 0;
        for (std::uint32_t& place : of_digit) {
            first += std::exchange(place, first);
        }
    }
    return places;
}

/// Orders by the upper half, digit after digit (Seward 1954).
void order_by_digits(std::vector<ascending_number>& numbers) {
    std::array<digit_places, digit_count> places = count_digits(numbers);
    std::vector<ascending_number> ordered(numbers.size());
    for (unsigned int digit = 0; digit < digit_count; ++digit) {
        for (const ascending_number number : numbers) {
            ordered[places[digit][digit_of(number, digit)]++] = number;
        }
        numbers.swap(ordered);
    }
}

} // namespace

void sweep_window::sort_active() {
    if (active.size() < fewest_counted) {
        std::sort(active.begin(), active.end(), precedes);
        return;
    }
    std::vector<ascending_number> numbers;
    numbers.reserve(active.size());
    for (const interval& i : active) {
        numbers.push_back(ascending(i.at, numbers.size()));
    }
    order_by_digits(numbers);
    std::vector<interval> ordered;
    ordered.reserve(active.size());
    for (const ascending_number number : numbers) {
        ordered.push_back(active[static_cast<std::uint32_t>(number)]);
    }
    active.swap(ordered);
    sort_equal_ones();
}

void sweep_window::sort_equal_ones() {
    for (auto first = active.begin(); first != active.end();) {
        const auto end = std::find_if(first + 1, active.end(),
                                      [first](const interval& i) { return i.at != first->at; });
        std::sort(first, end, precedes);
        first = end;
    }
}

} // namespace ox::internal
