#include <ox/solid/internal/ox_solid_state.h>
#include <ox/solid/ox_solid.h>

namespace ox {

const ox_list<ox_polygon*>& ox_solid::get_faces() {
    return state->faces.get_list(*state);
}

const ox_box& ox_solid::get_bounding_box() {
    if (state->bounding_box.is_empty()) {
        for (const ox_3dvector& vertex : state->vertices) {
            state->bounding_box.enlarge(vertex);
        }
    }
    return state->bounding_box;
}

} // namespace ox
