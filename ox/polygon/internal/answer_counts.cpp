#include <ox/polygon/internal/answer_counts.h>

#include <array>
#include <cstddef>

namespace ox::internal {

std::uint64_t& answers_of(answered_by who) {
    static thread_local std::array<std::uint64_t, static_cast<std::size_t>(answered_by::count)>
        counts{};
    return counts[static_cast<std::size_t>(who)];
}

} // namespace ox::internal
