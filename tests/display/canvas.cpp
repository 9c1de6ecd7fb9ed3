#include <tests/display/canvas.h>

#include <GL/gl.h>

namespace ox_test {

void canvas_test::SetUp() {
    glMatrixMode(GL_PROJECTION);
    glOrtho(0, pixels, 0, pixels, -1, 1);
    glMatrixMode(GL_MODELVIEW);
    glClearColor(0, 0, 0, 1);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    glColor4f(1, 1, 1, 1);
}

} // namespace ox_test
