#ifndef OX_INTERNAL_BOOLEAN_OPERATION_H
#define OX_INTERNAL_BOOLEAN_OPERATION_H

namespace ox::internal {

/// What a boolean keeps of two regions, or of two solids.
enum class boolean_operation { unite, subtract, intersect };

} // namespace ox::internal

#endif
