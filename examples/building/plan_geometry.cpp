#include <examples/building/plan_geometry.h>

namespace building {

namespace {

double cross(const plan_point& a, const plan_point& b) {
    return a.x * b.y - a.y * b.x;
}

const plan_point& next(const plan_contour& contour, std::size_t i) {
    return contour[(i + 1) % contour.size()];
}

} // namespace

double signed_area(const plan_contour& contour) {
    double twice = 0;
    for (std::size_t i = 0; i < contour.size(); ++i) {
        twice += cross(contour[i], next(contour, i));
    }
    return twice / 2;
}

plan_point centroid(const plan_contour& contour) {
    plan_point sum;
    for (std::size_t i = 0; i < contour.size(); ++i) {
        const plan_point& p = contour[i];
        const plan_point& q = next(contour, i);
        sum.x += (p.x + q.x) * cross(p, q);
        sum.y += (p.y + q.y) * cross(p, q);
    }
    const double scale = 1 / (6 * signed_area(contour));
    return {sum.x * scale, sum.y * scale};
}

plan_contour clipped(const plan_contour& convex, double a, double b, double c) {
    plan_contour kept;
    for (std::size_t i = 0; i < convex.size(); ++i) {
        const plan_point& p = convex[i];
        const plan_point& q = next(convex, i);
        const double dp = a * p.x + b * p.y + c;
        const double dq = a * q.x + b * q.y + c;
        if (dp >= 0) {
            kept.push_back(p);
        }
        if ((dp >= 0) != (dq >= 0)) {
            const double t = dp / (dp - dq);
            kept.push_back({p.x + t * (q.x - p.x), p.y + t * (q.y - p.y)});
        }
    }
    return kept;
}

plan_contour intersection(const plan_contour& convex, const plan_contour& other) {
    plan_contour common = convex;
    for (std::size_t i = 0; i < other.size(); ++i) {
        const plan_point& p = other[i];
        const plan_point& q = next(other, i);
        // Left of the edge p-q is inside.
        common = clipped(common, p.y - q.y, q.x - p.x, cross(p, q));
    }
    return common;
}

} // namespace building
