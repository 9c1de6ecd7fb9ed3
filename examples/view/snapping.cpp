#include <examples/view/snapping.h>

#include <ox/display/ox_snap.h>

#include <algorithm>
#include <cmath>

namespace view {

namespace {

/// Metres. How far a snap may lead, and how near a face must come to count.
constexpr float reach = 0.3f;

/// Metres by which two planes may differ in distance and be equally near: the order of the faces
/// decides then, not the last bit.
constexpr float equally_near = 1e-4f;

struct candidate {
    std::string name;
    ox::ox_3dvector point;
    ox::ox_3dvector normal;
    float distance = 0;
};

/// Whether the interval from `low` over `size` comes within reach of the coordinate.
bool comes_near(float coordinate, float low, float size) {
    return coordinate >= low - reach && coordinate <= low + size + reach;
}

bool comes_near(const ox::ox_3dvector& p, const ox::ox_box& box) {
    return comes_near(p.x, box.origin.x, box.size.x) && comes_near(p.y, box.origin.y, box.size.y) &&
           comes_near(p.z, box.origin.z, box.size.z);
}

/// The planes of all faces near the point, the nearest first.
std::vector<candidate> planes_around(std::vector<element>& elements, const ox::ox_3dvector& p) {
    std::vector<candidate> result;
    for (element& e : elements) {
        for (ox::ox_polygon* face : e.solid.get_faces()) {
            if (comes_near(p, face->get_bounding_box())) {
                const float distance =
                    std::abs(ox::ox_dot(p - face->get_point(), face->get_normal()));
                const float rounded = equally_near * std::round(distance / equally_near);
                result.push_back({e.name, face->get_point(), face->get_normal(), rounded});
            }
        }
    }
    std::stable_sort(result.begin(), result.end(), [](const candidate& a, const candidate& b) {
        return a.distance < b.distance;
    });
    return result;
}

} // namespace

std::vector<snap_step> snap_to_faces(std::vector<element>& elements,
                                     const ox::ox_3dvector& picked) {
    std::vector<snap_step> steps;
    ox::ox_snap snap(picked, reach, 3, ox::ox_3dvector());
    for (const candidate& plane : planes_around(elements, picked)) {
        if (snap.check_plane(plane.point, plane.normal)) {
            steps.push_back({plane.name, plane.normal, snap.position, snap.freedom});
        }
    }
    return steps;
}

} // namespace view
