#include <ox/solid/internal/csg/exact/loop_sweep.h>

#include <ox/solid/internal/csg/exact/item.h>

namespace ox::internal::csg::exact {

void loop_sweep::place_outer_loops() {
    for (int vertex = 0; vertex < count_of(division.vertices); ++vertex) {
        division.poll.step();
        leave(vertex);
        place_loop_at(vertex);
        enter(vertex);
    }
}

/// 1 where a vertex is above the line of a part (on its left upwards), 0 on it, -1 below.
int loop_sweep::side(int vertex, int part) const {
    const facet_edge& along = item(division.parts, part);
    return -along.sense *
           division.complex.points.side(item(division.vertices, vertex), along.plane);
}

/// The part whose low end is swept later is compared by it; of two from one vertex the direction
/// decides.
bool loop_sweep::is_below(int part, int other) const {
    const int low = item(division.origins, 2 * part);
    const int other_low = item(division.origins, 2 * other);
    if (part == other) {
        return false;
    }
    if (low == other_low) {
        return division.turn(part, other) > 0;
    }
    return low < other_low ? side(other_low, part) > 0 : side(low, other) < 0;
}

/// Takes out the parts that end in a vertex.
void loop_sweep::leave(int vertex) {
    for (int place = item(division.first_in_ring, vertex);
         place < item(division.first_in_ring, vertex + 1); ++place) {
        const int half_edge = item(division.ring, place);
        if (half_edge % 2 != 0) {
            active.erase(item(places, half_edge / 2));
        }
    }
}

/// Gives the outer loop that begins in a vertex the cell above the part next below.
void loop_sweep::place_loop_at(int vertex) {
    const int last = item(division.ring, item(division.first_in_ring, vertex + 1) - 1);
    const int loop = item(division.loop_of, last);
    if (!division.is_outer[static_cast<std::size_t>(loop)] ||
        item(division.lowest_of_loop, loop) != vertex) {
        return;
    }
    const auto above = active.lower_bound(below_or_above::vertex{vertex});
    if (above != active.begin()) {
        const int below = *std::prev(above);
        item(division.cell_of_loop, loop) =
            item(division.cell_of_loop, item(division.loop_of, 2 * below));
    }
}

/// Puts in the parts that begin in a vertex.
void loop_sweep::enter(int vertex) {
    for (int place = item(division.first_in_ring, vertex);
         place < item(division.first_in_ring, vertex + 1); ++place) {
        const int half_edge = item(division.ring, place);
        if (half_edge % 2 == 0) {
            item(places, half_edge / 2) = active.insert(half_edge / 2).first;
        }
    }
}

} // namespace ox::internal::csg::exact
