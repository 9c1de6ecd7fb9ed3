#ifndef OX_POLYGON_INTERNAL_ANSWER_MEMORY_H
#define OX_POLYGON_INTERNAL_ANSWER_MEMORY_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <utility>

#include <ox/internal/hashing.h>

namespace ox::internal {

/// What a library answered for shapes of few vertices, by a key that tells how they lie: an array
/// of numbers. Meant to be kept by every thread of its own.
template <class key, class answer>
class answer_memory {
public:
    /// The answer kept for a key, null when there is none.
    const answer* find(const key& wanted) const {
        const auto found = answers.find(wanted);
        return found == answers.end() ? nullptr : &found->second;
    }

    /// Keeps an answer. Small shapes lie in some hundred ways in any model; when there are many
    /// more, the later ones are not kept.
    void keep(const key& wanted, answer&& given) {
        if (answers.size() < most_answers) {
            answers.emplace(wanted, std::move(given));
        }
    }

private:
    static constexpr std::size_t most_answers = 10000;

    struct key_hash {
        std::size_t operator()(const key& hashed) const {
            std::uint64_t mixed = 0;
            for (const std::uint64_t number : hashed) {
                mixed = spread(mixed ^ number);
                mixed ^= mixed >> 32;
            }
            return static_cast<std::size_t>(mixed);
        }
    };

    std::unordered_map<key, answer, key_hash> answers;
};

} // namespace ox::internal

#endif
