#ifndef OX_EXAMPLES_BUILDING_DRAWING_H
#define OX_EXAMPLES_BUILDING_DRAWING_H

#include <examples/building/floor_plan.h>
#include <examples/support/image.h>

namespace building {

/// Draws the ground, the elements and their edges, lit by a sun, in the current OpenGL context and
/// with its projection; the picture is cleared first.
void draw_scene(std::vector<element>& elements);

/// A shaded view of all elements from a raised corner.
ox_examples::image draw_view(std::vector<element>& elements);

/// A floor plan, north up, fitted to the picture. `bounds` is the ground that the building covers.
ox_examples::image draw_plan(floor_plan& plan, const ox::ox_box& bounds);

/// The box around all elements.
ox::ox_box bounding_box(std::vector<element>& elements);

} // namespace building

#endif
