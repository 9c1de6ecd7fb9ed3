#ifndef OX_INTERNAL_BOOLEAN_OPERATION_H
#define OX_INTERNAL_BOOLEAN_OPERATION_H

namespace ox::internal {

/// What a boolean operation keeps of two regions or bodies.
enum class boolean_operation { unite, subtract, intersect };

} // namespace ox::internal

#endif
