#include <ox/solid/ox_solid.h>

#include <atomic>

#include <ox/solid/internal/ox_solid_state.h>

namespace ox {

namespace {

std::atomic<int> living_solids{0}; // made by threads that each work on solids of their own

} // namespace

// Construction and copying

ox_solid::ox_solid() : state(std::make_unique<ox_solid_state>()) {
    ++living_solids;
}

ox_solid::ox_solid(const ox_solid& source)
    : state(std::make_unique<ox_solid_state>(source.state->storage)) {
    ++living_solids;
}

ox_solid& ox_solid::operator=(const ox_solid& source) {
    if (this != &source) {
        state = std::make_unique<ox_solid_state>(source.state->storage);
    }
    return *this;
}

ox_solid::~ox_solid() {
    --living_solids;
}

// Primary storage
//
// The setters copy before they drop the caches: the argument may be a list of a cached face.

void ox_solid::set_vertices(const ox_list<ox_3dvector>& vertices) {
    state->storage.vertices = vertices;
    state->invalidate();
}

void ox_solid::set_contours(const ox_list<unsigned int>& contours) {
    state->storage.contours = contours;
    state->invalidate();
}

void ox_solid::set_contour_sizes(const ox_list<int>& sizes) {
    state->storage.contour_sizes = sizes;
    state->invalidate();
}

const ox_list<ox_3dvector>& ox_solid::get_vertices() const {
    return state->storage.vertices;
}

const ox_list<unsigned int>& ox_solid::get_contours() const {
    return state->storage.contours;
}

const ox_list<int>& ox_solid::get_contour_sizes() const {
    return state->storage.contour_sizes;
}

void ox_solid::clear() {
    state->replace_storage({});
}

// Derived data

const ox_list<ox_polygon*>& ox_solid::get_faces() {
    return state->faces.get_list();
}

const ox_box& ox_solid::get_bounding_box() {
    return state->get_bounding_box();
}

// Diagnostics

bool ox_solid::check_manifold() const {
    return state->manifold_status > 0;
}

void ox_solid::set_verbose(bool verbose) {
    state->verbose = verbose;
}

void ox_solid::set_profiling(bool profiling) {
    state->profiling = profiling;
}

double ox_solid::get_chrono(int slot) {
    if (slot < 0 || slot >= internal::solid_phase_count) {
        return 0.0;
    }
    return state->chronos[slot].elapsed();
}

int ox_solid::get_instanced() {
    return living_solids;
}

} // namespace ox
