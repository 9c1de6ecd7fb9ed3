#include <ox/solid/internal/csg/exact/cell_selection.h>

#include <numeric>

#include <ox/solid/internal/csg/exact/item.h>
#include <ox/solid/internal/csg/exact/operation_fold.h>

namespace ox::internal::csg::exact {

namespace {

/// Walks over the cells; a cell is named by the number that stands for it.
class cell_walk {
public:
    cell_walk(const facet_complex& owner, const piece_list& pieces, const coincidence_list& same,
              const std::vector<operation>& operations, disjoint_sets& joined)
        : complex(owner), list(pieces), coincidences(same), cells(joined), fold(operations),
          is_visited(2 * pieces.pieces.size() + 1), is_selected(2 * pieces.pieces.size() + 1) {
        collect_walls();
    }

    void walk(int outside, progress_poll& poll);

    /// True if the cell belongs to the result.
    bool is_in_result(int cell) const { return is_selected[static_cast<std::size_t>(cell)]; }

private:
    /// A cell on the way, the side by which it was entered (-1 at the first), and the next of its
    /// walls to be looked at.
    struct step {
        int cell;
        int entry;
        int next_wall;
    };

    void collect_walls();
    void enter(int cell, int entry);
    void cross(int side, int turns);

    const facet_complex& complex;
    const piece_list& list;
    const coincidence_list& coincidences;
    disjoint_sets& cells;
    operation_fold fold;
    std::vector<bool> is_visited;
    std::vector<bool> is_selected;
    /// The sides that are turned to each cell, and the first of each cell.
    std::vector<int> walls;
    std::vector<int> first_wall;
    std::vector<step> way;
};

void cell_walk::collect_walls() {
    const int side_count = 2 * count_of(list.pieces);
    const auto stands_for_itself = [&](int side) {
        return item(coincidences.representative, side / 2) == side / 2;
    };
    first_wall.assign(static_cast<std::size_t>(side_count) + 2, 0);
    for (int side = 0; side < side_count; ++side) {
        first_wall[static_cast<std::size_t>(cells.find(side)) + 1] +=
            stands_for_itself(side) ? 1 : 0;
    }
    std::partial_sum(first_wall.begin(), first_wall.end(), first_wall.begin());
    walls.resize(static_cast<std::size_t>(first_wall.back()));
    std::vector<int> next = first_wall;
    for (int side = 0; side < side_count; ++side) {
        if (stands_for_itself(side)) {
            item(walls, item(next, cells.find(side))++) = side;
        }
    }
}

/// Changes the winding numbers for a way from the given side of a piece to the other one, times
/// the turns: through a positive side one comes into the operand.
void cell_walk::cross(int side, int turns) {
    const int piece_index = side / 2;
    const int inwards = side % 2 == 0 ? turns : -turns;
    const facet& own = item(complex.facets, item(list.pieces, piece_index).facet);
    fold.wind(own.operand, inwards);
    for (int i = item(coincidences.first_cover, piece_index);
         i < item(coincidences.first_cover, piece_index + 1); ++i) {
        const piece_cover& cover = item(coincidences.covers, i);
        fold.wind(item(complex.facets, cover.facet).operand,
                  cover.is_reversed ? -inwards : inwards);
    }
}

void cell_walk::enter(int cell, int entry) {
    is_visited[static_cast<std::size_t>(cell)] = true;
    is_selected[static_cast<std::size_t>(cell)] = fold.is_inside();
    way.push_back({cell, entry, item(first_wall, cell)});
}

void cell_walk::walk(int outside, progress_poll& poll) {
    enter(cells.find(outside), -1);
    while (!way.empty()) {
        poll.step();
        step& last = way.back();
        if (last.next_wall == item(first_wall, last.cell + 1)) {
            if (last.entry >= 0) {
                cross(last.entry, -1);
            }
            way.pop_back();
            continue;
        }
        const int side = item(walls, last.next_wall++);
        const int beyond = cells.find(side ^ 1);
        if (!is_visited[static_cast<std::size_t>(beyond)]) {
            cross(side, 1);
            enter(beyond, side);
        }
    }
}

} // namespace

std::vector<bool> select_cells(const facet_complex& complex, const piece_list& list,
                               const coincidence_list& coincidences,
                               const std::vector<operation>& operations, int outside,
                               disjoint_sets& cells, progress_poll& poll) {
    cell_walk walk(complex, list, coincidences, operations, cells);
    walk.walk(outside, poll);
    std::vector<bool> is_side_selected(2 * list.pieces.size());
    for (int side = 0; side < 2 * count_of(list.pieces); ++side) {
        is_side_selected[static_cast<std::size_t>(side)] = walk.is_in_result(cells.find(side));
    }
    return is_side_selected;
}

} // namespace ox::internal::csg::exact
