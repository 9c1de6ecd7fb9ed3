#include <ox/solid/ox_solid.h>

#include <atomic>
#include <utility>

#include <ox/solid/internal/ox_solid_state.h>

namespace ox {

namespace {

std::atomic<int> living_solids{0}; // made by threads that each work on solids of their own

/// The primary storage behind a solid that may have been moved from.
const internal::solid_storage& storage_of(const std::unique_ptr<ox_solid_state>& state) {
    static const internal::solid_storage nothing{};
    return state ? state->storage : nothing;
}

} // namespace

// Construction and copying

ox_solid::ox_solid() : state(std::make_unique<ox_solid_state>()) {
    ++living_solids;
}

ox_solid::ox_solid(const ox_solid& source)
    : state(std::make_unique<ox_solid_state>(storage_of(source.state))) {
    ++living_solids;
}

ox_solid::ox_solid(ox_solid&& source) noexcept : state(std::move(source.state)) {
    ++living_solids;
}

ox_solid& ox_solid::operator=(const ox_solid& source) {
    if (this != &source) {
        state = std::make_unique<ox_solid_state>(storage_of(source.state));
    }
    return *this;
}

ox_solid& ox_solid::operator=(ox_solid&& source) noexcept {
    if (this != &source) {
        state = std::move(source.state);
    }
    return *this;
}

ox_solid::~ox_solid() {
    --living_solids;
}

void ox_solid::swap(ox_solid& other) noexcept {
    state.swap(other.state);
}

ox_solid_state& ox_solid::get_state() {
    if (!state) {
        state = std::make_unique<ox_solid_state>();
    }
    return *state;
}

// Primary storage
//
// The setters copy before they drop the caches: the argument may be a list of a cached face.

void ox_solid::set_vertices(const ox_list<ox_3dvector>& vertices) {
    get_state().storage.vertices = vertices;
    get_state().invalidate();
}

void ox_solid::set_contours(const ox_list<unsigned int>& contours) {
    get_state().storage.contours = contours;
    get_state().invalidate();
}

void ox_solid::set_contour_sizes(const ox_list<int>& sizes) {
    get_state().storage.contour_sizes = sizes;
    get_state().invalidate();
}

const ox_list<ox_3dvector>& ox_solid::get_vertices() const {
    return storage_of(state).vertices;
}

const ox_list<unsigned int>& ox_solid::get_contours() const {
    return storage_of(state).contours;
}

const ox_list<int>& ox_solid::get_contour_sizes() const {
    return storage_of(state).contour_sizes;
}

void ox_solid::clear() {
    get_state().replace_storage({});
}

// Derived data

const ox_list<ox_polygon*>& ox_solid::get_faces() {
    return get_state().faces.get_list();
}

const ox_box& ox_solid::get_bounding_box() {
    return get_state().get_bounding_box();
}

// Diagnostics

bool ox_solid::check_manifold() const {
    return state && state->manifold_status > 0;
}

void ox_solid::set_verbose(bool verbose) {
    get_state().verbose = verbose;
}

void ox_solid::set_profiling(bool profiling) {
    get_state().profiling = profiling;
}

double ox_solid::get_chrono(int slot) {
    if (slot < 0 || slot >= internal::solid_phase_count) {
        return 0.0;
    }
    return get_state().chronos[slot].elapsed();
}

int ox_solid::get_instanced() {
    return living_solids;
}

} // namespace ox
