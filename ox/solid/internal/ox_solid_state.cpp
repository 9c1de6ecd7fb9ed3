#include <ox/solid/internal/ox_solid_state.h>

#include <utility>

namespace ox {

internal::owned_faces ox_solid_state::invalidate() noexcept {
    bounding_box.clear();
    tesselation_vertices.clear();
    tesselation_triangles.clear();
    added_again.reset();
    return faces.retire();
}

internal::owned_faces ox_solid_state::replace_storage(internal::solid_storage made) noexcept {
    storage = std::move(made);
    return invalidate();
}

const ox_box& ox_solid_state::get_bounding_box() {
    if (bounding_box.is_empty()) {
        for (const ox_3dvector& vertex : storage.vertices) {
            bounding_box.enlarge(vertex);
        }
    }
    return bounding_box;
}

} // namespace ox
