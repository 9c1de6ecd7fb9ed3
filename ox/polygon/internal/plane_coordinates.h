#ifndef OX_POLYGON_INTERNAL_PLANE_COORDINATES_H
#define OX_POLYGON_INTERNAL_PLANE_COORDINATES_H

#include <ox/core/ox_list.h>
#include <ox/geometry/ox_2dvector.h>
#include <ox/geometry/ox_3dvector.h>
#include <ox/internal/vectors.h>
#include <ox/polygon/internal/ox_polygon_data.h>

namespace ox::internal {

/// The coordinates (u, v) of a point in the frame of a polygon, in single precision.
inline ox_2dvector plane_coordinates(const ox_polygon_data& polygon, const ox_3dvector& p) {
    const ox_3dvector from_origin = p - polygon.point;
    return ox_2dvector(ox_dot(from_origin, polygon.dx), ox_dot(from_origin, polygon.dy));
}

/// The coordinates of all contour vertices of a polygon, in their order.
inline ox_list<ox_2dvector> plane_coordinates(const ox_polygon_data& polygon) {
    const ox_list<ox_3dvector>& vertices = polygon.contour_vertices;
    ox_list<ox_2dvector> coordinates(vertices.size());
    for (int i = 0; i < vertices.size(); ++i) {
        coordinates[i] = plane_coordinates(polygon, vertices[i]);
    }
    return coordinates;
}

} // namespace ox::internal

#endif
