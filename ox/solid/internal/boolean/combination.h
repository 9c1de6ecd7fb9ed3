#ifndef OX_SOLID_INTERNAL_BOOLEAN_COMBINATION_H
#define OX_SOLID_INTERNAL_BOOLEAN_COMBINATION_H

#include <ox/internal/boolean_operation.h>
#include <ox/solid/internal/ox_solid_state.h>

namespace ox::internal {

/// Replaces the solid behind `target` by its union, difference or intersection with the one behind
/// `other`, which must be another solid. Leaves the target exactly as it was when no face changes,
/// and when an allocation fails.
void combine(ox_solid_state& target, ox_solid_state& other, boolean_operation operation);

} // namespace ox::internal

#endif
