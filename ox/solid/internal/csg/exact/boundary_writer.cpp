#include <ox/solid/internal/csg/exact/boundary_writer.h>

#include <ox/solid/internal/csg/exact/item.h>

namespace ox::internal::csg::exact {

/// The facet of the lowest operand that covers a piece.
piece_cover boundary_writer::lowest_cover(int piece_index) const {
    piece_cover lowest = {piece_index, item(list.pieces, piece_index).facet, false};
    for (int i = item(coincidences.first_cover, piece_index);
         i < item(coincidences.first_cover, piece_index + 1); ++i) {
        const piece_cover& cover = item(coincidences.covers, i);
        if (item(complex.facets, cover.facet).operand <
            item(complex.facets, lowest.facet).operand) {
            lowest = cover;
        }
    }
    return lowest;
}

/// The edges of a piece, except those that it has on both sides.
void boundary_writer::write_edges(int piece_index, bool is_turned, arrangement_result& result) {
    const piece& p = item(list.pieces, piece_index);
    const auto first = list.arcs.begin() + p.first_arc;
    for (auto arc = first; arc != first + p.arc_count; ++arc) {
        poll.step();
        int& last = item(last_piece, edge_of(*arc));
        if (last == piece_index) {
            item(last_slit, edge_of(*arc)) = piece_index;
        }
        last = piece_index;
    }
    for (auto arc = first; arc != first + p.arc_count; ++arc) {
        const edge& e = complex.edges[edge_of(*arc)];
        if (item(last_slit, edge_of(*arc)) != piece_index) {
            const bool is_upwards = is_upward(*arc) != is_turned;
            result.edges.push_back({is_upwards ? e.low : e.high, is_upwards ? e.high : e.low});
        }
    }
}

void boundary_writer::write_piece(int piece_index, bool is_turned, arrangement_result& result) {
    const piece_cover cover = lowest_cover(piece_index);
    const facet& f = item(complex.facets, cover.facet);
    const int first_edge = count_of(result.edges);
    write_edges(piece_index, is_turned, result);
    result.pieces.push_back({f.triangle, is_turned != cover.is_reversed, f.operand, first_edge,
                             count_of(result.edges) - first_edge});
}

arrangement_result boundary_writer::write(const std::vector<bool>& is_side_selected) {
    arrangement_result result;
    result.points = complex.points.near_points();
    for (int i = 0; i < count_of(list.pieces); ++i) {
        poll.step();
        const bool is_in_front = is_side_selected[2 * static_cast<std::size_t>(i)];
        const bool is_behind = is_side_selected[2 * static_cast<std::size_t>(i) + 1];
        if (item(coincidences.representative, i) == i && is_in_front != is_behind) {
            write_piece(i, is_in_front, result);
        }
    }
    return result;
}

} // namespace ox::internal::csg::exact
