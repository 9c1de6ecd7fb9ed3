#ifndef OX_EXAMPLES_BUILDING_PLAN_GEOMETRY_H
#define OX_EXAMPLES_BUILDING_PLAN_GEOMETRY_H

#include <examples/building/description.h>

namespace building {

/// Area of a contour, positive when it runs counter-clockwise (shoelace formula).
double signed_area(const plan_contour& contour);

/// Centroid of a contour that has an area.
plan_point centroid(const plan_contour& contour);

/// The part of a convex contour where `a x + b y + c >= 0`, empty when there is none (one step of
/// Sutherland and Hodgman's clipping).
plan_contour clipped(const plan_contour& convex, double a, double b, double c);

/// The region two convex contours share; both run counter-clockwise.
plan_contour intersection(const plan_contour& convex, const plan_contour& other);

} // namespace building

#endif
