#include <ox/structure/ox_loadshare.h>

#include <cmath>

#include <ox/structure/internal/ox_loadshare_state.h>

namespace ox {

ox_loadshare::ox_loadshare() : state(std::make_unique<ox_loadshare_state>()) {}

ox_loadshare::ox_loadshare(const ox_loadshare& other)
    : state(std::make_unique<ox_loadshare_state>(*other.state)) {}

ox_loadshare& ox_loadshare::operator=(const ox_loadshare& other) {
    if (this != &other) {
        state = std::make_unique<ox_loadshare_state>(*other.state);
    }
    return *this;
}

ox_loadshare::ox_loadshare(ox_loadshare&& other) : ox_loadshare() {
    swap(other);
}

ox_loadshare& ox_loadshare::operator=(ox_loadshare&& other) noexcept {
    swap(other);
    return *this;
}

void ox_loadshare::swap(ox_loadshare& other) noexcept {
    state.swap(other.state);
}

ox_loadshare::~ox_loadshare() = default;

void ox_loadshare::set_slab_geometry(const ox_3dvector& normal, const ox_3dvector& direction) {
    state->normal = normal;
    state->normal.normalize();
    state->y_axis = ox_cross(state->normal, direction);
    state->y_axis.normalize();
    state->x_axis = ox_cross(state->y_axis, state->normal);
}

void ox_loadshare::set_slab_weight(float weight) {
    state->slab_weight = weight;
}

void ox_loadshare::add_slab_contour(const ox_list<ox_3dvector>& points) {
    ox_list<ox_3dvector> contour;
    for (const ox_3dvector& point : points) {
        const ox_3dvector projected = state->project(point);
        if (!std::isfinite(projected.x) || !std::isfinite(projected.y)) {
            return;
        }
        contour.push_right(projected);
    }
    state->contours.push_right(contour);
    for (const ox_3dvector& point : contour) {
        state->bounds.enlarge(point);
    }
}

int ox_loadshare::add_beam(const ox_3dvector& start, const ox_3dvector& end) {
    oxp_beam beam;
    beam.start = state->project(start);
    beam.end = state->project(end);
    state->beams.push_right(beam);
    return state->beams.size() - 1;
}

void ox_loadshare::clear_beams() {
    state->beams.clear();
}

void ox_loadshare::clear_slab_contours() {
    state->contours.clear();
    state->bounds.clear();
}

float ox_loadshare::get_weight(int index) {
    if (index < 0 || index >= state->beams.size()) {
        return -1.0f;
    }
    return state->beams[index].weight * state->slab_weight;
}

float ox_loadshare::get_uncarried_weight() const {
    return static_cast<float>(state->uncarried_area * static_cast<double>(state->slab_weight));
}

void ox_loadshare::produce_log(bool enabled) {
    state->log = enabled;
}

void ox_loadshare::set_image_log(bool enabled) {
    state->paint = enabled;
}

unsigned int* ox_loadshare::get_image_log(int& width, int& height) {
    width = state->image.get_width();
    height = state->image.get_height();
    return state->image.get_pixels();
}

} // namespace ox
