#include <ox/geometry/ox_box.h>

namespace ox {

namespace {

void enlarge_axis(float& origin, float& size, float p) {
    if (origin > p) {
        size = origin + size - p;
        origin = p;
    } else if (p > origin + size) {
        size = p - origin;
    }
}

bool overlaps_axis(float origin1, float size1, float origin2, float size2) {
    return !(origin2 >= origin1 + size1 || origin1 >= origin2 + size2);
}

} // namespace

void ox_box::enlarge(const ox_3dvector& p) {
    const ox_3dvector point = p; // p may be a part of this box
    if (is_empty()) {
        origin = point;
        size = ox_3dvector();
        return;
    }
    enlarge_axis(origin.x, size.x, point.x);
    enlarge_axis(origin.y, size.y, point.y);
    enlarge_axis(origin.z, size.z, point.z);
}

void ox_box::enlarge(const ox_box& b) {
    if (b.is_empty()) {
        return;
    }
    if (is_empty()) {
        *this = b;
        return;
    }
    const ox_3dvector last = b.origin + b.size; // b may be this box
    enlarge(b.origin);
    enlarge(last);
}

bool ox_box::contains(const ox_3dvector& p) const {
    return p.x >= origin.x && p.y >= origin.y && p.z >= origin.z && p.x <= origin.x + size.x &&
           p.y <= origin.y + size.y && p.z <= origin.z + size.z;
}

bool ox_box::intersects(const ox_box& b) const {
    return overlaps_axis(origin.x, size.x, b.origin.x, b.size.x) &&
           overlaps_axis(origin.y, size.y, b.origin.y, b.size.y) &&
           overlaps_axis(origin.z, size.z, b.origin.z, b.size.z);
}

int ox_box::plane_status(const ox_3dvector& point, const ox_3dvector& normal) const {
    const float origin_side = ox_dot(origin - point, normal);
    int negative = 0;
    for (unsigned int corner = 0; corner < 8; ++corner) {
        float side = origin_side;
        for (unsigned int axis = 0; axis < 3; ++axis) {
            if ((corner >> axis & 1U) != 0) {
                side += normal.at(axis) * size.at(axis);
            }
        }
        if (side < 0.0f) {
            ++negative;
        }
    }
    if (negative == 8) {
        return -1;
    }
    return negative == 0 ? 1 : 0;
}

ox_list<ox_3dvector> ox_box::get_vertices() const {
    ox_list<ox_3dvector> vertices(8);
    for (unsigned int corner = 0; corner < 8; ++corner) {
        ox_3dvector& vertex = vertices[static_cast<int>(corner)];
        vertex = origin;
        for (unsigned int axis = 0; axis < 3; ++axis) {
            if ((corner >> axis & 1U) != 0) {
                vertex[axis] += size.at(axis);
            }
        }
    }
    return vertices;
}

} // namespace ox
