// How contours are combined:
//
//  1. A single contour that climbs and falls once is its own union.
//  2. Contours that keep clear of each other are kept whole or dropped.
//  3. A few contours along the axes of the frame that lie as others did before get their answer.
//  4. The clipping library is asked, and its answer to the third kind is remembered.

#include <ox/polygon/internal/clipping/contour_combination.h>

#include <utility>
#include <vector>

#include <ox/polygon/internal/answer_counts.h>
#include <ox/polygon/internal/clipping/clipping_library.h>
#include <ox/polygon/internal/clipping/contour_lists.h>
#include <ox/polygon/internal/clipping/contour_tree.h>
#include <ox/polygon/internal/clipping/monotone_contour.h>
#include <ox/polygon/internal/clipping/rectilinear_pattern.h>
#include <ox/polygon/internal/clipping/separate_contours.h>

namespace ox::internal {
namespace {

/// Contours that are not known to keep clear of each other.
void combine_crossing_contours(ox_polygon_data& polygon, ClipperLib::ClipType operation,
                               const grid_contours& subjects, const grid_contours& clips) {
    const rectilinear_arrangement arrangement(operation, subjects, clips);
    const bool can_be_known = arrangement.is_known_by_ranks();
    const rectilinear_pattern* known =
        can_be_known ? find_rectilinear_pattern(arrangement) : nullptr;
    if (known != nullptr) {
        known->apply(polygon, arrangement).move_to(polygon);
        ++answers_of(answered_by::known_contours);
        return;
    }
    ClipperLib::PolyTree tree;
    clip_contours(operation, subjects, clips, tree);
    if (can_be_known) {
        keep_rectilinear_pattern(arrangement, tree);
    }
    rebuild_contours(polygon, tree); // last: no memory for the pattern must not leave half a result
    ++answers_of(answered_by::clipping_library);
}

} // namespace

void combine_contours(ox_polygon_data& polygon, ClipperLib::ClipType operation,
                      const grid_contours& subjects, const grid_contours& clips) {
    contour_lists made;
    if (combine_separate_contours(polygon, operation, subjects, clips, made)) {
        made.move_to(polygon);
        ++answers_of(answered_by::separate_contours);
        return;
    }
    combine_crossing_contours(polygon, operation, subjects, clips);
}

void unite_single_contour(ox_polygon_data& polygon, const grid_path& path) {
    grid_path corners = path;
    monotone_contour contour;
    if (!read_monotone_contour(corners.data(), corners.size(), contour)) {
        grid_contours subjects;
        subjects.append(path);
        combine_crossing_contours(polygon, ClipperLib::ctUnion, subjects, grid_contours());
        return;
    }
    contour_lists made(contour.corner_count(), std::move(polygon.pending_vertices),
                       std::move(polygon.pending_sizes));
    made.append(polygon, contour, false, -1);
    made.move_to(polygon);
    ++answers_of(answered_by::single_contour);
}

void rebuild_contours(ox_polygon_data& polygon, const ClipperLib::PolyTree& tree) {
    const std::vector<tree_contour> contours = contours_of(tree);
    std::size_t vertices = 0;
    for (const tree_contour& contour : contours) {
        vertices += contour.path->size();
    }
    contour_lists made(contours.size(), vertices);
    for (const tree_contour& contour : contours) {
        made.begin_contour(contour.path->size(), contour.hole, contour.parent);
        for (const ClipperLib::IntPoint& p : *contour.path) {
            made.append(polygon, p);
        }
    }
    made.move_to(polygon);
}

} // namespace ox::internal
