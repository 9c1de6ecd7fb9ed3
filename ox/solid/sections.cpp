// Sections as polygons of their own.
//
// A section is that of the solid made by adding the faces to an empty one. Adding a face makes its
// polygon anew from its contours, which costs more than the section. So for the faces of a solid
// the polygons are used that are there already:
//
// - where all faces are reproducible, those of the solid itself: they would be made again;
// - otherwise those made for the last section, if the faces still have the contours that they were
//   made from.
//
// The faces tell when one of them changes: until then nothing is compared again.

#include <ox/solid/ox_solid.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>

#include <ox/solid/internal/ox_solid_state.h>
#include <ox/solid/internal/section/plane_section.h>

namespace ox {

using namespace internal;

namespace {

/// The section of the solid bounded by faces, as separate polygons, which are the caller's.
ox_list<ox_polygon*> split_section(face_cache& cache, const ox_3dvector& point,
                                   const ox_3dvector& normal) {
    const ox_list<ox_polygon*>& faces = cache.get_list();
    std::unique_ptr<ox_polygon> section =
        plane_section(faces, cache.get_tree(), point, normal, face_list_section_tolerance);
    if (!section) {
        return {};
    }
    ox_list<ox_polygon*> pieces = section->split_to_polygons();
    if (std::find(pieces.begin(), pieces.end(), section.get()) != pieces.end()) {
        // A section of one piece is that piece: it is the caller's now.
        static_cast<void>(section.release());
    }
    return pieces;
}

/// True if a primary storage holds these faces, one after another, and nothing else.
bool is_made_of(const solid_storage& storage, const ox_list<ox_polygon*>& faces) {
    storage_place place;
    for (ox_polygon* face : faces) {
        const bool is_empty = face->get_contour_sizes().size() == 0; // adds nothing
        if (!is_empty && !storage.holds_face(*face, place)) {
            return false;
        }
    }
    return place.size_index == storage.contour_sizes.size();
}

/// The faces of the solid made by adding all faces of another. The reproducible ones are copied.
std::unique_ptr<section_source> add_again(face_cache& cache) {
    auto made = std::make_unique<section_source>();
    owned_faces known;
    const ox_list<ox_polygon*>& faces = cache.get_list();
    for (int i = 0; i < faces.size(); ++i) {
        const int added = made->storage.append_polygon(*faces[i]);
        known.resize(known.size() + static_cast<std::size_t>(added));
        if (cache.is_reproducible(i)) {
            known.back() = std::make_unique<ox_polygon>(*faces[i]);
        }
    }
    made->faces.keep(std::move(known));
    return made;
}

/// The faces of the solid made by adding all faces of another: those themselves, the ones kept for
/// it, or new ones.
face_cache& find_section_faces(ox_solid_state& state) {
    const ox_list<ox_polygon*>& faces = state.faces.get_list();
    if (state.faces.is_all_reproducible()) {
        return state.faces;
    }
    std::unique_ptr<section_source>& made = state.added_again;
    const unsigned int revision = state.faces.get_revision();
    if (!made || (made->revision != revision && !is_made_of(made->storage, faces))) {
        made = add_again(state.faces);
    }
    made->revision = revision;
    return made->faces;
}

} // namespace

ox_list<ox_polygon*> ox_solid::intersect_by_plane(const ox_3dvector& point,
                                                  const ox_3dvector& normal) {
    return split_section(find_section_faces(get_state()), point, normal);
}

ox_list<ox_polygon*> ox_solid::intersect_by_plane(const ox_3dvector& point,
                                                  const ox_3dvector& normal,
                                                  const ox_list<ox_polygon*>& faces) {
    section_source source;
    for (ox_polygon* face : faces) {
        if (face != nullptr) {
            source.storage.append_polygon(*face);
        }
    }
    return split_section(source.faces, point, normal);
}

ox_polygon* ox_solid::project_on_plane(const ox_3dvector& point, const ox_3dvector& normal) {
    auto outline = std::make_unique<ox_polygon>(point, normal);
    for (ox_polygon* face : get_faces()) {
        if (std::fabs(ox_dot(face->get_normal(), normal)) >= edge_on_cosine) {
            outline->unites(*face);
        }
    }
    return outline.release();
}

} // namespace ox
