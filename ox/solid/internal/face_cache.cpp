#include <ox/solid/internal/face_cache.h>

#include <cstddef>
#include <utility>

#include <ox/internal/polygon_access.h>
#include <ox/solid/internal/same_bits.h>

namespace ox::internal {

// Faces

const ox_list<ox_polygon*>& face_cache::get_list() {
    if (!is_complete) {
        make_missing_faces();
    }
    return list;
}

void face_cache::make_missing_faces() {
    owned_faces made; // null for the faces that are there
    std::vector<origin> made_origins;
    storage_reader reader(storage);
    while (reader.has_more()) {
        const std::size_t i = made.size();
        const storage_place place = reader.get_place();
        const bool is_known = i < faces.size() && faces[i];
        if (is_known) {
            reader.skip_face();
        }
        made.push_back(is_known ? nullptr : reader.read_face());
        if (!is_known && !made[i]) {
            made.pop_back();
            break;
        }
        ox_polygon& face = is_known ? *faces[i] : *made[i];
        made_origins.push_back({place, face.get_normal(), has_contours_of(place, face)});
    }
    show(std::move(made), std::move(made_origins));
}

/// Joins the faces made to those known. Nothing changes before all memory is there.
void face_cache::show(owned_faces made, std::vector<origin> made_origins) {
    ox_list<ox_polygon*> shown(static_cast<int>(made.size()));
    for (std::size_t i = 0; i < made.size(); ++i) {
        if (!made[i]) {
            made[i] = std::move(faces[i]);
        }
        polygon_access::set_counted(*made[i], audience == face_audience::caller);
        shown[static_cast<int>(i)] = made[i].get();
    }
    faces = std::move(made);
    list = std::move(shown);
    origins = std::move(made_origins);
    is_complete = true;
    is_changed = true;
}

owned_faces face_cache::retire() noexcept {
    for (ox_polygon* face : list) {
        polygon_access::watch(*face, nullptr);
    }
    is_changed = true;
    list.clear();
    origins.clear();
    is_complete = false;
    bounds.clear();
    tree.reset();
    return std::exchange(faces, {});
}

void face_cache::keep(owned_faces known) noexcept {
    for (const std::unique_ptr<ox_polygon>& face : known) {
        if (face) {
            polygon_access::set_counted(*face, false);
            polygon_access::forget_best_center(*face);
        }
    }
    faces = std::move(known);
}

// Reproducible faces

bool face_cache::is_reproducible(int face) const {
    const origin& made = origins[static_cast<std::size_t>(face)];
    ox_polygon& polygon = *list[face];
    // A face without contours has no first vertex to compare.
    return made.had_contours_of_storage && polygon.get_contour_vertices().size() > 0 &&
           have_same_bits(polygon.get_normal(), made.normal) &&
           have_same_bits(polygon.get_point(), polygon.get_contour_vertices()[0]) &&
           has_contours_of(made.place, polygon);
}

bool face_cache::is_all_reproducible() {
    refresh_bounds();
    if (!all_reproducible) {
        int i = 0;
        while (i < list.size() && is_reproducible(i)) {
            ++i;
        }
        all_reproducible = i == list.size();
    }
    return *all_reproducible;
}

bool face_cache::has_contours_of(const storage_place& place, ox_polygon& face) const {
    storage_place next = place;
    return storage.holds_face(face, next);
}

// Searching

const std::vector<face_bounds>& face_cache::refresh_bounds() {
    if (is_changed) {
        find_bounds();
        watch_faces();
    }
    return bounds;
}

/// The tree stays where the bounds are what they were.
void face_cache::find_bounds() {
    std::vector<face_bounds> found;
    found.reserve(faces.size());
    for (ox_polygon* face : list) {
        found.emplace_back(*face);
    }
    if (!(found == bounds)) {
        bounds = std::move(found);
        tree.reset();
    }
}

/// Each face has been merged when its bounds were found.
void face_cache::watch_faces() {
    for (ox_polygon* face : list) {
        polygon_access::watch(*face, &is_changed);
    }
    is_changed = false;
    all_reproducible.reset();
    ++revision;
}

const face_tree& face_cache::get_tree() {
    if (!tree) {
        if (bounds.empty()) {
            refresh_bounds();
        }
        tree = std::make_unique<face_tree>(bounds);
    }
    return *tree;
}

} // namespace ox::internal
