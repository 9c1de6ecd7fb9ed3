#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include <ox/internal/vectors.h>
#include <ox/solid/internal/measures/open_edges.h>
#include <ox/solid/internal/stored_contours.h>
#include <ox/solid/ox_solid.h>

namespace ox {

namespace {

using internal::stored_contour;
using internal::visit_contours;

/// A position or an area vector in double precision, so that measuring adds no rounding to speak
/// of.
struct double_vector {
    double x;
    double y;
    double z;
};

double_vector operator+(const double_vector& a, const double_vector& b) {
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}

double dot(const double_vector& a, const double_vector& b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

double_vector cross(const double_vector& a, const double_vector& b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

/// The extremes of the finite vertices along one axis.
struct extremes {
    double low = std::numeric_limits<double>::infinity();
    double high = -std::numeric_limits<double>::infinity();

    void include(float coordinate) {
        low = std::min(low, static_cast<double>(coordinate));
        high = std::max(high, static_cast<double>(coordinate));
    }

    double centre() const { return low <= high ? (low + high) / 2.0 : 0.0; }
};

/// The centre of the box around all vertices that are finite; the origin without any.
double_vector centre_of(const ox_list<ox_3dvector>& vertices) {
    std::array<extremes, 3> axes;
    for (const ox_3dvector& v : vertices) {
        if (is_finite(v)) {
            axes[0].include(v.x);
            axes[1].include(v.y);
            axes[2].include(v.z);
        }
    }
    return {axes[0].centre(), axes[1].centre(), axes[2].centre()};
}

/// The vertices of one contour as seen from the centre of the solid.
class centred_contour {
public:
    centred_contour(const ox_solid& solid, const double_vector& solid_centre,
                    const stored_contour& stored)
        : vertices(solid.get_vertices()), centre(solid_centre), contour(stored) {}

    double_vector at(int i) const {
        const ox_3dvector& v = vertices[static_cast<int>(contour.indices[i])];
        return {static_cast<double>(v.x) - centre.x, static_cast<double>(v.y) - centre.y,
                static_cast<double>(v.z) - centre.z};
    }

    /// Six times the volume between the centre and the triangles of the contour about its first
    /// vertex.
    double get_sextuple_volume() const {
        double sum = 0.0;
        for (int i = 1; i + 1 < contour.size; ++i) {
            sum += dot(at(0), cross(at(i), at(i + 1)));
        }
        return sum;
    }

    /// Twice the area, along the normal. Measured from the first vertex, because differences of
    /// near points lose least.
    double_vector get_double_area() const {
        double_vector sum = {0.0, 0.0, 0.0};
        for (int i = 1; i + 1 < contour.size; ++i) {
            sum = sum + cross(from_first(i), from_first(i + 1));
        }
        return sum;
    }

private:
    double_vector from_first(int i) const {
        const double_vector first = at(0);
        const double_vector other = at(i);
        return {other.x - first.x, other.y - first.y, other.z - first.z};
    }

    const ox_list<ox_3dvector>& vertices;
    const double_vector& centre;
    const stored_contour& contour;
};

double length(const double_vector& v) {
    return std::sqrt(dot(v, v));
}

} // namespace

// Measures

double ox_solid::get_volume() const {
    const double_vector centre = centre_of(get_vertices());
    double sum = 0.0;
    visit_contours(*this, [&](const stored_contour& contour) {
        sum += centred_contour(*this, centre, contour).get_sextuple_volume();
    });
    return sum / 6.0;
}

double ox_solid::get_surface_area() const {
    const double_vector centre = centre_of(get_vertices());
    double sum = 0.0;
    double_vector face = {0.0, 0.0, 0.0};
    visit_contours(*this, [&](const stored_contour& contour) {
        if (contour.opens_face) {
            sum += length(face);
            face = {0.0, 0.0, 0.0};
        }
        face = face + centred_contour(*this, centre, contour).get_double_area();
    });
    return (sum + length(face)) / 2.0;
}

ox_list<ox_3dvector> ox_solid::get_open_edges(float tolerance) const {
    return internal::find_open_edges(*this,
                                     tolerance > 0.0f ? static_cast<double>(tolerance) : 0.0);
}

} // namespace ox
