#ifndef TESTS_SOLID_CSG_EXACT_ARRANGEMENT_LAWS_H
#define TESTS_SOLID_CSG_EXACT_ARRANGEMENT_LAWS_H

#include <random>
#include <string>

#include <ox/solid/internal/csg/arrangement.h>

namespace arrangement_laws {

using ox::internal::csg::arrangement_input;
using ox::internal::csg::arrangement_result;

/// The result of an arrangement that nobody ends.
arrangement_result arranged(const arrangement_input& input);

/// True if every directed edge of the pieces has as many opposites.
bool is_closed(const arrangement_result& result);

/// The signed volume that the pieces enclose.
double volume(const arrangement_result& result);

/// The volume of all triangles of one operand, signed.
double chain_volume(const arrangement_input& input, int operand);

/// The number of random points whose winding number about the result is not 1 where the operations
/// put them inside, or not 0 elsewhere. The points lie on no plane of a small input.
int misplaced_points(const arrangement_input& input, const arrangement_result& result,
                     std::mt19937& engine, int point_count);

/// A description of the input that a test can be made from.
std::string described(const arrangement_input& input);

} // namespace arrangement_laws

#endif
