#include <ox/solid/internal/storage.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <vector>

#include <ox/internal/contour_view.h>
#include <ox/solid/internal/same_bits.h>
#include <ox/solid/internal/stored_contours.h>

namespace ox::internal {

namespace {

/// Takes back what was appended to a storage since, unless all of it was.
class append_guard {
public:
    explicit append_guard(solid_storage& guarded)
        : storage(guarded), former_vertices(guarded.vertices.size()),
          former_contours(guarded.contours.size()), former_sizes(guarded.contour_sizes.size()) {}
    append_guard(const append_guard&) = delete;
    append_guard& operator=(const append_guard&) = delete;
    ~append_guard() {
        if (!is_complete) {
            storage.vertices.set_size(former_vertices);
            storage.contours.set_size(former_contours);
            storage.contour_sizes.set_size(former_sizes);
        }
    }

    void keep() { is_complete = true; }

private:
    solid_storage& storage;
    const int former_vertices;
    const int former_contours;
    const int former_sizes;
    bool is_complete = false;
};

/// The holes directly inside each outer contour of a polygon, in order, as chained lists.
class hole_lists {
public:
    hole_lists(const ox_list<bool>& orientations, const ox_list<int>& parents)
        : first(static_cast<std::size_t>(parents.size()), -1),
          next(static_cast<std::size_t>(parents.size()), -1) {
        for (int hole = parents.size() - 1; hole >= 0; --hole) {
            const int outer = parents[hole];
            // A hole split off with its outline keeps the number that it had before.
            if (!orientations[hole] && outer >= 0 && outer < parents.size()) {
                next[static_cast<std::size_t>(hole)] = first_of(outer);
                first[static_cast<std::size_t>(outer)] = hole;
            }
        }
    }

    /// The first hole of an outer contour, -1 for none.
    int first_of(int outer) const { return first[static_cast<std::size_t>(outer)]; }

    /// The hole after another of the same outer contour, -1 behind the last.
    int next_of(int hole) const { return next[static_cast<std::size_t>(hole)]; }

private:
    std::vector<int> first;
    std::vector<int> next;
};

/// Appends the vertices of one contour, each as a vertex of its own.
void append_vertices(solid_storage& storage, const ox_list<ox_3dvector>& corners,
                     const contour_view& contour) {
    for (int i = contour.first; i < contour.end; ++i) {
        storage.contours.push_right(storage.count_vertices());
        storage.vertices.push_right(corners[i]);
    }
}

} // namespace

unsigned int solid_storage::count_vertices() const {
    return vertices.size() > 0 ? static_cast<unsigned int>(vertices.size()) : 0;
}

int solid_storage::append_polygon(ox_polygon& polygon) {
    const ox_list<ox_3dvector>& corners = polygon.get_contour_vertices();
    const ox_list<bool>& orientations = polygon.get_contour_orientations();
    const hole_lists holes(orientations, polygon.get_contour_parents());
    std::vector<contour_view> views;
    for (const contour_view& contour : contour_views(polygon.get_contour_sizes())) {
        views.push_back(contour);
    }
    append_guard guard(*this);
    int face_count = 0;
    for (const contour_view& outer : views) {
        if (!orientations[outer.index]) {
            continue;
        }
        ++face_count;
        append_vertices(*this, corners, outer);
        contour_sizes.push_right(outer.size());
        for (int i = holes.first_of(outer.index); i >= 0; i = holes.next_of(i)) {
            const contour_view& hole = views[static_cast<std::size_t>(i)];
            append_vertices(*this, corners, hole);
            contour_sizes.push_right(-hole.size());
        }
    }
    guard.keep();
    return face_count;
}

void solid_storage::append_lists(const solid_storage& other) {
    append_guard guard(*this);
    const unsigned int base = count_vertices();
    for (const ox_3dvector& vertex : other.vertices) {
        vertices.push_right(vertex);
    }
    for (const int size : other.contour_sizes) {
        contour_sizes.push_right(size);
    }
    for (const unsigned int index : other.contours) {
        contours.push_right(index + base);
    }
    guard.keep();
}

bool solid_storage::holds_face(ox_polygon& polygon, storage_place& place) const {
    const ox_list<unsigned int>& polygon_sizes = polygon.get_contour_sizes();
    const ox_list<ox_3dvector>& corners = polygon.get_contour_vertices();
    storage_place next = place;
    if (polygon_sizes.size() == 0 || corners.size() > contours.size() - next.index) {
        return false;
    }
    for (int i = 0; i < polygon_sizes.size(); ++i, ++next.size_index) {
        const bool is_outer = i == 0;
        const int size = static_cast<int>(polygon_sizes[i]);
        if (next.size_index >= contour_sizes.size() ||
            contour_sizes[next.size_index] != (is_outer ? size : -size) ||
            polygon.get_contour_orientations()[i] != is_outer ||
            polygon.get_contour_parents()[i] != (is_outer ? -1 : 0)) {
            return false;
        }
    }
    if (next.size_index < contour_sizes.size() && contour_sizes[next.size_index] < 1) {
        return false;
    }
    for (const ox_3dvector& corner : corners) {
        const unsigned int index = contours[next.index++];
        if (index >= count_vertices() ||
            !have_same_bits(corner, vertices[static_cast<int>(index)])) {
            return false;
        }
    }
    place = next;
    return true;
}

// Reading

bool storage_reader::has_more_contours() const {
    return next.size_index < storage.contour_sizes.size() &&
           storage.contour_sizes[next.size_index] < 1;
}

void storage_reader::skip_face() {
    do {
        next.index += std::abs(storage.contour_sizes[next.size_index++]);
    } while (has_more_contours());
}

std::unique_ptr<ox_polygon> storage_reader::read_face() {
    if (!gather_contour()) {
        return nullptr;
    }
    auto face = std::make_unique<ox_polygon>();
    face->add_contour(contour);
    while (has_more_contours() && gather_contour()) {
        face->add_contour(contour);
    }
    return face;
}

/// Reads the vertices of the next contour. False when one is missing or out of range.
bool storage_reader::gather_contour() {
    contour.clear();
    const std::int64_t size = std::abs(std::int64_t{storage.contour_sizes[next.size_index]});
    is_inconsistent = !is_consistent(storage.contours, storage.count_vertices(), next.index, size);
    if (is_inconsistent) {
        return false;
    }
    for (std::int64_t left = size; left > 0; --left) {
        const unsigned int index = storage.contours[next.index++];
        contour.push_right(storage.vertices[static_cast<int>(index)]);
    }
    ++next.size_index;
    return true;
}

} // namespace ox::internal
