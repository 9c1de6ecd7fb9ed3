#include <ox/internal/opengl_headers.h>
#include <ox/polygon/ox_polygon.h>

namespace ox {

/// Size in pixels of the points that mark the vertices of the contours.
constexpr float contour_point_size = 5.0f;

void ox_polygon::draw_opengl() {
    const ox_list<ox_3dvector>& vertices = get_tesselation_vertices();
    const ox_list<unsigned int>& triangles = get_tesselation_triangles();
    if (triangles.size() == 0) {
        return;
    }
    glNormal3fv(&get_normal().x);
    glBegin(GL_TRIANGLES);
    for (const unsigned int index : triangles) {
        glVertex3fv(&vertices.at(static_cast<int>(index)).x);
    }
    glEnd();
}

static void draw_vertices(const ox_list<ox_3dvector>& vertices, int first, int count) {
    for (int i = 0; i < count; ++i) {
        glVertex3fv(&vertices.at(first + i).x);
    }
}

void ox_polygon::draw_opengl_contour(bool with_points) {
    const ox_list<ox_3dvector>& vertices = get_contour_vertices();
    if (vertices.size() == 0) {
        return;
    }
    int first = 0;
    for (const unsigned int contour_size : get_contour_sizes()) {
        const int count = static_cast<int>(contour_size);
        glBegin(GL_LINE_STRIP);
        draw_vertices(vertices, first, count);
        glVertex3fv(&vertices.at(first).x);
        glEnd();
        first += count;
    }
    if (with_points) {
        glPointSize(contour_point_size);
        glBegin(GL_POINTS);
        draw_vertices(vertices, 0, vertices.size());
        glEnd();
    }
}

} // namespace ox
