// Declares the functions newer than OpenGL 1.1: framebuffer objects are among them.
#define GL_GLEXT_PROTOTYPES

#include <examples/support/offscreen_context.h>

#include <EGL/egl.h>
#include <EGL/eglext.h>
#include <GL/gl.h>
#include <GL/glext.h>

#include <algorithm>
#include <stdexcept>
#include <string>

namespace ox_examples {

namespace {

[[noreturn]] void fail(const std::string& what) {
    throw std::runtime_error("off-screen OpenGL: " + what);
}

[[noreturn]] void fail_without_driver(const std::string& what) {
    throw no_driver("off-screen OpenGL: " + what +
                    "; install a software driver (Debian: libgl1-mesa-dri)");
}

/// The software driver's display. It is opened once and stays open until the process ends: drivers
/// do not all survive being closed and opened again.
EGLDisplay open_display() {
    static const EGLDisplay opened = [] {
        const EGLDisplay display =
            eglGetPlatformDisplay(EGL_PLATFORM_SURFACELESS_MESA, EGL_DEFAULT_DISPLAY, nullptr);
        if (display == EGL_NO_DISPLAY || eglInitialize(display, nullptr, nullptr) == EGL_FALSE) {
            fail_without_driver("no display without a surface");
        }
        return display;
    }();
    return opened;
}

EGLContext create_context(EGLDisplay display) {
    if (eglBindAPI(EGL_OPENGL_API) == EGL_FALSE) {
        fail_without_driver("the driver offers no desktop OpenGL");
    }
    const EGLint wanted[] = {EGL_SURFACE_TYPE, EGL_PBUFFER_BIT, EGL_RENDERABLE_TYPE, EGL_OPENGL_BIT,
                             EGL_NONE};
    EGLConfig config = nullptr;
    EGLint count = 0;
    if (eglChooseConfig(display, wanted, &config, 1, &count) == EGL_FALSE || count < 1) {
        fail_without_driver("no configuration for desktop OpenGL");
    }
    const EGLint profile[] = {EGL_CONTEXT_OPENGL_PROFILE_MASK,
                              EGL_CONTEXT_OPENGL_COMPATIBILITY_PROFILE_BIT, EGL_NONE};
    const EGLContext context = eglCreateContext(display, config, EGL_NO_CONTEXT, profile);
    if (context == EGL_NO_CONTEXT) {
        fail_without_driver("no context with the compatibility profile");
    }
    return context;
}

/// A framebuffer object with one colour and one depth buffer.
class render_target {
public:
    render_target(int width, int height, int samples) {
        glGenFramebuffers(1, &framebuffer);
        glGenRenderbuffers(2, renderbuffers);
        glBindFramebuffer(GL_FRAMEBUFFER, framebuffer);
        attach(renderbuffers[0], GL_COLOR_ATTACHMENT0, GL_RGBA8, width, height, samples);
        attach(renderbuffers[1], GL_DEPTH_ATTACHMENT, GL_DEPTH_COMPONENT24, width, height, samples);
    }

    ~render_target() {
        glDeleteFramebuffers(1, &framebuffer);
        glDeleteRenderbuffers(2, renderbuffers);
    }

    render_target(const render_target&) = delete;
    render_target& operator=(const render_target&) = delete;

    GLuint name() const { return framebuffer; }

    bool is_complete() const {
        glBindFramebuffer(GL_FRAMEBUFFER, framebuffer);
        return glCheckFramebufferStatus(GL_FRAMEBUFFER) == GL_FRAMEBUFFER_COMPLETE;
    }

private:
    static void attach(GLuint buffer, GLenum place, GLenum format, int width, int height,
                       int samples) {
        glBindRenderbuffer(GL_RENDERBUFFER, buffer);
        glRenderbufferStorageMultisample(GL_RENDERBUFFER, samples, format, width, height);
        glFramebufferRenderbuffer(GL_FRAMEBUFFER, place, GL_RENDERBUFFER, buffer);
    }

    GLuint framebuffer = 0;
    GLuint renderbuffers[2] = {0, 0};
};

void flip_rows(image& picture) {
    const auto row = static_cast<std::ptrdiff_t>(picture.width) * 4;
    for (int y = 0; y < picture.height / 2; ++y) {
        const auto top = picture.rgba.begin() + y * row;
        const auto bottom = picture.rgba.begin() + (picture.height - 1 - y) * row;
        std::swap_ranges(top, top + row, bottom);
    }
}

} // namespace

struct offscreen_context::state {
    int width = 0;
    int height = 0;
    EGLDisplay display = EGL_NO_DISPLAY;
    EGLContext context = EGL_NO_CONTEXT;
    std::unique_ptr<render_target> canvas;   // what the caller draws into
    std::unique_ptr<render_target> resolved; // one sample per pixel; only with multisampling

    ~state() {
        if (context == EGL_NO_CONTEXT) {
            return;
        }
        const EGLContext former = eglGetCurrentContext();
        if (make_context_current(context)) {
            canvas.reset();
            resolved.reset();
        }
        make_context_current(former == context ? EGL_NO_CONTEXT : former);
        eglDestroyContext(display, context);
    }

    bool make_context_current(EGLContext chosen) const {
        return eglMakeCurrent(display, EGL_NO_SURFACE, EGL_NO_SURFACE, chosen) == EGL_TRUE;
    }

    void create_buffers(int samples) {
        GLint most_samples = 0;
        glGetIntegerv(GL_MAX_SAMPLES, &most_samples);
        if (samples > most_samples) {
            fail("the driver offers no more than " + std::to_string(most_samples) + " samples");
        }
        canvas = std::make_unique<render_target>(width, height, samples > 1 ? samples : 0);
        if (samples > 1) {
            resolved = std::make_unique<render_target>(width, height, 0);
        }
        if (!canvas->is_complete() || (resolved && !resolved->is_complete()) ||
            glGetError() != GL_NO_ERROR) {
            fail("the driver refuses buffers of this size");
        }
    }
};

offscreen_context::offscreen_context(int width, int height, int samples)
    : data(std::make_unique<state>()) {
    if (width < 1 || height < 1) {
        fail("the picture has no pixels");
    }
    data->width = width;
    data->height = height;
    data->display = open_display();
    data->context = create_context(data->display);
    if (!data->make_context_current(data->context)) {
        fail("the context cannot be made current");
    }
    data->create_buffers(samples);
    make_current();
    glDrawBuffer(GL_COLOR_ATTACHMENT0);
    glViewport(0, 0, width, height);
}

offscreen_context::~offscreen_context() = default;

int offscreen_context::get_width() const {
    return data->width;
}

int offscreen_context::get_height() const {
    return data->height;
}

void offscreen_context::make_current() {
    if (!data->make_context_current(data->context)) {
        fail("the context cannot be made current");
    }
    glBindFramebuffer(GL_FRAMEBUFFER, data->canvas->name());
}

image offscreen_context::read_pixels() {
    image picture;
    picture.width = data->width;
    picture.height = data->height;
    picture.rgba.resize(static_cast<std::size_t>(data->width) *
                        static_cast<std::size_t>(data->height) * 4);
    glBindFramebuffer(GL_READ_FRAMEBUFFER, data->canvas->name());
    if (data->resolved) {
        glBindFramebuffer(GL_DRAW_FRAMEBUFFER, data->resolved->name());
        glBlitFramebuffer(0, 0, data->width, data->height, 0, 0, data->width, data->height,
                          GL_COLOR_BUFFER_BIT, GL_NEAREST);
        glBindFramebuffer(GL_READ_FRAMEBUFFER, data->resolved->name());
    }
    glReadBuffer(GL_COLOR_ATTACHMENT0);
    glPixelStorei(GL_PACK_ALIGNMENT, 1);
    glReadPixels(0, 0, data->width, data->height, GL_RGBA, GL_UNSIGNED_BYTE, picture.rgba.data());
    glBindFramebuffer(GL_FRAMEBUFFER, data->canvas->name());
    flip_rows(picture);
    return picture;
}

} // namespace ox_examples
