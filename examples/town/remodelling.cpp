#include <examples/town/remodelling.h>

namespace town {

namespace {

using ox::ox_3dvector;
using ox::ox_box;
using ox::ox_solid;

/// An upright block, turned about the vertical so that it is parallel to nothing. Its middle and
/// its extents are given in parts of the box.
ox_solid block(const ox_box& box, const ox_3dvector& middle, const ox_3dvector& extent) {
    const ox_3dvector along(0.8f, 0.6f, 0.0f);
    const ox_3dvector across(-0.6f, 0.8f, 0.0f);
    const ox_3dvector up(0.0f, 0.0f, 1.0f);
    const ox_3dvector a = along * (extent.x * box.size.x);
    const ox_3dvector b = across * (extent.y * box.size.y);
    const ox_3dvector c = up * (extent.z * box.size.z);
    const ox_3dvector at = box.origin + ox_3dvector(middle.x * box.size.x, middle.y * box.size.y,
                                                    middle.z * box.size.z);
    ox_solid made;
    made.brick(at - (a + b + c) * 0.5f, a, b, c);
    return made;
}

} // namespace

bool remodel(ox_solid& building, ox::ox_csg& csg) {
    const ox_box box = building.get_bounding_box();
    csg = ox::ox_csg(survey_tolerance);
    csg.unites(building);
    csg.unites(block(box, ox_3dvector(0.5f, 0.5f, 0.85f), ox_3dvector(0.25f, 0.25f, 0.4f)));
    csg.substracts(block(box, ox_3dvector(0.5f, 0.5f, 0.05f), ox_3dvector(0.5f, 0.5f, 0.3f)));
    const ox_3dvector top =
        box.origin + ox_3dvector(0.5f * box.size.x, 0.5f * box.size.y, box.size.z);
    csg.clips(top, ox_3dvector(0.3f, 0.1f, 1.0f));
    return csg.compute();
}

} // namespace town
