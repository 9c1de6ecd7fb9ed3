#ifndef OX_EXAMPLES_GALLERY_RENDERER_H
#define OX_EXAMPLES_GALLERY_RENDERER_H

#include <examples/support/image.h>

#include <ox/geometry/ox_box.h>
#include <ox/geometry/ox_color.h>
#include <ox/solid/ox_solid.h>

#include <vector>

namespace gallery {

/// Solids with their colours, seen under a sun and an overcast sky, on a ground that takes shadows
/// and fades into the white of the page. Uprights stay upright, and the frame is filled.
class scene {
public:
    /// Adds the faces of `solid`. Their outlines are drawn; back sides are red, `marked` or not.
    void add(ox::ox_solid& solid, const ox::ox_color& color);

    /// Adds a rod between two points, without a shadow of note: a line that rays can see.
    void add_rod(const ox::ox_3dvector& from, const ox::ox_3dvector& to, float width,
                 const ox::ox_color& color);

    /// Adds a ball of 320 triangles.
    void add_ball(const ox::ox_3dvector& center, float radius, const ox::ox_color& color);

    /// The picture of `width` by `height` pixels, seen from `bearing` degrees (0 from the south, 90
    /// from the east) and `elevation` degrees above the horizon.
    ox_examples::image render(int width, int height, double bearing, double elevation) const;

    struct triangle {
        ox::ox_3dvector a, b, c;
        ox::ox_color color;
        unsigned int face; ///< equal for the triangles of one face
        bool cornered;     ///< its face is outlined
    };

    const std::vector<triangle>& get_triangles() const { return triangles; }
    const ox::ox_box& get_bounds() const { return bounds; }

private:
    void add_triangle(const triangle& t);

    std::vector<triangle> triangles;
    ox::ox_box bounds;
    unsigned int faces = 0;
};

} // namespace gallery

#endif
