#ifndef OX_EXAMPLES_GALLERY_SHAPES_H
#define OX_EXAMPLES_GALLERY_SHAPES_H

#include <ox/core/ox_list.h>
#include <ox/polygon/ox_polygon.h>
#include <ox/solid/ox_solid.h>

#include <initializer_list>
#include <string>

namespace gallery {

using contour = ox::ox_list<ox::ox_3dvector>;

/// The contour of pairs x, y in the plane z = 0.
contour flat(std::initializer_list<float> coordinates);

contour rectangle(float x0, float y0, float x1, float y1);

/// Counter-clockwise.
contour regular(float x, float y, float radius, int corners, float turn = 0.0f);

/// The same places in the other direction.
contour reversed(const contour& c);

ox::ox_polygon region(std::initializer_list<contour> contours);

ox::ox_solid box(float x, float y, float z, float dx, float dy, float dz);

/// The prism over a contour that runs counter-clockwise seen from above.
ox::ox_solid prism(const contour& base, float z, float height);

/// A cylinder about the line from a point in a direction.
ox::ox_solid cylinder(const ox::ox_3dvector& from, const ox::ox_3dvector& direction, float radius,
                      int sides);

/// A number with so many decimals.
std::string number(double value, int decimals);

} // namespace gallery

#endif
