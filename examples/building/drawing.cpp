#include <examples/building/drawing.h>

#include <examples/support/offscreen_context.h>

#include <GL/gl.h>
#include <GL/glu.h>

#include <algorithm>
#include <cmath>

namespace building {

namespace {

/// Pixels, and samples per pixel.
constexpr int picture_width = 1600;
constexpr int picture_height = 1000;
constexpr int samples = 4;
constexpr double aspect = double(picture_width) / picture_height;

using colour = float[4];

const colour sky = {0.97f, 0.985f, 1.0f, 1};
const colour ground = {0.84f, 0.86f, 0.80f, 1};
const colour edge = {0.16f, 0.15f, 0.15f, 1};
const colour paper = {1, 1, 1, 1};
const colour floor_fill = {0.95f, 0.94f, 0.90f, 1};
const colour sill_fill = {0.80f, 0.84f, 0.88f, 1};
const colour wall_fill = {0.22f, 0.22f, 0.24f, 1};
const colour hidden_line = {0.55f, 0.52f, 0.48f, 1};

const float* colour_of(element_kind kind) {
    static const colour walls = {1.0f, 0.97f, 0.90f, 1};
    static const colour slab = {0.68f, 0.68f, 0.70f, 1};
    static const colour roof = {0.66f, 0.29f, 0.21f, 1};
    return kind == element_kind::walls ? walls : kind == element_kind::slab ? slab : roof;
}

void begin_picture(const colour& background) {
    glEnable(GL_MULTISAMPLE);
    glClearColor(background[0], background[1], background[2], 1);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
}

/// Looks at the box from above its front left corner, so that the sphere around it fits.
void set_perspective(const ox::ox_3dvector& centre, double radius) {
    constexpr double view_angle = 0.5; // radians, from top to bottom
    const double distance = 0.9 * radius / std::sin(view_angle / 2);
    const double near_plane = 0.1 * distance;
    const double top = near_plane * std::tan(view_angle / 2);
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    glFrustum(-top * aspect, top * aspect, -top, top, near_plane, distance + 4 * radius);
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
    const double x = centre.x;
    const double y = centre.y;
    const double z = centre.z - 0.12 * radius; // leaves less sky
    gluLookAt(x - 0.54 * distance, y - 0.76 * distance, z + 0.36 * distance, x, y, z, 0, 0, 1);
}

/// A sun behind the viewer, and light from the sky everywhere.
void switch_on_light() {
    const float direction[] = {-0.30f, -0.75f, 0.70f, 0}; // w 0: infinitely far
    const float sun[] = {0.60f, 0.59f, 0.55f, 1};
    const float ambient[] = {0.52f, 0.53f, 0.55f, 1};
    glEnable(GL_LIGHTING);
    glEnable(GL_LIGHT0);
    glLightfv(GL_LIGHT0, GL_POSITION, direction);
    glLightfv(GL_LIGHT0, GL_DIFFUSE, sun);
    glLightModelfv(GL_LIGHT_MODEL_AMBIENT, ambient);
    glEnable(GL_COLOR_MATERIAL);
    glColorMaterial(GL_FRONT_AND_BACK, GL_AMBIENT_AND_DIFFUSE);
}

/// A round base plate under the building.
void draw_ground(const ox::ox_3dvector& centre, float level, double radius) {
    constexpr int nb_corners = 96;
    ox::ox_list<ox::ox_3dvector> circle;
    for (int i = 0; i < nb_corners; ++i) {
        const double angle = 2 * 3.14159265358979 * i / nb_corners;
        circle.push_right({centre.x + static_cast<float>(radius * std::cos(angle)),
                           centre.y + static_cast<float>(radius * std::sin(angle)), level});
    }
    ox::ox_polygon plate(ox::ox_3dvector(centre.x, centre.y, level), ox::ox_3dvector(0, 0, 1));
    plate.add_contour(circle);
    glColor4fv(ground);
    plate.draw_opengl();
}

void fill(polygons& list, const colour& c) {
    glColor4fv(c);
    for (const auto& polygon : list) {
        polygon->draw_opengl();
    }
}

void outline(polygons& list, const colour& c, float width) {
    glLineWidth(width);
    glColor4fv(c);
    for (const auto& polygon : list) {
        polygon->draw_opengl_contour(false);
    }
}

/// Looks straight down on the box with a margin all round.
void set_plan_view(const ox::ox_box& bounds) {
    constexpr double margin = 1.08;
    constexpr double depth = 10000; // metres: every level is in view
    const double x = bounds.origin.x + bounds.size.x / 2;
    const double y = bounds.origin.y + bounds.size.y / 2;
    const double half_height = margin * std::max(bounds.size.y / 2.0, bounds.size.x / 2 / aspect);
    const double half_width = half_height * aspect;
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    glOrtho(x - half_width, x + half_width, y - half_height, y + half_height, -depth, depth);
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
}

} // namespace

ox::ox_box bounding_box(std::vector<element>& elements) {
    ox::ox_box box;
    for (element& e : elements) {
        box.enlarge(e.solid.get_bounding_box());
    }
    return box;
}

void draw_scene(std::vector<element>& elements) {
    const ox::ox_box box = bounding_box(elements);
    const ox::ox_3dvector centre = box.origin + box.size * 0.5f;
    begin_picture(sky);
    switch_on_light();
    glEnable(GL_DEPTH_TEST);
    glEnable(GL_POLYGON_OFFSET_FILL); // leaves the edges in front of their faces
    glPolygonOffset(1, 1);

    draw_ground(centre, box.origin.z, 0.98 * box.size.size() / 2);
    for (element& e : elements) {
        glColor4fv(colour_of(e.kind));
        e.solid.draw_opengl();
    }
    glDisable(GL_LIGHTING);
    glLineWidth(1.2f);
    glColor4fv(edge);
    for (element& e : elements) {
        e.solid.draw_opengl_contour();
    }
}

ox_examples::image draw_view(std::vector<element>& elements) {
    const ox::ox_box box = bounding_box(elements);
    ox_examples::offscreen_context context(picture_width, picture_height, samples);
    set_perspective(box.origin + box.size * 0.5f, box.size.size() / 2);
    draw_scene(elements);
    return context.read_pixels();
}

ox_examples::image draw_plan(floor_plan& plan, const ox::ox_box& bounds) {
    ox_examples::offscreen_context context(picture_width, picture_height, samples);
    begin_picture(paper);
    set_plan_view(bounds);
    fill(plan.floor, floor_fill);
    glEnable(GL_LINE_STIPPLE); // what lies above the cut is dashed
    glLineStipple(3, 0x3333);
    outline(plan.overhead, hidden_line, 1);
    glDisable(GL_LINE_STIPPLE);
    outline(plan.floor, edge, 1);
    fill(plan.foot, sill_fill);
    outline(plan.foot, edge, 1);
    outline(plan.footprint, edge, 1);
    fill(plan.cut, wall_fill);
    outline(plan.cut, edge, 2);
    return context.read_pixels();
}

} // namespace building
