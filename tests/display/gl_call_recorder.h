#ifndef OX_TESTS_DISPLAY_GL_CALL_RECORDER_H
#define OX_TESTS_DISPLAY_GL_CALL_RECORDER_H

#include <ox/geometry/ox_3dvector.h>

#include <string>
#include <vector>

namespace ox_test {

using gl_calls = std::vector<std::string>;

/// The text of the call `name` with the three coordinates of `v`, as the recorder writes it.
std::string call_with_vector(const char* name, const ox::ox_3dvector& v);

/// Writes down, in order, every OpenGL drawing call that the library makes while the recorder
/// lives; every call still reaches OpenGL. The program defines the recorded functions itself, and
/// the dynamic linker prefers those over the ones of the OpenGL library.
///
/// A call reads like "glBegin GL_POINTS", "glVertex3fv 1 2 3", "glPointSize 5" or "glEnd". One
/// recorder may live at a time.
class gl_call_recorder {
public:
    gl_call_recorder();
    ~gl_call_recorder();

    gl_call_recorder(const gl_call_recorder&) = delete;
    gl_call_recorder& operator=(const gl_call_recorder&) = delete;

    const gl_calls& get_calls() const { return calls; }

private:
    gl_calls calls;
};

/// The OpenGL drawing calls that `draw` makes.
template <typename Draw>
gl_calls calls_of(Draw draw) {
    gl_call_recorder recorder;
    draw();
    return recorder.get_calls();
}

} // namespace ox_test

#endif
