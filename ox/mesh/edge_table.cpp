#include <ox/mesh/internal/edge_table.h>

namespace ox {

namespace {

constexpr std::size_t smallest_table = 16;

/// True when `nb_used` entries crowd a table of `nb_slots`: more than three quarters of them.
bool is_crowded(std::size_t nb_used, std::size_t nb_slots) {
    return nb_used > nb_slots - nb_slots / 4;
}

} // namespace

oxp_edge_table::oxp_edge_table(std::size_t nb_edges) {
    std::size_t nb_slots = smallest_table;
    while (is_crowded(nb_edges, nb_slots)) {
        nb_slots *= 2;
    }
    slots.assign(nb_slots, {0, 0, absent});
}

std::uint32_t oxp_edge_table::find_or_add(std::uint32_t start, std::uint32_t end,
                                          std::uint32_t value) {
    std::size_t place = slot_of(start, end);
    if (slots[place].value != absent) {
        return slots[place].value;
    }
    if (is_crowded(nb_used + 1, slots.size())) {
        enlarge();
        place = slot_of(start, end);
    }
    slots[place] = {start, end, value};
    ++nb_used;
    return value;
}

std::uint32_t oxp_edge_table::find(std::uint32_t start, std::uint32_t end) const {
    return slots[slot_of(start, end)].value;
}

std::size_t oxp_edge_table::slot_of(std::uint32_t start, std::uint32_t end) const {
    // The low half of a product never hears of the high half of its factors: fold it in.
    std::uint64_t hash = (std::uint64_t{start} << 32 | end) * 0x9E3779B97F4A7C15u;
    hash = (hash ^ (hash >> 32)) * 0xD6E8FEB86659FD93u;
    hash ^= hash >> 32;
    const std::size_t mask = slots.size() - 1;
    std::size_t place = static_cast<std::size_t>(hash) & mask;
    while (slots[place].value != absent &&
           (slots[place].start != start || slots[place].end != end)) {
        place = (place + 1) & mask;
    }
    return place;
}

void oxp_edge_table::enlarge() {
    std::vector<slot> old(slots.size() * 2, {0, 0, absent});
    old.swap(slots);
    for (const slot& moved : old) {
        if (moved.value != absent) {
            slots[slot_of(moved.start, moved.end)] = moved;
        }
    }
}

} // namespace ox
