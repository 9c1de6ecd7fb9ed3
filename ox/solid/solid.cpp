#include <atomic>
#include <ox/solid/internal/ox_solid_state.h>
#include <ox/solid/ox_solid.h>

namespace ox {

namespace {

std::atomic<int> living_solids{0}; // made by threads that each work on solids of their own

} // namespace

// Construction and copying

ox_solid::ox_solid() : state(std::make_unique<ox_solid_state>(this)) {
    ++living_solids;
}

ox_solid::ox_solid(const ox_solid& source)
    : state(std::make_unique<ox_solid_state>(this, *source.state)) {
    ++living_solids;
}

ox_solid& ox_solid::operator=(const ox_solid& source) {
    if (this != &source) {
        state = std::make_unique<ox_solid_state>(this, *source.state);
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
    state->vertices = vertices;
    state->invalidate();
}

void ox_solid::set_contours(const ox_list<unsigned int>& contours) {
    state->contours = contours;
    state->invalidate();
}

void ox_solid::set_contour_sizes(const ox_list<int>& sizes) {
    state->contour_sizes = sizes;
    state->invalidate();
}

const ox_list<ox_3dvector>& ox_solid::get_vertices() const {
    return state->vertices;
}

const ox_list<unsigned int>& ox_solid::get_contours() const {
    return state->contours;
}

const ox_list<int>& ox_solid::get_contour_sizes() const {
    return state->contour_sizes;
}

void ox_solid::clear() {
    state->invalidate();
    state->clear_primary_storage();
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
    if (slot < 0 || slot >= solid_chrono_count) {
        return 0.0;
    }
    return state->chronos[slot].elapsed();
}

int ox_solid::get_instanced() {
    return living_solids;
}

} // namespace ox
