#ifndef OX_EXAMPLES_BUILDING_MEASURES_H
#define OX_EXAMPLES_BUILDING_MEASURES_H

#include <ox/solid/ox_solid.h>

namespace building {

/// What the triangles of a solid say about it.
struct measures {
    int faces = 0;
    int triangles = 0;
    double area = 0;
    double volume = 0;
    double gap = 0; ///< length of the sum of all area vectors: 0 for a closed surface
};

/// Measures the tessellation in double precision (volume: signed tetrahedra to one point).
measures measure(ox::ox_solid& solid);

/// Sums up, element by element.
measures& operator+=(measures& sum, const measures& part);

/// Metres. Faces keep their corners on a grid of a tenth of a millimetre; a surface that is a
/// fiftieth of that off in the mean is taken for exact.
constexpr double surface_tolerance = 2e-5;

/// Whether the surface is closed and encloses `expected_volume`: both errors, spread over the whole
/// surface, must stay within `surface_tolerance`.
bool is_sound(const measures& m, double expected_volume);

} // namespace building

#endif
