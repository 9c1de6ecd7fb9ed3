#include <cstdint>
#include <cstdlib>

#include <ox/solid/internal/ox_solid_state.h>
#include <ox/solid/ox_solid.h>

namespace ox {

namespace {

/// Reads the vertices of one contour from the primary storage, from `position` on, which it moves
/// behind them. False at the first index that is missing or out of range.
bool gather_contour(const ox_solid_state& state, int size, int& position,
                    ox_list<ox_3dvector>& contour) {
    contour.clear();
    for (std::int64_t left = std::abs(std::int64_t{size}); left > 0; --left) {
        if (position >= state.contours.size()) {
            return false;
        }
        const unsigned int index = state.contours[position++];
        if (index >= state.count_vertices()) {
            return false;
        }
        contour.push_right(state.vertices[static_cast<int>(index)]);
    }
    return true;
}

/// Makes the face polygons of the primary storage, up to its first inconsistency.
oxp_owned_polygons build_faces(const ox_solid_state& state) {
    oxp_owned_polygons faces;
    ox_polygon* face = nullptr;
    ox_list<ox_3dvector> contour;
    int position = 0;
    for (const int size : state.contour_sizes) {
        if (!gather_contour(state, size, position, contour)) {
            break;
        }
        if (face == nullptr || size >= 1) {
            face = &faces.add();
        }
        face->add_contour(contour);
    }
    return faces;
}

} // namespace

const ox_list<ox_polygon*>& ox_solid::get_faces() {
    if (state->faces.get_list().size() == 0) {
        state->faces = build_faces(*state);
    }
    return state->faces.get_list();
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
