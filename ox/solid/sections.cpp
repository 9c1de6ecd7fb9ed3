// Sections as polygons of their own.
//
// A section is that of the solid made by adding the faces to an empty one. Adding a face makes its
// polygon anew from its contours, which costs more than the section. So for the faces of a solid
// the polygons are used that are there already:
//
// - where all faces are settled, those of the solid itself: they would be made again;
// - otherwise those of the solid made for the last section, if the faces still have the contours
//   that it was made from.

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

#include <ox/solid/internal/ox_solid_state.h>
#include <ox/solid/internal/section/plane_section.h>
#include <ox/solid/ox_solid.h>

namespace ox {

namespace {

/// The section of a solid as separate polygons, which are the caller's.
ox_list<ox_polygon*> split_section(ox_solid_state& state, const ox_3dvector& point,
                                   const ox_3dvector& normal) {
    const ox_list<ox_polygon*>& faces = state.faces.get_list(state);
    std::unique_ptr<ox_polygon> section =
        plane_section(faces, state.faces.get_tree(), point, normal, face_list_section_tolerance);
    if (!section) {
        return {};
    }
    ox_list<ox_polygon*> pieces = section->split_to_polygons();
    if (std::find(pieces.begin(), pieces.end(), section.get()) != pieces.end()) {
        section.release(); // a section of one piece is that piece: it is the caller's now
    }
    return pieces;
}

bool are_all_settled(const ox_solid_state& state, const ox_list<ox_polygon*>& faces) {
    for (int i = 0; i < faces.size(); ++i) {
        if (!state.faces.is_settled(state, i)) {
            return false;
        }
    }
    return true;
}

/// Whether a primary storage holds these faces, one after another, and nothing else.
bool is_made_of(const ox_solid_state& state, const ox_list<ox_polygon*>& faces) {
    storage_place place;
    for (ox_polygon* face : faces) {
        const bool is_empty = face->get_contour_sizes().size() == 0; // adds nothing
        if (!is_empty && !state.holds_face(*face, place)) {
            return false;
        }
    }
    return place.size_index == state.contour_sizes.size();
}

/// The record of a solid made by adding all faces of another. Copies of the settled ones are its
/// faces already.
std::unique_ptr<ox_solid_state> readd_faces(ox_solid_state& source,
                                            const ox_list<ox_polygon*>& faces) {
    auto made = std::make_unique<ox_solid_state>(nullptr);
    std::vector<std::unique_ptr<ox_polygon>> known;
    for (int i = 0; i < faces.size(); ++i) {
        const int added = made->append_polygon(*faces[i]);
        known.resize(known.size() + static_cast<std::size_t>(added));
        if (source.faces.is_settled(source, i)) {
            known.back() = std::make_unique<ox_polygon>(*faces[i]);
        }
    }
    made->faces = face_cache(std::move(known));
    return made;
}

/// The record of the solid made by adding all faces of another: that one itself, the one kept for
/// it, or a new one.
ox_solid_state& find_readded(ox_solid_state& state) {
    const ox_list<ox_polygon*>& faces = state.faces.get_list(state);
    if (are_all_settled(state, faces)) {
        state.faces.refresh_bounds();
        return state;
    }
    if (!state.readded || !is_made_of(*state.readded, faces)) {
        state.readded = readd_faces(state, faces);
    }
    return *state.readded;
}

} // namespace

ox_list<ox_polygon*> ox_solid::intersect_by_plane(const ox_3dvector& point,
                                                  const ox_3dvector& normal) {
    return split_section(find_readded(*state), point, normal);
}

ox_list<ox_polygon*> ox_solid::intersect_by_plane(const ox_3dvector& point,
                                                  const ox_3dvector& normal,
                                                  const ox_list<ox_polygon*>& faces) {
    ox_solid solid;
    for (ox_polygon* face : faces) {
        if (face != nullptr) {
            solid.state->append_polygon(*face);
        }
    }
    return split_section(*solid.state, point, normal);
}

} // namespace ox
