#include <ox/solid/internal/csg/exact/facet_division.h>

#include <algorithm>
#include <utility>

#include <ox/solid/internal/csg/exact/item.h>
#include <ox/solid/internal/csg/exact/loop_sweep.h>

namespace ox::internal::csg::exact {

void facet_division::begin(int facet_number) {
    facet_index = facet_number;
    parts.clear();
}

void facet_division::add(const facet_edge& part) {
    parts.push_back(part);
}

int facet_division::head_of(int half_edge) const {
    return item(origins, half_edge ^ 1);
}

/// 1 where, both upwards, the direction of the second part is counter-clockwise of the first.
int facet_division::turn(int part, int other) const {
    const facet_edge& a = item(parts, part);
    const facet_edge& b = item(parts, other);
    const std::vector<plane>& planes = complex.points.planes;
    return a.sense * b.sense *
           determinant_sign(item(planes, facet_index), item(planes, a.plane),
                            item(planes, b.plane));
}

void facet_division::append_pieces(piece_list& list) {
    number_vertices();
    sort_rings();
    trace_loops();
    find_outer_loops();
    number_cells();
    append_cells(list);
}

/// Appends the arcs of each cell, sorted by cell.
void facet_division::append_cells(piece_list& list) {
    std::vector<int>& next_arc = first_arc_of_cell;
    next_arc.assign(static_cast<std::size_t>(cell_count) + 1, 0);
    const auto cell_of = [&](int half_edge) {
        return item(cell_of_loop, item(loop_of, half_edge));
    };
    for (int half_edge = 0; half_edge < half_edge_count(); ++half_edge) {
        if (cell_of(half_edge) >= 0) {
            ++item(next_arc, cell_of(half_edge) + 1);
        }
    }
    item(next_arc, 0) = count_of(list.arcs);
    for (int cell = 0; cell < cell_count; ++cell) {
        list.pieces.push_back({facet_index, item(next_arc, cell), item(next_arc, cell + 1)});
        item(next_arc, cell + 1) += item(next_arc, cell);
    }
    list.arcs.resize(static_cast<std::size_t>(next_arc.back()));
    for (int half_edge = 0; half_edge < half_edge_count(); ++half_edge) {
        if (cell_of(half_edge) >= 0) {
            item(list.arcs, item(next_arc, cell_of(half_edge))++) =
                arc_of(item(parts, half_edge / 2).edge, half_edge % 2 == 0);
        }
    }
}

void facet_division::number_vertices() {
    vertices.clear();
    place_of_point.resize(static_cast<std::size_t>(complex.points.count()), -1);
    const auto add_vertex = [&](int point) {
        if (std::exchange(item(place_of_point, point), 0) < 0) {
            vertices.push_back(point);
        }
    };
    for (const facet_edge& part : parts) {
        add_vertex(complex.edges[part.edge].low);
        add_vertex(complex.edges[part.edge].high);
    }
    std::sort(vertices.begin(), vertices.end(),
              [&](int a, int b) { return complex.points.compare(a, b) < 0; });
    for (int place = 0; place < count_of(vertices); ++place) {
        item(place_of_point, item(vertices, place)) = place;
    }
    origins.clear();
    for (const facet_edge& part : parts) {
        origins.push_back(item(place_of_point, complex.edges[part.edge].low));
        origins.push_back(item(place_of_point, complex.edges[part.edge].high));
    }
    for (const int vertex : vertices) {
        item(place_of_point, vertex) = -1;
    }
}

void facet_division::sort_rings() {
    ring.resize(origins.size());
    for (int i = 0; i < count_of(ring); ++i) {
        item(ring, i) = i;
    }
    std::sort(ring.begin(), ring.end(), [&](int a, int b) {
        if (item(origins, a) != item(origins, b)) {
            return item(origins, a) < item(origins, b);
        }
        return a % 2 != b % 2 ? a % 2 < b % 2 : a != b && turn(a / 2, b / 2) > 0;
    });
    first_in_ring.assign(vertices.size() + 1, 0);
    place_in_ring.resize(ring.size());
    for (int place = 0; place < count_of(ring); ++place) {
        item(place_in_ring, item(ring, place)) = place;
        item(first_in_ring, item(origins, item(ring, place)) + 1) = place + 1;
    }
}

/// After a half-edge comes the one that is next clockwise from its way back.
void facet_division::trace_loops() {
    next.resize(origins.size());
    for (int half_edge = 0; half_edge < half_edge_count(); ++half_edge) {
        const int head = head_of(half_edge);
        const int first = item(first_in_ring, head);
        const int place = item(place_in_ring, half_edge ^ 1);
        const int before = place == first ? item(first_in_ring, head + 1) - 1 : place - 1;
        item(next, half_edge) = item(ring, before);
    }
    loop_of.assign(origins.size(), -1);
    lowest_of_loop.clear();
    for (int half_edge = 0; half_edge < half_edge_count(); ++half_edge) {
        poll.step();
        if (item(loop_of, half_edge) < 0) {
            trace_loop(half_edge);
        }
    }
}

void facet_division::trace_loop(int start) {
    int lowest = item(origins, start);
    int half_edge = start;
    do {
        item(loop_of, half_edge) = count_of(lowest_of_loop);
        lowest = std::min(lowest, item(origins, half_edge));
        half_edge = item(next, half_edge);
    } while (half_edge != start);
    lowest_of_loop.push_back(lowest);
}

/// At its lowest vertex a part that hangs together has half-edges upwards only, and its outer loop
/// comes in along the first of them in counter-clockwise order and leaves along the last.
void facet_division::find_outer_loops() {
    is_outer.assign(lowest_of_loop.size(), false);
    for (int vertex = 0; vertex < count_of(vertices); ++vertex) {
        const int last = item(ring, item(first_in_ring, vertex + 1) - 1);
        const int loop = item(loop_of, last);
        if (last % 2 == 0 && item(lowest_of_loop, loop) == vertex) {
            is_outer[static_cast<std::size_t>(loop)] = true;
        }
    }
}

/// Each other loop bounds a cell of its own, to which the outer loops in it are added.
void facet_division::number_cells() {
    cell_count = 0;
    cell_of_loop.assign(lowest_of_loop.size(), -1);
    int outer_count = 0;
    for (int loop = 0; loop < count_of(lowest_of_loop); ++loop) {
        if (is_outer[static_cast<std::size_t>(loop)]) {
            ++outer_count;
        } else {
            item(cell_of_loop, loop) = cell_count++;
        }
    }
    if (outer_count > 1) {
        loop_sweep(*this).place_outer_loops();
    }
}

} // namespace ox::internal::csg::exact
