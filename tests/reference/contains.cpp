#include <tests/reference/contains.h>

namespace reference {

bool contains(ox::ox_polygon& polygon, const ox::ox_3dvector& p) {
    return contains(polygon, plane_frame(polygon), p);
}

bool contains(ox::ox_polygon& polygon, const plane_frame& frame, const ox::ox_3dvector& p) {
    return contains(plane_contours(polygon, frame), frame.coordinates(p));
}

bool contains(const std::vector<std::vector<ox::ox_2dvector>>& contours, const ox::ox_2dvector& q) {
    int left = 0;
    int right = 0;
    for (const auto& contour : contours) {
        for (std::size_t i = 0; i < contour.size(); ++i) {
            const ox::ox_2dvector a = contour[i];
            const ox::ox_2dvector b = contour[(i + 1) % contour.size()];
            float crossing = 0.0f;
            if (a.y > q.y && b.y > q.y) {
                continue;
            } else if (a.y < q.y && b.y < q.y) {
                continue;
            } else if (a.y == q.y) {
                if (!(b.y > q.y)) {
                    continue;
                }
                crossing = a.x;
            } else if (b.y != q.y) {
                crossing = a.x + (q.y - a.y) / (b.y - a.y) * (b.x - a.x);
            } else {
                if (!(a.y > q.y)) {
                    continue;
                }
                crossing = b.x;
            }
            (q.x > crossing ? left : right) += 1;
        }
    }
    return left != 0 && right != 0 && (left + right) % 2 == 0 && left % 2 == 1;
}

} // namespace reference
