#ifndef OX_TESTS_REFERENCE_COMBINE_H
#define OX_TESTS_REFERENCE_COMBINE_H

#include <string>

#include <ox/solid/ox_solid.h>

namespace reference {

/// Plain versions of the booleans of two different solids, with the default tolerance. They return
/// what the boolean of a verbose solid prints, and print nothing.
std::string unites(ox::ox_solid& solid, ox::ox_solid& other);
std::string substracts(ox::ox_solid& solid, ox::ox_solid& other);
std::string intersects(ox::ox_solid& solid, ox::ox_solid& other);

/// Plain version of `ox_solid::clip`.
void clip(ox::ox_solid& solid, const ox::ox_3dvector& point, const ox::ox_3dvector& normal);

} // namespace reference

#endif
