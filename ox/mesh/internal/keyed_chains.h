#ifndef OX_MESH_INTERNAL_KEYED_CHAINS_H
#define OX_MESH_INTERNAL_KEYED_CHAINS_H

#include <cstddef>
#include <cstdint>
#include <vector>

#include <ox/mesh/internal/prefetch.h>

namespace ox {

/// A hash table of the numbers 0, 1, 2, ... by 64-bit keys: each key leads to a bucket, each bucket
/// to a chain of numbers, the newest first. Keys are not kept, so a chain also holds numbers of
/// other keys: it proposes, the caller checks.
class oxp_keyed_chains {
public:
    /// The end of a chain.
    static constexpr std::uint32_t none = 0xFFFFFFFFu;

    oxp_keyed_chains() : buckets(2, none) {}

    /// How many numbers there are, those in no chain included.
    std::size_t size() const { return links.size(); }

    /// How many numbers there is room for.
    std::size_t get_room() const { return room; }

    /// The newest number of the chain that a key leads to, `none` when it is empty.
    std::uint32_t newest(std::uint64_t key) const { return buckets[key >> shift]; }

    /// The number before this one in its chain, `none` at the end.
    std::uint32_t older(std::uint32_t number) const { return links[number]; }

    /// Starts to fetch what `newest(key)` reads.
    void prefetch(std::uint64_t key) const { oxp_prefetch(&buckets[key >> shift]); }

    /// Adds the next number, for which there must be room, to the chain of a key.
    void add(std::uint64_t key) {
        links.push_back(newest(key));
        buckets[key >> shift] = static_cast<std::uint32_t>(links.size() - 1);
    }

    /// Adds the next number, for which there must be room, to no chain.
    void add_unchained() { links.push_back(unchained); }

    /// Makes room for `nb_numbers` numbers, with a bucket for each, and chains those that are there
    /// anew, by `key_of(number)`. O(nb_numbers).
    template <typename KeyOf>
    void make_room(std::size_t nb_numbers, const KeyOf& key_of) {
        links.reserve(nb_numbers);
        empty_buckets(nb_numbers);
        room = nb_numbers;
        for (std::uint32_t number = 0; number < links.size(); ++number) {
            if (links[number] != unchained) {
                std::uint32_t& bucket = buckets[key_of(number) >> shift];
                links[number] = bucket;
                bucket = number;
            }
        }
    }

private:
    static constexpr std::uint32_t unchained = none - 1;
    /// Replaces the buckets by at least `at_least` empty ones.
    void empty_buckets(std::size_t at_least) {
        std::size_t count = 2;
        int bits = 1;
        while (count < at_least) {
            count *= 2;
            ++bits;
        }
        buckets.assign(count, none);
        shift = 64 - bits;
    }

    std::vector<std::uint32_t> buckets; // the newest of each chain; a power of two of them
    std::vector<std::uint32_t> links;   // for each number the one before it in its chain
    int shift = 63;                     // from a key to its bucket: the high bits
    std::size_t room = 0;
};

} // namespace ox

#endif
