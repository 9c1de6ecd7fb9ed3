#ifndef OX_SOLID_INTERNAL_BOOLEAN_COMBINATION_H
#define OX_SOLID_INTERNAL_BOOLEAN_COMBINATION_H

#include <ox/solid/internal/ox_solid_state.h>

namespace ox {

/// The boolean operation that `combine` performs.
enum class solid_operation { unite, substract, intersect };

/// Replaces the solid behind `target` by its union, difference or intersection with the one behind
/// `other`, which must be another solid. Leaves the target exactly as it was when no face changes.
void combine(ox_solid_state& target, ox_solid_state& other, solid_operation operation);

} // namespace ox

#endif
