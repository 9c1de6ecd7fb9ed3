#ifndef OX_EXAMPLES_SUPPORT_OFFSCREEN_CONTEXT_H
#define OX_EXAMPLES_SUPPORT_OFFSCREEN_CONTEXT_H

#include <examples/support/image.h>

#include <memory>
#include <stdexcept>

namespace ox_examples {

/// There is nothing on this machine that draws; tells which package would.
class no_driver : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// An OpenGL context without a window or a screen, for drawing into memory.
///
/// The context is a desktop OpenGL compatibility context of the software driver (EGL without a
/// surface), so immediate mode and the fixed pipeline work on a machine without a display. Drawing
/// goes to a colour and depth buffer of the given size. Construction makes the context current for
/// the calling thread, binds the buffers and sets the viewport to the whole picture; every other
/// state has OpenGL's initial value.
///
/// Contexts may follow each other, and several may exist at once: `make_current` chooses.
///
///     offscreen_context context(640, 480, 4);
///     glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
///     shapes.draw_opengl();
///     write_png("shapes.png", context.read_pixels());
class offscreen_context {
public:
    /// Makes the context current with buffers of `width` by `height` pixels. With `samples` above 1
    /// the buffers are multisampled (4 is what the software driver offers) and `read_pixels`
    /// averages the samples. Throws `no_driver` when there is no desktop OpenGL, and another
    /// `std::runtime_error` when a size is not positive or the driver refuses the buffers.
    offscreen_context(int width, int height, int samples = 0);

    /// Releases the buffers and the context; no context is current afterwards if this one was.
    ~offscreen_context();

    offscreen_context(const offscreen_context&) = delete;
    offscreen_context& operator=(const offscreen_context&) = delete;

    /// Width of the picture in pixels.
    int get_width() const;

    /// Height of the picture in pixels.
    int get_height() const;

    /// Makes the context current for the calling thread again and binds its buffers.
    void make_current();

    /// Ends the drawing so far and returns the colour buffer: RGBA, top row first. The context must
    /// be current.
    image read_pixels();

private:
    struct state;
    std::unique_ptr<state> data;
};

} // namespace ox_examples

#endif
