#ifndef OX_TESTS_REFERENCE_PLAIN_REGION_H
#define OX_TESTS_REFERENCE_PLAIN_REGION_H

#include <vector>

#include <clipper.hpp>

#include <ox/geometry/ox_3dvector.h>
#include <ox/polygon/ox_polygon.h>

namespace reference {

using contour = std::vector<ox::ox_3dvector>;

/// One contour of a merged region.
struct plain_contour {
    contour vertices;
    bool outer = true;
    int parent = -1;
};

/// The behaviour of `ox_polygon` written down in the simplest way: every step in its own loop, no
/// short cut, only finite input that fits the integer grid.
struct plain_region {
    bool plane_defined = false;
    ox::ox_3dvector point;
    ox::ox_3dvector normal;
    ox::ox_3dvector dx;
    ox::ox_3dvector dy;
    std::vector<plain_contour> contours;

    void set_plane(const ox::ox_3dvector& new_point, const ox::ox_3dvector& new_normal);
    void merge(const std::vector<contour>& pending);
    void combine(ClipperLib::ClipType operation, const plain_region& other);
    void offset(float distance, ClipperLib::JoinType join);
};

/// The triangles of a region and their area.
struct plain_triangles {
    std::vector<ox::ox_3dvector> vertices;
    std::vector<unsigned int> indices;
    float area = 0.0f;
};

plain_triangles tessellate(const plain_region& region);

} // namespace reference

#endif
