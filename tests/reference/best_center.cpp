#include <algorithm>
#include <cmath>
#include <limits>

#include <tests/reference/best_center.h>
#include <tests/reference/contains.h>

namespace reference {

namespace {

using contour_set = std::vector<std::vector<ox::ox_2dvector>>;

struct bounds {
    ox::ox_2dvector low;
    ox::ox_2dvector high;

    explicit bounds(const contour_set& contours) : low(contours[0][0]), high(contours[0][0]) {
        for (const auto& contour : contours) {
            for (const ox::ox_2dvector& vertex : contour) {
                low.x = std::min(low.x, vertex.x);
                low.y = std::min(low.y, vertex.y);
                high.x = std::max(high.x, vertex.x);
                high.y = std::max(high.y, vertex.y);
            }
        }
    }
};

// The smallest of all distances, each less the penalty.
float score_of(const ox::ox_2dvector& q, float penalty, const contour_set& contours) {
    float score = 10000.0f;
    for (const auto& contour : contours) {
        ox::ox_2dvector previous = contour.back();
        for (const ox::ox_2dvector& current : contour) {
            score = std::min(score, q.distance_to(current) - penalty);
            ox::ox_2dvector direction = current - previous;
            const float length = direction.normalize();
            const float t = ox::ox_dot(q - previous, direction);
            if (length >= 0.01f && t >= 0.0f && t <= length) {
                const float distance = std::fabs(ox::ox_dot(q - previous, direction.normal()));
                score = std::min(score, distance - penalty);
            }
            previous = current;
        }
    }
    return score;
}

} // namespace

ox::ox_3dvector best_center(ox::ox_polygon& polygon, const ox::ox_3dvector& held) {
    return best_center(polygon, plane_frame(polygon), held);
}

ox::ox_3dvector best_center(ox::ox_polygon& polygon, const plane_frame& frame,
                            const ox::ox_3dvector& held) {
    const contour_set contours = plane_contours(polygon, frame);
    if (contours.empty()) {
        return frame.point;
    }
    const bounds box(contours);
    const ox::ox_2dvector middle = (box.low + box.high) * 0.5f;
    ox::ox_3dvector center = held;
    float best = 0.0f;
    constexpr float before_all = -std::numeric_limits<float>::infinity();
    for (float step = 0.5f; step > 0.05f; step *= 0.5f) {
        float before_u = before_all;
        for (float u = box.low.x; u < box.high.x && u > before_u; before_u = u, u = u + step) {
            float before_v = before_all;
            for (float v = box.low.y; v < box.high.y && v > before_v; before_v = v, v = v + step) {
                const ox::ox_3dvector w = frame.point + u * frame.dx + v * frame.dy;
                const ox::ox_2dvector q(u, v);
                const float score = score_of(q, 0.1f * q.distance_to(middle), contours);
                if (score >= best && contains(polygon, frame, w)) {
                    best = score;
                    center = w;
                }
            }
        }
    }
    return center;
}

} // namespace reference
