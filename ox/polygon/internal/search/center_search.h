#ifndef OX_POLYGON_INTERNAL_SEARCH_CENTER_SEARCH_H
#define OX_POLYGON_INTERNAL_SEARCH_CENTER_SEARCH_H

#include <memory>
#include <queue>
#include <vector>

#include <ox/core/ox_list.h>
#include <ox/geometry/ox_2dvector.h>
#include <ox/geometry/ox_3dvector.h>
#include <ox/polygon/internal/ox_polygon_data.h>
#include <ox/polygon/internal/search/float_progression.h>
#include <ox/polygon/internal/search/outline_distance.h>

namespace ox::internal {

/// Finds the candidate of the best centre without visiting all of them: branch and bound over
/// blocks of the candidate grids, after polylabel (V. Agafonkin, 2016).
///
/// What is searched: four grids over the bounds of the contours, with steps of 0.5 to 0.0625. The
/// winner is the candidate inside the region with the largest score (distance to the outline
/// minus penalty, `score`), if that is not negative; of equal ones the last in the order of grid,
/// u and v.
///
/// How: a block of candidates has an upper bound for their scores, the exact distance of its
/// centre plus its radius and an allowance for rounding. The block with the greatest bound is
/// taken first and cut in two, until few candidates are left; those are scored one by one. The
/// search ends when no bound reaches the best score (or reaches it only before the winner's
/// place in the order). A block that keeps clear of the outline lies inside or outside as a
/// whole, so that one containment test answers for all its candidates. Every block keeps only
/// the sides that can be nearest to its candidates.
///
/// Cost: some hundred blocks for common shapes of any size, each O(n) at worst. Where the scores
/// are level along a curve (a ring of many sides), as many blocks as candidates lie along it.
class center_search {
public:
    /// Prepares the search for the contours of `polygon`, which must have been merged and have
    /// vertices.
    explicit center_search(const ox_polygon_data& polygon);

    /// Sets `center` to the winner and returns true, or returns false when no candidate lies
    /// inside with a score of 0 or more, or when the coordinates are not finite or too large.
    bool find(ox_3dvector& center);

private:
    struct grid {
        float_progression u;
        float_progression v;
    };

    /// The place of a candidate in the order in which equal scores supersede each other.
    struct place {
        int grid;
        int u;
        int v;
        bool operator<(const place& other) const;
    };

    /// The candidates [u_begin, u_end) x [v_begin, v_end) of a grid.
    struct block {
        int grid;
        int u_begin, u_end;
        int v_begin, v_end;
        bool inside;  ///< all of them are known to lie in the region
        double bound; ///< no candidate scores more
        std::shared_ptr<const outline_distance::side_indices> near_sides;

        place last() const { return {grid, u_end - 1, v_end - 1}; }
    };

    struct by_bound {
        bool operator()(const block& a, const block& b) const;
    };

    bool prepare_frame();
    void prepare_grids();
    ox_3dvector world(const ox_2dvector& candidate) const;
    bool contains(const ox_2dvector& candidate) const;
    exact_point tested_point(const exact_point& candidate) const;
    double clearance(const block& b, const exact_point& centre, double distance) const;
    double score_bound(const exact_point& centre, double radius, double distance) const;
    float score(const ox_2dvector& candidate, const outline_distance::side_indices& sides) const;
    void consider(block b);
    void split(const block& b);
    void evaluate(const block& b);
    bool may_win(const block& b) const;

    const ox_polygon_data& polygon;
    ox_list<ox_2dvector> vertices; ///< of the contours, in the frame
    ox_2dvector low;               ///< of the bounds
    ox_2dvector high;
    ox_2dvector middle;
    outline_distance outline;
    outline_distance::side_indices all_sides;

    // A candidate is tested for containment where the frame's axes bring it back to; that place
    // is the candidate itself up to rounding, unless a transformation scaled the axes.
    double frame_uu = 1.0, frame_uv = 0.0, frame_vv = 1.0;
    double frame_scale = 1.0;
    bool frame_is_orthonormal = true;
    double containment_error = 0.0;

    std::vector<grid> grids;
    std::priority_queue<block, std::vector<block>, by_bound> open;
    float best_score = 0.0f;
    place best = {-1, 0, 0};
};

} // namespace ox::internal

#endif
