// How the plain values are written to a stream.

#include <ox/geometry/ox_2dvector.h>

#include <ostream>

#include <ox/geometry/ox_3dvector.h>
#include <ox/geometry/ox_box.h>
#include <ox/geometry/ox_color.h>
#include <ox/geometry/ox_matrix.h>
#include <ox/geometry/ox_polar.h>

namespace ox {

std::ostream& operator<<(std::ostream& out, const ox_2dvector& v) {
    return out << '(' << v.x << ", " << v.y << ')';
}

std::ostream& operator<<(std::ostream& out, const ox_3dvector& v) {
    return out << '(' << v.x << ", " << v.y << ", " << v.z << ')';
}

std::ostream& operator<<(std::ostream& out, const ox_polar& v) {
    return out << '(' << v.radius << ", " << v.latitude << ", " << v.longitude << ')';
}

std::ostream& operator<<(std::ostream& out, const ox_box& b) {
    return out << '[' << b.origin << " + " << b.size << ']';
}

std::ostream& operator<<(std::ostream& out, const ox_color& c) {
    return out << '(' << c.r << ", " << c.g << ", " << c.b << ", " << c.a << ')';
}

std::ostream& operator<<(std::ostream& out, const ox_matrix& m) {
    for (unsigned int row = 0; row < 4; ++row) {
        out << (row == 0 ? "[" : "; ") << m[row] << ' ' << m[4 + row] << ' ' << m[8 + row] << ' '
            << m[12 + row];
    }
    return out << ']';
}

} // namespace ox
