#ifndef TESTS_REFERENCE_PLAIN_LIST_H
#define TESTS_REFERENCE_PLAIN_LIST_H

#include <algorithm>
#include <cstddef>
#include <vector>

namespace reference {

/// What a list does, on a vector of its slots: all of them, the spare ones included.
template <typename T>
struct plain_list {
    std::vector<T> slots;
    int count = 0;

    int capacity() const { return static_cast<int>(slots.size()); }

    void insert(int position, const T& value) {
        count = std::max(count, 0);
        if (count + 1 > capacity()) {
            reallocate(std::max(capacity() + capacity() / 2, count + 1));
        }
        const int place = std::min(std::max(position, 0), count);
        std::copy_backward(slots.begin() + place, slots.begin() + count, slots.begin() + count + 1);
        slots[static_cast<std::size_t>(place)] = value;
        ++count;
    }

    void remove(int position) {
        if (position >= 0 && position < count) {
            std::copy(slots.begin() + position + 1, slots.begin() + count,
                      slots.begin() + position);
            --count;
        }
    }

    void set_size(int n) {
        if (n > capacity()) {
            reallocate(n);
        }
        count = n;
    }

    void reallocate(int n) {
        slots.resize(static_cast<std::size_t>(std::max(count, 0))); // spare slots stay behind
        slots.resize(static_cast<std::size_t>(n));
    }
};

} // namespace reference

#endif
