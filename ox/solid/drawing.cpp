#include <ox/solid/ox_solid.h>

namespace ox {

void ox_solid::draw_opengl() {
    for (ox_polygon* face : get_faces()) {
        face->draw_opengl();
    }
}

void ox_solid::draw_opengl_contour() {
    for (ox_polygon* face : get_faces()) {
        face->draw_opengl_contour(false);
    }
}

} // namespace ox
