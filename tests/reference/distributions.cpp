#include <cmath>
#include <cstddef>
#include <random>

#include <ox/geometry/ox_box.h>
#include <tests/reference/contains.h>
#include <tests/reference/distributions.h>
#include <tests/reference/plain_dice.h>

namespace reference {

std::vector<ox::ox_3dvector> regular_distribution(ox::ox_polygon& polygon, float step) {
    return regular_distribution(polygon, plane_frame(polygon), step);
}

std::vector<ox::ox_3dvector> regular_distribution(ox::ox_polygon& polygon, const plane_frame& frame,
                                                  float step) {
    std::vector<ox::ox_3dvector> points;
    ox::ox_box box;
    for (const ox::ox_3dvector& v : polygon.get_contour_vertices()) {
        const ox::ox_2dvector q = frame.coordinates(v);
        box.enlarge(ox::ox_3dvector(q.x, q.y, 0.0f));
    }
    if (box.is_empty() || !(step > 0.0f)) {
        return points;
    }
    const float first_u = box.origin.x - step / 2.0f;
    const float first_w = box.origin.y - step / 2.0f;
    const float width = box.size.x + step;
    const float height = box.size.y + step;
    float w = first_w;
    while (w < first_w + height) {
        float u = first_u;
        while (u < first_u + width) {
            const ox::ox_3dvector p = frame.point + u * frame.dx + w * frame.dy;
            if (contains(polygon, frame, p)) {
                points.push_back(p);
            }
            if (!(u + step > u)) {
                break;
            }
            u = u + step;
        }
        if (!(w + step > w)) {
            break;
        }
        w = w + step;
    }
    return points;
}

std::vector<ox::ox_3dvector> random_distribution(ox::ox_polygon& polygon, int count, int seed) {
    std::vector<ox::ox_3dvector> points;
    const ox::ox_list<unsigned int>& triangles = polygon.get_tesselation_triangles();
    const auto vertex = [&](int i) {
        return polygon.get_tesselation_vertices()[static_cast<int>(triangles[i])];
    };
    std::vector<float> sums;
    for (int i = 0; i + 2 < triangles.size(); i += 3) {
        const float area =
            ox::ox_polygon::compute_triangle_area(vertex(i), vertex(i + 1), vertex(i + 2));
        sums.push_back((sums.empty() ? 0.0f : sums.back()) + area);
    }
    if (sums.empty()) {
        return points;
    }
    std::mt19937 engine(static_cast<std::mt19937::result_type>(seed));
    const auto dice = [&] { return static_cast<float>(plain_dice(engine, 0, 1000000)) / 1e6f; };
    for (int n = 0; n < count; ++n) {
        const float r = dice() * sums.back();
        std::size_t t = 0;
        while (t + 1 < sums.size() && !(sums[t] > r)) {
            ++t;
        }
        float a = dice();
        float b = dice();
        if (a + b > 1.0f) {
            a = 1.0f - a;
            b = 1.0f - b;
        }
        const int i = static_cast<int>(t) * 3;
        const ox::ox_3dvector corner = vertex(i);
        points.push_back(corner + a * (vertex(i + 1) - corner) + b * (vertex(i + 2) - corner));
    }
    return points;
}

namespace {

struct point {
    double x;
    double y;
};

double dot(const ox::ox_3dvector& a, const ox::ox_3dvector& b) {
    return static_cast<double>(a.x) * static_cast<double>(b.x) +
           static_cast<double>(a.y) * static_cast<double>(b.y) +
           static_cast<double>(a.z) * static_cast<double>(b.z);
}

point operator-(const point& a, const point& b) {
    return {a.x - b.x, a.y - b.y};
}

double cross(const point& a, const point& b) {
    return a.x * b.y - a.y * b.x;
}

bool is_crossed_left_of(const point& a, const point& b, const point& q) {
    if ((a.y > q.y) == (b.y > q.y)) {
        return false;
    }
    const double at = a.y == q.y   ? a.x
                      : b.y == q.y ? b.x
                                   : a.x + (q.y - a.y) / (b.y - a.y) * (b.x - a.x);
    return q.x > at;
}

double square_distance(const point& q, const point& a, const point& b) {
    const point ab = b - a;
    const point aq = q - a;
    const double along = ab.x * aq.x + ab.y * aq.y;
    double t = 0.0;
    if (along > 0.0) {
        t = std::fmin(along / (ab.x * ab.x + ab.y * ab.y), 1.0);
    }
    const point foot{t * ab.x, t * ab.y};
    const point away = aq - foot;
    return away.x * away.x + away.y * away.y;
}

} // namespace

int fill_regular_grid(ox::ox_polygon& polygon, std::vector<bool>& grid,
                      const ox::ox_3dvector& origin, const ox::ox_3dvector& dx,
                      const ox::ox_3dvector& dy, int nx, int ny, float margin) {
    const plane_frame frame(polygon);
    const auto flat = [&](const ox::ox_3dvector& v) {
        return point{dot(v, frame.dx), dot(v, frame.dy)};
    };
    const point x = flat(dx);
    const point y = flat(dy);
    const double clear = margin > 0.0f ? static_cast<double>(margin) : 0.0;
    int set = 0;
    grid.clear();
    for (int cell = 0; cell < nx * ny; ++cell) {
        const point q{cell % nx + 0.5, cell / nx + 0.5};
        const point centre{q.x * x.x + q.y * y.x, q.x * x.y + q.y * y.y};
        bool inside = false;
        bool in_margin = false;
        int first = 0;
        for (const unsigned int size : polygon.get_contour_sizes()) {
            const int n = static_cast<int>(size);
            for (int i = 0; i < n; ++i) {
                const auto corner = [&](int k) {
                    return flat(polygon.get_contour_vertices()[first + k % n]) - flat(origin);
                };
                const auto in_cells = [&](const point& p) {
                    return point{cross(p, y) / cross(x, y), cross(x, p) / cross(x, y)};
                };
                const point a = corner(i);
                const point b = corner(i + 1);
                inside ^= is_crossed_left_of(in_cells(a), in_cells(b), q);
                in_margin = in_margin || square_distance(centre, a, b) < clear * clear;
            }
            first += n;
        }
        grid.push_back(inside && !in_margin);
        set += grid.back() ? 1 : 0;
    }
    return set;
}

} // namespace reference
