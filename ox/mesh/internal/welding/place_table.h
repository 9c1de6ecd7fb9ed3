#ifndef OX_MESH_INTERNAL_WELDING_PLACE_TABLE_H
#define OX_MESH_INTERNAL_WELDING_PLACE_TABLE_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

#include <ox/geometry/ox_3dvector.h>
#include <ox/mesh/internal/large_array.h>

namespace ox::internal {

/// A hash table of numbered positions (0, 1, 2, ...) by 64-bit keys: each key leads to a bucket,
/// each bucket to a chain of numbers, the newest first. Keys are not kept, so a chain also holds
/// numbers of other keys: it proposes, the caller checks.
///
/// A bucket holds the position of its newest number, so that most look-ups touch memory once. The
/// caller keeps all positions; every number carries a mark of the caller's.
class place_table {
public:
    /// The end of a chain.
    static constexpr std::uint32_t none = 0x7FFFFFFFu;

    /// The newest number of a chain. In an empty chain it is `none`, without a mark.
    struct place {
        ox_3dvector position;
        std::uint32_t number : 31;
        std::uint32_t marked : 1;
    };

    place_table() { empty_buckets(2); }

    /// How many numbers there are, those in no chain included.
    std::size_t size() const { return links.size(); }

    /// How many numbers there is room for.
    std::size_t get_room() const { return room; }

    /// The newest number of the chain that a key leads to.
    const place& newest(std::uint64_t key) const { return buckets[key >> shift]; }

    /// The number before this one in its chain, `none` at the end.
    std::uint32_t older(std::uint32_t number) const { return links[number].older; }

    /// The mark of a number.
    bool is_marked(std::uint32_t number) const { return links[number].marked != 0; }

    /// Starts to fetch what `newest(key)` reads.
    void prefetch(std::uint64_t key) const { prefetch_memory(&buckets[key >> shift]); }

    /// Adds the next number, for which there must be room, to the chain of a key.
    void add(std::uint64_t key, const ox_3dvector& position, bool marked) {
        links.push_back({none, marked});
        chain(key, position, static_cast<std::uint32_t>(links.size() - 1));
    }

    /// Adds the next number, for which there must be room, to no chain.
    void add_unchained() { links.push_back({unchained, false}); }

    /// Makes room for `number_count` numbers, with a bucket for each, and chains those that are
    /// there anew, by `key_of(number)` and `positions[number]`. O(number_count).
    template <typename KeyOf>
    void make_room(std::size_t number_count, const ox_3dvector* positions, const KeyOf& key_of) {
        links.reserve(number_count);
        empty_buckets(number_count);
        room = number_count;
        for (std::uint32_t number = 0; number < links.size(); ++number) {
            if (links[number].older != unchained) {
                chain(key_of(number), positions[number], number);
            }
        }
    }

private:
    static constexpr std::uint32_t unchained = none - 1;

    struct link {
        std::uint32_t older : 31;
        std::uint32_t marked : 1;
    };

    void chain(std::uint64_t key, const ox_3dvector& position, std::uint32_t number) {
        place& bucket = buckets[key >> shift];
        links[number].older = bucket.number;
        bucket = {position, number & none, links[number].marked};
    }

    /// Empties the buckets, and replaces them by a power of two not below `at_least`. Where that is
    /// the number there are, nothing is allocated, and so nothing can fail.
    void empty_buckets(std::size_t at_least) {
        std::size_t count = 2;
        int bits = 1;
        while (count < at_least) {
            count *= 2;
            ++bits;
        }
        if (count != bucket_count) {
            buckets = make_large_array<place>(count);
            bucket_count = count;
            shift = 64 - bits;
        }
        std::fill(buckets.get(), buckets.get() + count, place{ox_3dvector(), none, 0});
    }

    large_array<place> buckets;
    std::size_t bucket_count = 0;
    std::vector<link> links; ///< one for each number
    int shift = 63;          ///< from a key to its bucket: the high bits
    std::size_t room = 0;
};

} // namespace ox::internal

#endif
