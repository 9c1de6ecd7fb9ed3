#include <examples/mesh_tool/drawing.h>

#include <examples/mesh_tool/measures.h>
#include <examples/support/offscreen_context.h>

#include <GL/gl.h>
#include <GL/glu.h>

#include <algorithm>
#include <cmath>

namespace mesh_tool {

namespace {

/// Pixels, and samples per pixel.
constexpr int picture_width = 1200;
constexpr int picture_height = 900;
constexpr int samples = 4;

/// Triangles above which edges would cover the faces.
constexpr unsigned int max_triangles_with_edges = 20000;

/// Looks at the sphere around the origin from above its front left corner.
void set_perspective(double radius) {
    constexpr double view_angle = 0.5; // radians, from top to bottom
    constexpr double aspect = double(picture_width) / picture_height;
    const double distance = 1.02 * radius / std::sin(view_angle / 2);
    const double near_plane = 0.1 * distance;
    const double top = near_plane * std::tan(view_angle / 2);
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    glFrustum(-top * aspect, top * aspect, -top, top, near_plane, distance + 4 * radius);
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
    gluLookAt(-0.5 * distance, -0.7 * distance, 0.5 * distance, 0, 0, 0, 0, 0, 1);
}

/// Turns the mesh upright and moves it to the origin, where single precision is finest.
void place_mesh(const ox::ox_3dvector& centre, bool y_is_up) {
    if (y_is_up) {
        glRotated(90, 1, 0, 0);
    }
    glTranslated(-double{centre.x}, -double{centre.y}, -double{centre.z});
}

/// A light at the viewer that also reaches the backs of faces: scanned meshes are turned anyhow.
void switch_on_light() {
    const float direction[] = {0.3f, -0.6f, 0.75f, 0.f}; // w 0: infinitely far
    const float sun[] = {0.7f, 0.7f, 0.68f, 1.f};
    const float ambient[] = {0.3f, 0.31f, 0.33f, 1.f};
    glEnable(GL_LIGHTING);
    glEnable(GL_LIGHT0);
    glEnable(GL_NORMALIZE);
    glLightfv(GL_LIGHT0, GL_POSITION, direction);
    glLightfv(GL_LIGHT0, GL_DIFFUSE, sun);
    glLightModelfv(GL_LIGHT_MODEL_AMBIENT, ambient);
    glLightModeli(GL_LIGHT_MODEL_TWO_SIDE, 1);
    glEnable(GL_COLOR_MATERIAL);
    glColorMaterial(GL_FRONT_AND_BACK, GL_AMBIENT_AND_DIFFUSE);
}

void draw_faces(const ox::ox_triangle_set& mesh) {
    const unsigned int* const indices = mesh.get_triangles();
    glBegin(GL_TRIANGLES);
    for (unsigned int i = 0; i < 3 * mesh.get_nb_triangles(); i += 3) {
        const ox::ox_3dvector& a = mesh.get_vertices()[indices[i]];
        const ox::ox_3dvector& b = mesh.get_vertices()[indices[i + 1]];
        const ox::ox_3dvector& c = mesh.get_vertices()[indices[i + 2]];
        const ox::ox_3dvector normal = ox::ox_cross(b - a, c - a);
        glNormal3fv(&normal.x);
        glVertex3fv(&a.x);
        glVertex3fv(&b.x);
        glVertex3fv(&c.x);
    }
    glEnd();
}

} // namespace

ox_examples::image draw_view(const ox::ox_triangle_set& mesh, bool y_is_up) {
    const ox::ox_box box = bounding_box(mesh);
    const double radius = std::max(1e-6, box.size.size() / 2.0);

    ox_examples::offscreen_context context(picture_width, picture_height, samples);
    glEnable(GL_MULTISAMPLE);
    glClearColor(0.97f, 0.985f, 1.f, 1.f);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    set_perspective(radius);
    switch_on_light();
    place_mesh(box.origin + box.size * 0.5f, y_is_up);
    glEnable(GL_DEPTH_TEST);
    glEnable(GL_POLYGON_OFFSET_FILL); // leaves the edges in front of their faces
    glPolygonOffset(1.f, 1.f);
    glColor4f(0.86f, 0.80f, 0.68f, 1.f);
    draw_faces(mesh);
    if (mesh.get_nb_triangles() <= max_triangles_with_edges) {
        glDisable(GL_LIGHTING);
        glPolygonMode(GL_FRONT_AND_BACK, GL_LINE);
        glColor4f(0.25f, 0.24f, 0.24f, 1.f);
        draw_faces(mesh);
    }
    return context.read_pixels();
}

} // namespace mesh_tool
