#include <ox/solid/internal/csg/exact/side_planes.h>

#include <ox/solid/internal/csg/exact/item.h>

namespace ox::internal::csg::exact {

int side_planes::plane_of(int side, int axis) {
    if (count_of(made) <= side) {
        made.resize(static_cast<std::size_t>(complex.edges.count()), {-1, -1, -1});
    }
    int& index = item(item(made, side), axis);
    if (index < 0) {
        const edge& along = complex.edges[side];
        index = count_of(complex.points.planes);
        complex.points.planes.push_back(
            plane_along(item(complex.grid, along.low), item(complex.grid, along.high), axis));
    }
    return index;
}

} // namespace ox::internal::csg::exact
