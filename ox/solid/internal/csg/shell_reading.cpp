#include <cmath>
#include <cstdint>
#include <cstdlib>

#include <ox/internal/vectors.h>
#include <ox/solid/internal/csg/shell.h>

namespace ox::internal::csg {

namespace {

/// Tolerances: the largest coordinate that can be told from its neighbours with a margin for
/// half-spaces.
constexpr double largest_tolerances = 1073741824.0; // 2^30

using ring = std::vector<unsigned int>;

/// The rings of each face, as far as the lists are consistent.
std::vector<std::vector<ring>> read_rings(const operand& given) {
    std::vector<std::vector<ring>> faces;
    const std::int64_t vertex_count = std::max(given.vertices.size(), 0);
    std::int64_t place = 0;
    for (const int size : given.contour_sizes) {
        const std::int64_t length = std::abs(std::int64_t{size});
        if (place + length > given.contours.size()) {
            break;
        }
        ring read;
        for (std::int64_t i = 0; i < length; ++i, ++place) {
            const unsigned int index = given.contours[static_cast<int>(place)];
            if (index >= vertex_count) {
                return faces;
            }
            read.push_back(index);
        }
        if (size > 0 || faces.empty()) {
            faces.emplace_back();
        }
        faces.back().push_back(std::move(read));
    }
    return faces;
}

/// The nearest finite vertex of a ring from place `i` on in steps of `direction`, else the origin.
ox_3dvector nearest_finite(const operand& given, const ring& vertices, std::size_t i,
                           std::size_t direction) {
    for (std::size_t n = 1; n < vertices.size(); ++n) {
        const std::size_t place = (i + n * direction) % vertices.size();
        const ox_3dvector& candidate = given.vertices[static_cast<int>(vertices[place])];
        if (is_finite(candidate)) {
            return candidate;
        }
    }
    return ox_3dvector();
}

bool is_too_large(const ox_3dvector& v, float tolerance) {
    const double limit = largest_tolerances * static_cast<double>(tolerance);
    return tolerance > 0.0f && (std::fabs(static_cast<double>(v.x)) > limit ||
                                std::fabs(static_cast<double>(v.y)) > limit ||
                                std::fabs(static_cast<double>(v.z)) > limit);
}

/// Appends the first problem of a ring's coordinates; true where there is none.
bool check_ring(const operand& given, const ring& vertices, int number, float tolerance,
                std::vector<ox_csg_problem>& problems) {
    for (std::size_t i = 0; i < vertices.size(); ++i) {
        const ox_3dvector& v = given.vertices[static_cast<int>(vertices[i])];
        if (!is_finite(v)) {
            const std::size_t backwards = vertices.size() - 1;
            problems.push_back({number, ox_csg_problem::problem_not_finite,
                                nearest_finite(given, vertices, i, backwards),
                                nearest_finite(given, vertices, i, 1)});
            return false;
        }
        if (is_too_large(v, tolerance)) {
            problems.push_back({number, ox_csg_problem::problem_too_large, v, v});
            return false;
        }
    }
    return true;
}

/// Appends a ring with points of its own to a face.
void append_ring(const operand& given, const ring& vertices, const working_grid& grid, shell& read,
                 face_boundary& face) {
    const int base = static_cast<int>(read.points.size());
    const int count = static_cast<int>(vertices.size());
    for (int i = 0; i < count; ++i) {
        const ox_3dvector& v =
            given.vertices[static_cast<int>(vertices[static_cast<std::size_t>(i)])];
        read.points.push_back(grid.to_grid(v));
        read.vertices.push_back(v);
        face.push_back({base + i, base + (i + 1) % count});
    }
}

} // namespace

shell read_shell(const operand& given, int number, float tolerance, const working_grid& grid,
                 std::vector<ox_csg_problem>& problems) {
    shell read;
    for (const std::vector<ring>& rings : read_rings(given)) {
        face_boundary face;
        for (const ring& vertices : rings) {
            if (check_ring(given, vertices, number, tolerance, problems)) {
                append_ring(given, vertices, grid, read, face);
            }
        }
        read.faces.push_back(std::move(face));
    }
    return read;
}

} // namespace ox::internal::csg
