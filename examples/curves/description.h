#ifndef OX_EXAMPLES_CURVES_DESCRIPTION_H
#define OX_EXAMPLES_CURVES_DESCRIPTION_H

#include <examples/support/description_file.h>
#include <examples/support/plan_point.h>

#include <string>
#include <vector>

namespace curves {

using ox_examples::description_error;
using ox_examples::plan_point;

/// The points that the curves follow, x growing from point to point.
struct description {
    std::string name;
    std::vector<plan_point> points;
};

/// Reads and checks the description at `path`. Throws `description_error` at the first thing that
/// is wrong.
description read_description(const std::string& path);

} // namespace curves

#endif
