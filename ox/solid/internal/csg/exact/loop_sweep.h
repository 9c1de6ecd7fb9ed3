#ifndef OX_SOLID_INTERNAL_CSG_EXACT_LOOP_SWEEP_H
#define OX_SOLID_INTERNAL_CSG_EXACT_LOOP_SWEEP_H

#include <set>
#include <vector>

#include <ox/solid/internal/csg/exact/facet_division.h>

namespace ox::internal::csg::exact {

/// Sweeps over a divided facet from its lowest vertex to its highest and finds for each part that
/// hangs together the cell that it lies in. O(m log m) for m edges.
class loop_sweep {
public:
    explicit loop_sweep(facet_division& swept)
        : division(swept), active(below_or_above{this}), places(swept.parts.size()) {}

    void place_outer_loops();

private:
    /// Orders the edges that the sweep line crosses along it, and vertices among them.
    struct below_or_above {
        using is_transparent = void;
        struct vertex {
            int place;
        };
        bool operator()(int a, int b) const { return sweep->is_below(a, b); }
        bool operator()(int part, vertex v) const { return sweep->side(v.place, part) > 0; }
        bool operator()(vertex v, int part) const { return sweep->side(v.place, part) < 0; }
        const loop_sweep* sweep;
    };
    using active_edges = std::set<int, below_or_above>;

    int side(int vertex, int part) const;
    bool is_below(int part, int other) const;
    void leave(int vertex);
    void place_loop_at(int vertex);
    void enter(int vertex);

    facet_division& division;
    active_edges active;
    std::vector<active_edges::iterator> places;
};

} // namespace ox::internal::csg::exact

#endif
