#include <ox/solid/ox_solid.h>

#include <ox/solid/internal/boolean/combination.h>
#include <ox/solid/internal/ox_solid_state.h>

namespace ox {

using namespace internal;

namespace {

ox_box grown_by(const ox_box& box, float margin) {
    const float both_sides = 2.0f * margin;
    ox_box grown;
    grown.origin = box.origin - ox_3dvector(margin, margin, margin);
    grown.size = box.size + ox_3dvector(both_sides, both_sides, both_sides);
    return grown;
}

/// Appends the primary storage of another solid as it is. The box of the target, which must have
/// been found, grows by the new vertices: from all vertices it would come out the same.
void append_solid(ox_solid_state& target, const ox_solid_state& other) {
    ox_box box = target.bounding_box;
    target.storage.append_lists(other.storage);
    for (const ox_3dvector& vertex : other.storage.vertices) {
        box.enlarge(vertex);
    }
    target.invalidate();
    target.bounding_box = box;
}

} // namespace

void ox_solid::unites(ox_solid& other) {
    if (&other == this) {
        ox_solid copy(other);
        unites(copy);
        return;
    }
    const ox_box other_box = other.get_bounding_box();
    if (other_box.is_empty()) {
        return;
    }
    if (get_bounding_box().is_empty()) {
        *this = other;
    } else if (grown_by(get_bounding_box(), union_box_margin).intersects(other_box)) {
        combine(get_state(), other.get_state(), boolean_operation::unite);
    } else {
        append_solid(get_state(), other.get_state());
    }
}

void ox_solid::substracts(ox_solid& other) {
    if (&other == this) {
        ox_solid copy(other);
        substracts(copy);
        return;
    }
    const ox_box box = get_bounding_box();
    const ox_box other_box = other.get_bounding_box();
    if (!box.is_empty() && !other_box.is_empty() && box.intersects(other_box)) {
        combine(get_state(), other.get_state(), boolean_operation::subtract);
    }
}

void ox_solid::intersects(ox_solid& other) {
    if (&other == this) {
        ox_solid copy(other);
        intersects(copy);
        return;
    }
    const ox_box box = get_bounding_box();
    if (box.is_empty()) {
        return;
    }
    const ox_box other_box = other.get_bounding_box();
    if (!other_box.is_empty() && box.intersects(other_box)) {
        combine(get_state(), other.get_state(), boolean_operation::intersect);
    } else {
        clear();
    }
}

void ox_solid::optimize_vertices(float) {}

} // namespace ox
