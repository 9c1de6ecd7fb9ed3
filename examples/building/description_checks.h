#ifndef OX_EXAMPLES_BUILDING_DESCRIPTION_CHECKS_H
#define OX_EXAMPLES_BUILDING_DESCRIPTION_CHECKS_H

#include <examples/building/description.h>

namespace building {

/// Refuses a description whose records do not fit together: throws `description_error` with the
/// line of the record in `file`.
void check_description(const description& d, const std::string& file);

} // namespace building

#endif
