#ifndef OX_EXAMPLES_SLAB_DESCRIPTION_H
#define OX_EXAMPLES_SLAB_DESCRIPTION_H

#include <examples/support/description_file.h>
#include <examples/support/plan_point.h>

#include <string>
#include <vector>

namespace slab {

using ox_examples::description_error;
using ox_examples::plan_contour;
using ox_examples::plan_point;

/// The outer contour of the slab or a hole in it.
struct contour {
    plan_contour points;
    int line = 0; ///< of the file
};

/// A beam under the slab.
struct beam {
    std::string name;
    plan_point from;
    plan_point to;

    double length() const;
};

/// A direction in which the slab carries its load to the beams that it crosses.
struct span {
    std::string name;
    plan_point direction; ///< of any length but 0
    double share = 0;     ///< of the weight, from 0 to 1
};

/// A floor slab as its text file describes it (README.md documents the file), except that places
/// are counted from the first corner of the outline: single precision is finest near the origin.
struct description {
    std::string name;
    double weight = 0; ///< kN/m2
    contour outline;
    std::vector<contour> holes;
    std::vector<span> spans; ///< one or two; their shares sum to 1
    std::vector<beam> beams;
};

/// Reads and checks the description at `path`. Throws `description_error` at the first thing that
/// is wrong.
description read_description(const std::string& path);

} // namespace slab

#endif
