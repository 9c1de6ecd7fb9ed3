#include <algorithm>
#include <cmath>

#include <tests/reference/intersect_by_plane.h>

namespace reference {

namespace {

struct record {
    ox::ox_3dvector point;
    bool flag;
    float key;
};

int sign(float value) {
    if (value < 0.0f) {
        return -1;
    }
    return value > 0.0f ? 1 : 0;
}

} // namespace

std::vector<ox::ox_3dvector> intersect_by_plane(ox::ox_polygon& polygon,
                                                const ox::ox_3dvector& point,
                                                const ox::ox_3dvector& normal) {
    if (std::fabs(ox::ox_dot(normal, polygon.get_normal())) > 0.999f) {
        return {};
    }
    std::vector<record> records;
    int start = 0;
    for (int c = 0; c < polygon.get_contour_sizes().size(); ++c) {
        const int n = static_cast<int>(polygon.get_contour_sizes()[c]);
        const int r = polygon.get_contour_orientations()[c] ? -1 : 1;
        for (int k = 0; k < n; ++k) {
            const ox::ox_3dvector before = polygon.get_contour_vertices()[start + k];
            const ox::ox_3dvector from = polygon.get_contour_vertices()[start + (k + 1) % n];
            const ox::ox_3dvector to = polygon.get_contour_vertices()[start + (k + 2) % n];
            const int p = sign(ox::ox_dot(before - point, normal));
            const int a = sign(ox::ox_dot(from - point, normal));
            const int b = sign(ox::ox_dot(to - point, normal));
            if (a == b) {
                continue;
            }
            if (a == 0 || b == 0) {
                if (a != 0 || p == b) {
                    continue;
                }
                records.push_back({from, p == 0 ? b != r : p == r, 0.0f});
            } else {
                const float t = ox::ox_dot(point - from, normal) / ox::ox_dot(to - from, normal);
                records.push_back({from + t * (to - from), a == r, 0.0f});
            }
        }
        start += n;
    }
    if (records.empty() || records.size() % 2 == 1) {
        return {};
    }
    ox::ox_3dvector u = ox::ox_cross(normal, polygon.get_normal());
    u.normalize();
    const ox::ox_3dvector q = records[0].point;
    for (record& each : records) {
        each.key = ox::ox_dot(each.point - q, u);
    }
    // Insertion sort: plain, and stable.
    for (std::size_t i = 1; i < records.size(); ++i) {
        for (std::size_t j = i; j > 0 && records[j - 1].key > records[j].key; --j) {
            std::swap(records[j - 1], records[j]);
        }
    }
    std::vector<ox::ox_3dvector> points;
    for (std::size_t i = 0; i < records.size(); ++i) {
        if (i % 2 == 0 && records[i].flag == records[i + 1].flag) {
            return {};
        }
        points.push_back(records[i].point);
    }
    return points;
}

} // namespace reference
