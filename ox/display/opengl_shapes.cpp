#include <ox/display/ox_opengl_shapes.h>

#include <algorithm>

#include <ox/display/internal/opengl_shapes_data.h>
#include <ox/internal/opengl_headers.h>

namespace ox {

ox_opengl_shapes::ox_opengl_shapes() : data(std::make_unique<ox_opengl_shapes_data>()) {}

ox_opengl_shapes::ox_opengl_shapes(const ox_opengl_shapes& source)
    : data(std::make_unique<ox_opengl_shapes_data>(*source.data)) {}

ox_opengl_shapes& ox_opengl_shapes::operator=(const ox_opengl_shapes& source) {
    if (this != &source) {
        data = std::make_unique<ox_opengl_shapes_data>(*source.data);
    }
    return *this;
}

ox_opengl_shapes::ox_opengl_shapes(ox_opengl_shapes&& other) : ox_opengl_shapes() {
    swap(other);
}

ox_opengl_shapes& ox_opengl_shapes::operator=(ox_opengl_shapes&& other) noexcept {
    swap(other);
    return *this;
}

void ox_opengl_shapes::swap(ox_opengl_shapes& other) noexcept {
    data.swap(other.data);
}

ox_opengl_shapes::~ox_opengl_shapes() = default;

void ox_opengl_shapes::add_point(const ox_3dvector& position, const ox_color& color, int size) {
    oxos_point point;
    point.position = position;
    point.color = color;
    point.size = std::clamp(size, 0, opengl_size_classes - 1);
    data->points.push_right(point);
    data->size_marks[point.size] = true;
}

void ox_opengl_shapes::add_line(const ox_3dvector& a, const ox_3dvector& b, const ox_color& color_a,
                                const ox_color& color_b, int width) {
    oxos_line line;
    line.first_end = a;
    line.second_end = b;
    line.first_color = color_a;
    line.second_color = color_b;
    line.width = width;
    data->lines.push_right(line);
    if (width >= 0 && width < opengl_size_classes) {
        data->width_marks[width] = true;
    }
}

void ox_opengl_shapes::add_line(const ox_3dvector& a, const ox_3dvector& b, const ox_color& color,
                                int width) {
    add_line(a, b, color, color, width);
}

void ox_opengl_shapes::clear() {
    data->points.clear();
    data->lines.clear();
    std::fill_n(data->size_marks, opengl_size_classes, false);
    std::fill_n(data->width_marks, opengl_size_classes, false);
}

static void draw_points_of_size(const ox_list<oxos_point>& points, int size) {
    glPointSize(static_cast<float>(size));
    glBegin(GL_POINTS);
    for (const oxos_point& point : points) {
        if (point.size == size) {
            glColor4fv(&point.color.r);
            glVertex3fv(&point.position.x);
        }
    }
    glEnd();
}

static void draw_lines_of_width(const ox_list<oxos_line>& lines, int width) {
    glLineWidth(static_cast<float>(width));
    glBegin(GL_LINES);
    for (const oxos_line& line : lines) {
        if (line.width == width) {
            glColor4fv(&line.first_color.r);
            glVertex3fv(&line.first_end.x);
            glColor4fv(&line.second_color.r);
            glVertex3fv(&line.second_end.x);
        }
    }
    glEnd();
}

void ox_opengl_shapes::draw_opengl() const {
    for (int size = 0; size < opengl_size_classes; ++size) {
        if (data->size_marks[size]) {
            draw_points_of_size(data->points, size);
        }
    }
    for (int width = 0; width < opengl_size_classes; ++width) {
        if (data->width_marks[width]) {
            draw_lines_of_width(data->lines, width);
        }
    }
}

} // namespace ox
