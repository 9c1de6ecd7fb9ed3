#ifndef OX_TESTS_REFERENCE_PLANE_SECTION_H
#define OX_TESTS_REFERENCE_PLANE_SECTION_H

#include <memory>
#include <vector>

#include <ox/solid/ox_solid.h>

namespace reference {

/// A working contour of a section.
struct chain {
    std::vector<ox::ox_3dvector> points;
    bool closed = false;
};

/// Plain version of the joining of segments into chains.
void chain_segments(std::vector<chain>& chains, float tolerance);

/// Plain version of the cross-section of a solid by a plane, as one polygon; none when the plane
/// meets no face.
std::unique_ptr<ox::ox_polygon> plane_section(ox::ox_solid& solid, const ox::ox_3dvector& point,
                                              const ox::ox_3dvector& normal, float tolerance);

/// Plain version of the section of a list of faces, as separate polygons.
std::vector<std::unique_ptr<ox::ox_polygon>>
section_pieces(const ox::ox_list<ox::ox_polygon*>& faces, const ox::ox_3dvector& point,
               const ox::ox_3dvector& normal);

} // namespace reference

#endif
