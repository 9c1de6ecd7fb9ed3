#ifndef OX_SOLID_INTERNAL_CSG_EXACT_PAIR_TABLE_H
#define OX_SOLID_INTERNAL_CSG_EXACT_PAIR_TABLE_H

#include <cstdint>
#include <vector>

namespace ox::internal::csg::exact {

/// Numbers kept by pairs of indices: a hash table with open addressing, whose answers depend on no
/// order.
class pair_table {
public:
    /// The number of a pair, to be read and set until the next pair is asked for; -1 where it is
    /// new.
    int& value_of(int first, int second) {
        if (slots.size() < 2 * (used + 1)) {
            grow();
        }
        const std::uint64_t key = key_of(first, second);
        slot& found = slots[place_of(key)];
        if (found.key != key) {
            found.key = key;
            ++used;
        }
        return found.value;
    }

    /// Makes room for so many pairs.
    void reserve(std::size_t count) {
        while (slots.size() < 2 * (count + 1)) {
            grow();
        }
    }

private:
    static constexpr std::uint64_t no_key = ~std::uint64_t(0);

    struct slot {
        std::uint64_t key = no_key;
        int value = -1;
    };

    static std::uint64_t key_of(int first, int second) {
        return (static_cast<std::uint64_t>(first) << 32) | static_cast<std::uint64_t>(second);
    }

    /// The slot of the key, or the free one where it belongs (Fibonacci hashing).
    std::size_t place_of(std::uint64_t key) const {
        const std::size_t mask = slots.size() - 1;
        const std::uint64_t hash = (key ^ (key >> 29)) * 0x9e3779b97f4a7c15u;
        auto place = static_cast<std::size_t>(hash ^ (hash >> 32)) & mask;
        while (slots[place].key != key && slots[place].key != no_key) {
            place = (place + 1) & mask;
        }
        return place;
    }

    void grow() {
        std::vector<slot> old(slots.empty() ? 64 : 2 * slots.size());
        old.swap(slots);
        for (const slot& kept : old) {
            if (kept.key != no_key) {
                slots[place_of(kept.key)] = kept;
            }
        }
    }

    std::vector<slot> slots;
    std::size_t used = 0;
};

} // namespace ox::internal::csg::exact

#endif
