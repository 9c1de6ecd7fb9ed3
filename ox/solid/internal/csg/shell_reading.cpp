#include <algorithm>
#include <cmath>
#include <cstdint>
#include <utility>

#include <ox/internal/vectors.h>
#include <ox/solid/internal/csg/shell.h>
#include <ox/solid/internal/stored_contours.h>

namespace ox::internal::csg {

namespace {

/// Tolerances: the largest coordinate that can be told from its neighbours with a margin for
/// half-spaces.
constexpr double largest_tolerances = 1073741824.0; // 2^30

/// The nearest finite vertex of a ring from place `i` on in steps of `direction`, else the origin.
ox_3dvector nearest_finite(const operand& given, const stored_contour& ring, std::int64_t i,
                           std::int64_t direction) {
    for (std::int64_t n = 1; n < ring.size; ++n) {
        const std::int64_t place = (i + n * direction) % ring.size;
        const ox_3dvector& candidate = given.vertices[static_cast<int>(ring.indices[place])];
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
bool check_ring(const operand& given, const stored_contour& ring, int number, float tolerance,
                std::vector<ox_csg_problem>& problems) {
    for (int i = 0; i < ring.size; ++i) {
        const ox_3dvector& v = given.vertices[static_cast<int>(ring.indices[i])];
        if (!is_finite(v)) {
            const int backwards = ring.size - 1;
            problems.push_back({number, ox_csg_problem::problem_not_finite,
                                nearest_finite(given, ring, i, backwards),
                                nearest_finite(given, ring, i, 1)});
            return false;
        }
        if (is_too_large(v, tolerance)) {
            problems.push_back({number, ox_csg_problem::problem_too_large, v, v});
            return false;
        }
    }
    return true;
}

/// Puts the vertices that the rings of a solid name on the grid, each once.
class shell_reader {
public:
    shell_reader(const operand& read_operand, const working_grid& working)
        : given(read_operand), grid(working),
          numbers(static_cast<std::size_t>(std::max(given.vertices.size(), 0)), -1) {
        read.points.reserve(numbers.size());
        read.vertices.reserve(numbers.size());
        read.faces.reserve(static_cast<std::size_t>(std::max(given.contour_sizes.size(), 0)));
    }

    void open_face() { read.faces.emplace_back(); }
    void append_ring(const stored_contour& ring);

    shell read;

private:
    int number_of(unsigned int vertex);

    const operand& given;
    const working_grid& grid;
    std::vector<int> numbers; // of the point of each vertex, -1 where no ring has named it
};

int shell_reader::number_of(unsigned int vertex) {
    int& number = numbers[vertex];
    if (number < 0) {
        const ox_3dvector& v = given.vertices[static_cast<int>(vertex)];
        number = static_cast<int>(read.points.size());
        read.points.push_back(grid.to_grid(v));
        read.vertices.push_back(v);
    }
    return number;
}

/// Appends a ring to the face opened last.
void shell_reader::append_ring(const stored_contour& ring) {
    face_boundary& face = read.faces.back();
    face.reserve(face.size() + static_cast<std::size_t>(ring.size));
    const int first = ring.size > 0 ? number_of(ring.indices[0]) : -1;
    int from = first;
    for (int i = 1; i <= ring.size; ++i) {
        const int to = i < ring.size ? number_of(ring.indices[i]) : first;
        face.push_back({from, to});
        from = to;
    }
}

} // namespace

shell read_shell(const operand& given, int number, float tolerance, const working_grid& grid,
                 std::vector<ox_csg_problem>& problems) {
    shell_reader reader(given, grid);
    visit_contours(given.contours, given.contour_sizes, given.vertices.size(),
                   [&](const stored_contour& ring) {
                       if (ring.opens_face) {
                           reader.open_face();
                       }
                       if (check_ring(given, ring, number, tolerance, problems)) {
                           reader.append_ring(ring);
                       }
                   });
    return std::move(reader.read);
}

} // namespace ox::internal::csg
