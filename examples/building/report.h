#ifndef OX_EXAMPLES_BUILDING_REPORT_H
#define OX_EXAMPLES_BUILDING_REPORT_H

#include <examples/building/assembly.h>

namespace building {

/// Prints a table of the elements and their volumes against the formulas on standard output.
/// Returns whether every element is closed and has the volume it must have.
bool report(const std::string& name, std::vector<element>& elements);

} // namespace building

#endif
