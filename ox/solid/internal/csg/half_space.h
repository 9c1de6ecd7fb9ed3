#ifndef OX_SOLID_INTERNAL_CSG_HALF_SPACE_H
#define OX_SOLID_INTERNAL_CSG_HALF_SPACE_H

#include <vector>

#include <ox/solid/internal/csg/box_tree.h>
#include <ox/solid/internal/csg/shell.h>

namespace ox::internal::csg {

/// Appends a problem where the plane of a half-space cannot be used; true where it can.
bool check_half_space(const operand& given, int number, std::vector<ox_csg_problem>& problems);

/// The part of a half-space that counts: a box with one face in its plane, on the side that the
/// normal points to, which holds all of `extent` there; empty where there is nothing of it.
shell make_half_space(const operand& given, const grid_box& extent, const working_grid& grid);

} // namespace ox::internal::csg

#endif
