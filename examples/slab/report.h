#ifndef OX_EXAMPLES_SLAB_REPORT_H
#define OX_EXAMPLES_SLAB_REPORT_H

#include <examples/slab/sharing.h>

#include <string>

namespace slab {

/// Prints the table of the beams with its sum and the weight of the whole slab, and returns whether
/// the beams carry all of it: the two may differ by 1 %, which the lines of the sweep explain.
bool report(const description& d, const sharing& shares);

/// Writes the table of the beams to the file `path`. Throws `std::runtime_error` when it cannot.
void write_table(const std::string& path, const description& d, const sharing& shares);

} // namespace slab

#endif
