#include <algorithm>
#include <array>
#include <limits>

#include <ox/internal/vectors.h>
#include <ox/internal/wide_vector.h>
#include <ox/solid/internal/measures/open_edges.h>
#include <ox/solid/internal/stored_contours.h>
#include <ox/solid/ox_solid.h>

namespace ox {

using namespace internal;

namespace {

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
wide_vector centre_of(const ox_list<ox_3dvector>& vertices) {
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
    centred_contour(const ox_solid& solid, const wide_vector& solid_centre,
                    const stored_contour& stored)
        : vertices(solid.get_vertices()), centre(solid_centre), contour(stored) {}

    wide_vector at(int i) const {
        return to_wide(vertices[static_cast<int>(contour.indices[i])]) - centre;
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
    wide_vector get_double_area() const {
        wide_vector sum;
        for (int i = 1; i + 1 < contour.size; ++i) {
            sum = sum + cross(at(i) - at(0), at(i + 1) - at(0));
        }
        return sum;
    }

private:
    const ox_list<ox_3dvector>& vertices;
    const wide_vector& centre;
    const stored_contour& contour;
};

} // namespace

// Measures

double ox_solid::get_volume() const {
    const wide_vector centre = centre_of(get_vertices());
    double sum = 0.0;
    visit_contours(*this, [&](const stored_contour& contour) {
        sum += centred_contour(*this, centre, contour).get_sextuple_volume();
    });
    return sum / 6.0;
}

double ox_solid::get_surface_area() const {
    const wide_vector centre = centre_of(get_vertices());
    double sum = 0.0;
    wide_vector face;
    visit_contours(*this, [&](const stored_contour& contour) {
        if (contour.opens_face) {
            sum += length(face);
            face = {};
        }
        face = face + centred_contour(*this, centre, contour).get_double_area();
    });
    return (sum + length(face)) / 2.0;
}

ox_list<ox_3dvector> ox_solid::get_open_edges(float tolerance) const {
    return find_open_edges(*this, tolerance > 0.0f ? static_cast<double>(tolerance) : 0.0);
}

} // namespace ox
