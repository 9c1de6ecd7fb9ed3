#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <utility>

#include <ox/solid/internal/face_cache.h>
#include <ox/solid/internal/ox_solid_state.h>
#include <ox/solid/internal/same_bits.h>

namespace ox {

/// Reads the faces of a primary storage one after another.
class face_cache::storage_reader {
public:
    explicit storage_reader(const ox_solid_state& primary_storage) : storage(primary_storage) {}

    /// False behind the last face, and behind the first index that is missing or out of range.
    bool has_more() const {
        return !is_inconsistent && next.size_index < storage.contour_sizes.size();
    }

    /// Where the next face begins.
    origin get_place() const { return {next, ox_3dvector(), false}; }

    /// Passes over a face that is known to be there.
    void skip_face() {
        do {
            next.index += std::abs(storage.contour_sizes[next.size_index++]);
        } while (has_more_contours());
    }

    /// Makes the next face; null when not even its outer contour can be read. Of a face that is
    /// not there completely the contours before the inconsistency are kept.
    std::unique_ptr<ox_polygon> read_face() {
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

private:
    bool has_more_contours() const {
        return next.size_index < storage.contour_sizes.size() &&
               storage.contour_sizes[next.size_index] < 1;
    }

    bool gather_contour() {
        contour.clear();
        is_inconsistent = true;
        for (std::int64_t left = std::abs(std::int64_t{storage.contour_sizes[next.size_index]});
             left > 0; --left) {
            if (next.index >= storage.contours.size()) {
                return false;
            }
            const unsigned int index = storage.contours[next.index++];
            if (index >= storage.count_vertices()) {
                return false;
            }
            contour.push_right(storage.vertices[static_cast<int>(index)]);
        }
        ++next.size_index;
        is_inconsistent = false;
        return true;
    }

    const ox_solid_state& storage;
    storage_place next;
    bool is_inconsistent = false;
    ox_list<ox_3dvector> contour;
};

face_cache::face_cache(std::vector<std::unique_ptr<ox_polygon>> known) {
    list.set_size(static_cast<int>(known.size()));
    for (int i = 0; i < list.size(); ++i) {
        list[i] = known[static_cast<std::size_t>(i)].release();
    }
}

face_cache& face_cache::operator=(face_cache&& other) noexcept {
    if (this != &other) {
        const face_cache retired(std::move(*this));
        list = std::move(other.list);
        origins = std::move(other.origins);
        is_complete = other.is_complete;
        bounds = std::move(other.bounds);
        tree = std::move(other.tree);
    }
    return *this;
}

face_cache::~face_cache() {
    for (ox_polygon* polygon : list) {
        delete polygon;
    }
}

// Faces

const ox_list<ox_polygon*>& face_cache::get_list(const ox_solid_state& storage) {
    if (!is_complete || list.size() == 0) {
        make_missing_faces(storage);
    }
    return list;
}

void face_cache::make_missing_faces(const ox_solid_state& storage) {
    origins.clear();
    storage_reader reader(storage);
    for (int face = 0; reader.has_more(); ++face) {
        origin made = reader.get_place();
        if (face < list.size() && list[face] != nullptr) {
            reader.skip_face();
        } else {
            std::unique_ptr<ox_polygon> polygon = reader.read_face();
            if (!polygon) {
                break;
            }
            if (face == list.size()) {
                list.push_right(nullptr); // the place first: a polygon never lives without an owner
            }
            list[face] = polygon.release();
        }
        made.normal = list[face]->get_normal();
        origins.push_back(made);
        origins.back().had_contours_of_storage = has_contours_of_storage(storage, face);
    }
    is_complete = true;
}

std::unique_ptr<ox_polygon> face_cache::release(int face) {
    return std::unique_ptr<ox_polygon>(std::exchange(list[face], nullptr));
}

// Settled faces

bool face_cache::is_settled(const ox_solid_state& storage, int face) const {
    const origin& made = origins[static_cast<std::size_t>(face)];
    return made.had_contours_of_storage && have_same_bits(list[face]->get_normal(), made.normal) &&
           have_same_bits(list[face]->get_point(), list[face]->get_contour_vertices()[0]) &&
           has_contours_of_storage(storage, face);
}

bool face_cache::has_contours_of_storage(const ox_solid_state& storage, int face) const {
    storage_place place = origins[static_cast<std::size_t>(face)].place;
    return storage.holds_face(*list[face], place);
}

// Searching

const std::vector<face_bounds>& face_cache::refresh_bounds() {
    std::vector<face_bounds> found;
    found.reserve(static_cast<std::size_t>(list.size()));
    for (ox_polygon* face : list) {
        found.emplace_back(*face);
    }
    if (!(found == bounds)) {
        bounds = std::move(found);
        tree.reset();
    }
    return bounds;
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

} // namespace ox
