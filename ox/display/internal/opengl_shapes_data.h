#ifndef OX_DISPLAY_INTERNAL_OPENGL_SHAPES_DATA_H
#define OX_DISPLAY_INTERNAL_OPENGL_SHAPES_DATA_H

#include <ox/core/ox_list.h>
#include <ox/geometry/ox_3dvector.h>
#include <ox/geometry/ox_color.h>

namespace ox {

/// Point sizes and line widths are drawn for the classes 0 to 9 (pixels).
constexpr int opengl_size_classes = 10;

struct oxos_point {
    ox_3dvector position;
    ox_color color;
    int size = 0;
};

struct oxos_line {
    ox_3dvector first_end;
    ox_3dvector second_end;
    ox_color first_color;
    ox_color second_color;
    int width = 0;
};

/// Content of an ox_opengl_shapes. The marks tell which classes hold anything, so that drawing
/// passes over the empty ones.
struct ox_opengl_shapes_data {
    ox_list<oxos_point> points;
    ox_list<oxos_line> lines;
    bool size_marks[opengl_size_classes] = {};
    bool width_marks[opengl_size_classes] = {};
};

} // namespace ox

#endif
