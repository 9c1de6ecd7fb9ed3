#include <ox/solid/internal/boolean/coplanar_merge.h>

#include <cmath>
#include <cstddef>

#include <ox/solid/internal/search/plane_index.h>

namespace ox::internal {

namespace {

/// The planes of the pieces. Merging leaves them as they are.
std::vector<face_plane> list_planes(const std::vector<kept_piece>& pieces, const operand& own) {
    std::vector<face_plane> planes;
    planes.reserve(pieces.size());
    for (const kept_piece& piece : pieces) {
        const ox_polygon& polygon = piece.get_polygon(own);
        planes.push_back({polygon.get_point(), polygon.get_normal()});
    }
    return planes;
}

bool are_coplanar(const face_plane& a, const face_plane& b, float tolerance) {
    const ox_3dvector difference = a.point - b.point;
    return a.normal.distance_to(b.normal) < tolerance &&
           std::fabs(ox_dot(difference, a.normal)) <= tolerance &&
           std::fabs(ox_dot(difference, b.normal)) <= tolerance;
}

/// Unites two pieces. False when they overlapped: the later one then stays what it was.
bool unite_pieces(kept_piece& piece, kept_piece& later, const operand& own) {
    ox_polygon& united = piece.make_changeable(own);
    ox_polygon& added = later.get_polygon(own);
    const int former_count =
        united.get_contour_vertices().size() + added.get_contour_vertices().size();
    united.unites(added);
    if (united.get_contour_vertices().size() > former_count) {
        return false;
    }
    later.mark_merged();
    return true;
}

} // namespace

void merge_coplanar_pieces(std::vector<kept_piece>& pieces, const operand& own, float tolerance,
                           const boolean_trace& trace) {
    const std::vector<face_plane> planes = list_planes(pieces, own);
    const plane_index index(planes, tolerance);
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        trace.print_progress("merge", static_cast<int>(i), static_cast<int>(pieces.size()));
        if (pieces[i].is_merged) {
            continue;
        }
        for (const std::size_t j : index.find_later(i)) {
            if (!pieces[j].is_merged && are_coplanar(planes[i], planes[j], tolerance) &&
                !unite_pieces(pieces[i], pieces[j], own)) {
                trace.print_divergence(static_cast<int>(i));
                break;
            }
        }
    }
}

} // namespace ox::internal
