#ifndef OX_TESTS_REFERENCE_PLANE_FRAME_H
#define OX_TESTS_REFERENCE_PLANE_FRAME_H

#include <vector>

#include <ox/geometry/ox_2dvector.h>
#include <ox/polygon/ox_polygon.h>

namespace reference {

/// The 2-D frame of a polygon, found through its public face: the axes are those that
/// `build_axis` makes of the normal.
struct plane_frame {
    ox::ox_3dvector point;
    ox::ox_3dvector dx;
    ox::ox_3dvector dy;

    explicit plane_frame(ox::ox_polygon& polygon) : point(polygon.get_point()) {
        ox::ox_3dvector normal = polygon.get_normal();
        normal.build_axis(dx, dy);
    }

    ox::ox_2dvector coordinates(const ox::ox_3dvector& p) const {
        return ox::ox_2dvector(ox::ox_dot(p - point, dx), ox::ox_dot(p - point, dy));
    }
};

/// Whether `plane_frame` has the very bits of the polygon's own frame: normalising the stored
/// normal again must not change it.
inline bool has_reproducible_frame(const ox::ox_polygon& polygon) {
    ox::ox_3dvector normal = polygon.get_normal();
    normal.normalize();
    return normal == polygon.get_normal();
}

/// The contours of a polygon in a frame.
inline std::vector<std::vector<ox::ox_2dvector>> plane_contours(ox::ox_polygon& polygon,
                                                                const plane_frame& frame) {
    const ox::ox_list<ox::ox_3dvector>& vertices = polygon.get_contour_vertices();
    const ox::ox_list<unsigned int>& sizes = polygon.get_contour_sizes();
    std::vector<std::vector<ox::ox_2dvector>> contours;
    int next = 0;
    for (int c = 0; c < sizes.size(); ++c) {
        contours.emplace_back();
        for (unsigned int i = 0; i < sizes[c]; ++i) {
            contours.back().push_back(frame.coordinates(vertices[next++]));
        }
    }
    return contours;
}

} // namespace reference

#endif
