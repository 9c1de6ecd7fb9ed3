#include <tests/display/gl_call_recorder.h>

#include <GL/gl.h>

#include <cstdlib>
#include <sstream>

#include <dlfcn.h>

namespace ox_test {

static gl_calls* recording = nullptr;

gl_call_recorder::gl_call_recorder() {
    recording = &calls;
}

gl_call_recorder::~gl_call_recorder() {
    recording = nullptr;
}

static void record(const std::string& call) {
    if (recording != nullptr) {
        recording->push_back(call);
    }
}

static std::string call_with_values(const char* name, const GLfloat* values, int count) {
    std::ostringstream call;
    call << name;
    for (int i = 0; i < count; ++i) {
        call << ' ' << values[i];
    }
    return call.str();
}

static void record(const char* name, const GLfloat* values, int count) {
    record(call_with_values(name, values, count));
}

std::string call_with_vector(const char* name, const ox::ox_3dvector& v) {
    const GLfloat coordinates[] = {v.x, v.y, v.z};
    return call_with_values(name, coordinates, 3);
}

static const char* name_of_primitive(GLenum mode) {
    switch (mode) {
    case GL_POINTS:
        return "GL_POINTS";
    case GL_LINES:
        return "GL_LINES";
    case GL_LINE_STRIP:
        return "GL_LINE_STRIP";
    case GL_TRIANGLES:
        return "GL_TRIANGLES";
    default:
        return "another primitive";
    }
}

/// Calls the function `name` of the OpenGL library.
template <typename... Arguments>
static void forward(const char* name, Arguments... arguments) {
    using function = void (*)(Arguments...);
    void* address = dlsym(RTLD_NEXT, name);
    if (address == nullptr) {
        std::abort();
    }
    reinterpret_cast<function>(address)(arguments...);
}

} // namespace ox_test

using ox_test::forward;
using ox_test::record;

extern "C" {

void glBegin(GLenum mode) {
    record(std::string("glBegin ") + ox_test::name_of_primitive(mode));
    forward("glBegin", mode);
}

void glEnd() {
    record("glEnd");
    forward("glEnd");
}

void glVertex3fv(const GLfloat* position) {
    record("glVertex3fv", position, 3);
    forward("glVertex3fv", position);
}

void glNormal3fv(const GLfloat* normal) {
    record("glNormal3fv", normal, 3);
    forward("glNormal3fv", normal);
}

void glColor4fv(const GLfloat* color) {
    record("glColor4fv", color, 4);
    forward("glColor4fv", color);
}

void glPointSize(GLfloat size) {
    record("glPointSize", &size, 1);
    forward("glPointSize", size);
}

void glLineWidth(GLfloat width) {
    record("glLineWidth", &width, 1);
    forward("glLineWidth", width);
}
}
