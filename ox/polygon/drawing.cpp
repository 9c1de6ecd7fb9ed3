#include <ox/polygon/ox_polygon.h>

#include <ox/internal/contour_view.h>
#include <ox/internal/opengl_headers.h>

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

static void draw_vertices(const ox_list<ox_3dvector>& vertices, int first, int end) {
    for (int i = first; i < end; ++i) {
        glVertex3fv(&vertices.at(i).x);
    }
}

void ox_polygon::draw_opengl_contour(bool with_points) {
    const ox_list<ox_3dvector>& vertices = get_contour_vertices();
    if (vertices.size() == 0) {
        return;
    }
    for (const internal::contour_view contour : internal::contour_views(get_contour_sizes())) {
        glBegin(GL_LINE_STRIP);
        draw_vertices(vertices, contour.first, contour.end);
        glVertex3fv(&vertices.at(contour.first).x);
        glEnd();
    }
    if (with_points) {
        glPointSize(contour_point_size);
        glBegin(GL_POINTS);
        draw_vertices(vertices, 0, vertices.size());
        glEnd();
    }
}

} // namespace ox
