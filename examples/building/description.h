#ifndef OX_EXAMPLES_BUILDING_DESCRIPTION_H
#define OX_EXAMPLES_BUILDING_DESCRIPTION_H

#include <examples/support/description_file.h>
#include <examples/support/plan_point.h>

#include <cstddef>
#include <string>
#include <vector>

namespace building {

using ox_examples::description_error;
using ox_examples::plan_contour;
using ox_examples::plan_point;

/// A storey: its position in the list is its number, `level` the height of its floor.
struct storey {
    double level = 0;
};

/// An upright wall: a box along the axis `from`-`to`, standing on the floor of its storey.
struct wall {
    std::string name;
    std::size_t storey = 0;
    plan_point from;
    plan_point to;
    double thickness = 0;
    double height = 0;
    int line = 0;
};

enum class opening_shape {
    rectangle,
    arch, ///< upright sides under half an ellipse, whose rise is half its width where it fits
    round ///< an ellipse
};

/// A hole through a wall. `distance` runs along the axis from the wall's `from`, and `sill` up from
/// the floor: 0 makes a door. `width` and `height` are those of the rectangle around its shape.
struct opening {
    std::string name;
    std::size_t wall = 0;
    double distance = 0;
    double sill = 0;
    double width = 0;
    double height = 0;
    opening_shape shape = opening_shape::rectangle;
    int line = 0;
};

/// A horizontal slab whose top lies at `level`, with holes for stairs.
struct slab {
    std::string name;
    double level = 0;
    double thickness = 0;
    plan_contour outline;
    std::vector<plan_contour> holes;
    int line = 0;
};

/// An inclined plane, the upper side of a roof. It passes through `from` and `to` at `level` and
/// rises by `rise` metres with each metre to the left of that line.
struct slope {
    plan_point from;
    plan_point to;
    double level = 0;
    double rise = 0;
};

/// A roof: what lies above `level`, inside the convex outline, and no deeper than `thickness` below
/// the lowest of its slopes. The walls of its storey end at its underside.
struct roof {
    std::string name;
    std::size_t storey = 0;
    double level = 0;
    double thickness = 0;
    plan_contour outline;
    std::vector<slope> slopes;
    int line = 0;
};

/// A whole building as its text file describes it; README.md documents the file.
struct description {
    std::string name;
    std::vector<storey> storeys;
    std::vector<wall> walls;
    std::vector<opening> openings;
    std::vector<slab> slabs;
    std::vector<roof> roofs;
};

/// Reads and checks the description at `path`. Throws `description_error` at the first thing that
/// is wrong; line 0 stands for the file as a whole.
description read_description(const std::string& path);

} // namespace building

#endif
