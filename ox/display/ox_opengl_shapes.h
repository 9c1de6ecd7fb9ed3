#ifndef OX_DISPLAY_OX_OPENGL_SHAPES_H
#define OX_DISPLAY_OX_OPENGL_SHAPES_H

#include <memory>

#include <ox/core/ox_export.h>
#include <ox/geometry/ox_3dvector.h>
#include <ox/geometry/ox_color.h>

namespace ox {

struct ox_opengl_shapes_data;

/// Coloured points and lines that code under study wants to show.
///
/// Shapes are collected first and drawn later, as often as wanted, in immediate mode
/// (`glBegin`, `glEnd`): points grouped by size, then lines grouped by width. Nothing is cached on
/// the graphics side.
///
/// Sizes and widths are in pixels and come in ten classes, 0 to 9.
///
/// Degenerate input:
/// - a point size outside 0..9 is clamped to that range;
/// - a line width outside 0..9 is stored unchanged and the line is never drawn;
/// - size 0 and width 0 are handed to OpenGL as they are: it refuses them (`GL_INVALID_VALUE`) and
///   draws with the size or width that was set before;
/// - a line of length 0 and coordinates that are not finite are handed to OpenGL as they are.
///
/// Ownership: the object owns copies of everything added to it. Copying an `ox_opengl_shapes` is
/// deep: the copy and its source have nothing in common. Collecting needs no OpenGL context;
/// drawing must come from the thread that owns the current one. An object must not be used from
/// two threads at once.
///
/// Example:
///
///     ox_opengl_shapes shapes;
///     shapes.add_point(ox_3dvector(0, 0, 0), ox_color(1, 0, 0), 5);
///     shapes.add_line(ox_3dvector(0, 0, 0), ox_3dvector(1, 0, 0), ox_color(0, 1, 0), 2);
///     shapes.draw_opengl(); // with an OpenGL context that is current
class OX_EXPORT ox_opengl_shapes {
public:
    /// Makes an empty collection.
    ox_opengl_shapes();

    /// Makes a deep copy of `source`, in O(n).
    ox_opengl_shapes(const ox_opengl_shapes& source);

    /// Replaces the content by a deep copy of that of `source`, in O(n). When memory runs out the
    /// content stays as it was.
    ox_opengl_shapes& operator=(const ox_opengl_shapes& source);

    /// Takes the points and lines of `other`, which becomes empty.
    ox_opengl_shapes(ox_opengl_shapes&& other);

    /// Exchanges the contents with those of `other`. O(1).
    ox_opengl_shapes& operator=(ox_opengl_shapes&& other) noexcept;

    /// Exchanges the contents with those of `other`. O(1).
    void swap(ox_opengl_shapes& other) noexcept;

    /// Deletes the content.
    virtual ~ox_opengl_shapes();

    /// Adds a point at `position` (model units), drawn as a square of `size` by `size` pixels.
    /// `size` is clamped to 0..9. Amortised O(1).
    void add_point(const ox_3dvector& position, const ox_color& color, int size);

    /// Adds the segment from `a` to `b` (model units), `width` pixels wide. Its colour runs from
    /// `color_a` at `a` to `color_b` at `b`. `width` is kept as given; outside 0..9 the line is
    /// never drawn. Amortised O(1).
    void add_line(const ox_3dvector& a, const ox_3dvector& b, const ox_color& color_a,
                  const ox_color& color_b, int width);

    /// Adds the segment from `a` to `b` in one colour; otherwise as above.
    void add_line(const ox_3dvector& a, const ox_3dvector& b, const ox_color& color, int width);

    /// Forgets every point and line.
    void clear();

    /// Draws everything into the current OpenGL context: for each point size in use, ascending, one
    /// `GL_POINTS` block, then for each line width in use, ascending, one `GL_LINES` block; within
    /// a block in order of insertion. Point size, line width and current colour are left changed.
    /// An empty collection makes no OpenGL call. O(n).
    void draw_opengl() const;

private:
    std::unique_ptr<ox_opengl_shapes_data> data;
};

/// Exchanges the contents of two collections. O(1).
inline void swap(ox_opengl_shapes& a, ox_opengl_shapes& b) noexcept {
    a.swap(b);
}

} // namespace ox

#endif
