#include <examples/view/drawing.h>

#include <examples/view/arguments.h>
#include <examples/view/camera_matrices.h>
#include <examples/view/picking.h>

#include <examples/building/drawing.h>
#include <examples/support/flat_drawing.h>
#include <examples/support/offscreen_context.h>

#include <GL/gl.h>

#include <algorithm>
#include <cstdio>

namespace view {

namespace {

using ox_examples::colour;
using ox_examples::pixel_point;

constexpr int samples = 4; // per pixel

/// Pixels.
constexpr double ring_radius = 18;
constexpr double letter_height = 15;

/// Metres: half the side of the squares that show the planes.
constexpr float plane_size = 0.45f;

const colour snapped_colour = {0.85f, 0.05f, 0.10f};
const colour hidden_colour = {0.85f, 0.05f, 0.10f, 0.7f};
const colour picked_colour = {0.05f, 0.30f, 0.85f};
const colour paper = {1, 1, 1, 0.85f};
const colour ink = {0.13f, 0.13f, 0.15f};
const float plane_colours[3][4] = {
    {0.95f, 0.60f, 0.05f, 0.45f}, {0.10f, 0.65f, 0.30f, 0.45f}, {0.20f, 0.45f, 0.95f, 0.45f}};

/// A square in the plane through `centre` with the given unit normal.
void draw_square(const ox::ox_3dvector& centre, const ox::ox_3dvector& normal) {
    const ox::ox_3dvector other =
        normal.z * normal.z < 0.5f ? ox::ox_3dvector(0, 0, 1) : ox::ox_3dvector(1, 0, 0);
    ox::ox_3dvector u = ox::ox_cross(normal, other);
    u.normalize();
    u = u * plane_size;
    const ox::ox_3dvector v = ox::ox_cross(normal, u);
    glBegin(GL_QUADS);
    for (const ox::ox_3dvector& corner :
         {centre - u - v, centre + u - v, centre + u + v, centre - u + v}) {
        glVertex3f(corner.x, corner.y, corner.z);
    }
    glEnd();
}

void draw_planes(const marks& m) {
    glEnable(GL_BLEND);
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    glDepthMask(GL_FALSE);
    glDisable(GL_POLYGON_OFFSET_FILL); // in front of the face in the same plane
    for (std::size_t i = 0; i < m.steps.size() && i < 3; ++i) {
        glColor4fv(plane_colours[i]);
        draw_square(m.snapped, m.steps[i].normal);
    }
    glDepthMask(GL_TRUE);
}

std::string coordinates(const char* what, const ox::ox_3dvector& p) {
    char text[80];
    std::snprintf(text, sizeof text, "%s %.2f %.2f %.2f", what, double{p.x}, double{p.y},
                  double{p.z});
    return text;
}

/// A tag beside a mark, joined to it by a line; on the mark's other side where it would leave the
/// picture.
void draw_label(const std::string& text, const pixel_point& mark, const pixel_point& offset,
                const colour& c) {
    const double half_width = ox_examples::text_width(text, letter_height) / 2 + letter_height;
    const double y = mark.y + offset.y;
    const bool fits = y >= 2 * letter_height && y <= picture_height - 2 * letter_height;
    const pixel_point centre = {
        std::clamp(mark.x + offset.x, half_width, picture_width - half_width),
        fits ? y : mark.y - offset.y};
    ox_examples::set_colour(c);
    ox_examples::draw_line({mark, centre}, 1.5);
    ox_examples::draw_tag(text, centre, letter_height, ink, paper);
    ox_examples::set_colour(c);
}

/// Where the camera sees a point; below the picture when it lies behind the eye.
pixel_point place(ox::ox_camera& camera, const ox::ox_3dvector& p) {
    float x = 0;
    float y = -1000;
    camera.get_projection(p, x, y);
    return {double{x}, double{y}};
}

void draw_title(const std::string& text) {
    constexpr double height = 1.3 * letter_height;
    const double half_width = ox_examples::text_width(text, height) / 2;
    ox_examples::draw_tag(text, {40 + half_width, 50}, height, ink, paper);
}

void draw_marks(station& s, const marks& m, bool visible) {
    const pixel_point snapped = place(s.camera, m.snapped);
    const pixel_point picked = place(s.camera, m.picked);
    const colour& c = visible ? snapped_colour : hidden_colour;
    const std::string text = coordinates(visible ? "snapped" : "hidden: snapped", m.snapped);
    draw_label(text, snapped, {-150, -110}, c);
    ox_examples::draw_ring(snapped, ring_radius, 4);
    ox_examples::fill_disc(snapped, 4);
    if (visible) {
        draw_label(coordinates("picked", m.picked), picked, {150, 110}, picked_colour);
        ox_examples::fill_disc(picked, 4);
    }
}

} // namespace

ox_examples::image draw_station(std::vector<element>& elements, station& s, const marks& m) {
    const ox::ox_box box = building::bounding_box(elements);
    const ox::ox_3dvector centre = box.origin + box.size * 0.5f;
    const double radius = double{box.size.size()} / 2;
    const double distance = double{(centre - s.camera.get_position()).size()};

    ox_examples::offscreen_context context(s.camera.get_width(), s.camera.get_height(), samples);
    set_opengl_camera(s.camera, 0.01 * radius, distance + 4 * radius);
    building::draw_scene(elements);
    draw_planes(m);
    ox_examples::begin_flat_drawing(context.get_width(), context.get_height());
    draw_title(s.name);
    draw_marks(s, m, is_visible(elements, s.camera.get_position(), m.snapped));
    return context.read_pixels();
}

} // namespace view
