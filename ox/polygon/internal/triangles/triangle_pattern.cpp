#include <ox/polygon/internal/triangles/triangle_pattern.h>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

#include <ox/internal/wide_vector.h>
#include <ox/polygon/internal/answer_memory.h>
#include <ox/polygon/internal/tolerances.h>

namespace ox::internal {
namespace {

/// The tessellator looks for a fan only in so many vertices.
constexpr std::size_t most_fan_vertices = 100;

/// A vertex in the plane of the tessellator's sweep, which runs along s.
struct sweep_vertex {
    double s = 0.0;
    double t = 0.0;
    std::size_t index = 0;
};

bool is_swept_before(const sweep_vertex& a, const sweep_vertex& b) {
    return (a.s < b.s) | ((a.s == b.s) & (a.t < b.t)); // without branches
}

/// The plane of the tessellator's sweep: it leaves out the coordinate along which the normal is
/// longest.
class sweep_plane {
public:
    explicit sweep_plane(const ox_3dvector& normal) {
        unsigned int longest = std::fabs(normal.y) > std::fabs(normal.x) ? 1 : 0;
        longest = std::fabs(normal.z) > std::fabs(normal.at(longest)) ? 2 : longest;
        s_axis = (longest + 1) % 3;
        t_axis = (longest + 2) % 3;
        t_sign = normal.at(longest) > 0.0f ? 1.0 : -1.0;
    }

    sweep_vertex place(const ox_3dvector& v, std::size_t index) const {
        return {static_cast<double>(v.at(s_axis)), t_sign * static_cast<double>(v.at(t_axis)),
                index};
    }

private:
    unsigned int s_axis;
    unsigned int t_axis;
    double t_sign;
};

/// On which side of the line from `a` to `c` the vertex `b` between them lies.
double side_of(const sweep_vertex& a, const sweep_vertex& b, const sweep_vertex& c) {
    return (b.t - c.t) * (b.s - a.s) + (b.t - a.t) * (c.s - b.s);
}

/// Appends bits to a key: 4 for the sizes, 4 for each vertex but one and 1 for any three vertices.
class key_writer {
public:
    void append(std::uint64_t value, unsigned int bits) {
        const unsigned int left = 64 - bits;
        key[1] = key[1] << bits | key[0] >> left;
        key[0] = key[0] << bits | value;
    }

    const triangle_pattern_key& value() const { return key; }

private:
    triangle_pattern_key key{1, 0}; // keys of different lengths differ
};

using swept_vertices = std::array<sweep_vertex, triangle_pattern::most_vertices>;

/// The vertices in the order of the sweep. They are counted to their places: the branches of a sort
/// would all be guesses.
swept_vertices sweep(const ox_3dvector* contours, std::size_t size, const ox_3dvector& normal) {
    const sweep_plane plane(normal);
    swept_vertices given;
    std::array<std::size_t, triangle_pattern::most_vertices> places{};
    for (std::size_t i = 0; i < size; ++i) {
        given[i] = plane.place(contours[i], i);
        for (std::size_t j = 0; j < i; ++j) {
            const bool before = is_swept_before(given[i], given[j]);
            places[i] += before ? 0 : 1;
            places[j] += before ? 1 : 0;
        }
    }
    swept_vertices sorted;
    for (std::size_t i = 0; i < size; ++i) {
        sorted[places[i]] = given[i];
    }
    return sorted;
}

double extent_of(const sweep_vertex* vertices, std::size_t size) {
    double low = vertices[0].t;
    double high = low;
    for (std::size_t i = 1; i < size; ++i) {
        low = std::min(low, vertices[i].t);
        high = std::max(high, vertices[i].t);
    }
    return std::max(high - low, vertices[size - 1].s - vertices[0].s);
}

/// The order of the vertices: the last one follows from the others. False where two are the same
/// or nearly at the same place of the sweep.
bool append_order(const sweep_vertex* sorted, std::size_t size, double extent, key_writer& key) {
    for (std::size_t i = 0; i + 1 < size; ++i) {
        const double step = sorted[i + 1].s - sorted[i].s;
        const bool level = step == 0.0;
        if (level ? sorted[i].t == sorted[i + 1].t : step < sweep_clearance * extent) {
            return false;
        }
        key.append(sorted[i].index, 3);
        key.append(level ? 1 : 0, 1);
    }
    return true;
}

/// The side on which the middle one of any three lies of the line through the others. False where
/// that is in doubt.
bool append_sides(const sweep_vertex* sorted, std::size_t size, double extent, key_writer& key) {
    const double doubt = sweep_clearance * extent * extent;
    std::uint64_t sides = 0;
    unsigned int count = 0; // 56 for most_vertices
    for (std::size_t a = 0; a < size; ++a) {
        for (std::size_t b = a + 1; b < size; ++b) {
            for (std::size_t c = b + 1; c < size; ++c) {
                const double side = side_of(sorted[a], sorted[b], sorted[c]);
                if (!(std::fabs(side) > doubt)) {
                    return false;
                }
                sides = sides << 1 | (side > 0.0 ? 1u : 0u);
                ++count;
            }
        }
    }
    key.append(sides, count);
    return true;
}

using pattern_memory = answer_memory<triangle_pattern_key, triangle_pattern>;

pattern_memory& kept_patterns() {
    static thread_local pattern_memory kept;
    return kept;
}

} // namespace

triangle_pattern::triangle_pattern(const tessellator_answer& answer, const double* coordinates)
    : vertex_count(static_cast<int>(answer.vertices.size())),
      corner_count(static_cast<int>(answer.triangles.size())) {
    std::transform(answer.vertices.begin(), answer.vertices.end(), vertex_indices.begin(),
                   [coordinates](const double* vertex) {
                       return static_cast<std::uint8_t>((vertex - coordinates) / 3);
                   });
    std::transform(answer.triangles.begin(), answer.triangles.end(), corner_indices.begin(),
                   [](unsigned int index) { return static_cast<std::uint8_t>(index); });
}

void triangle_pattern::apply(const ox_3dvector* contours, ox_list<ox_3dvector>& vertices,
                             ox_list<unsigned int>& triangles) const {
    vertices.set_size(vertex_count);
    for (int i = 0; i < vertex_count; ++i) {
        vertices[i] = contours[vertex_indices[static_cast<std::size_t>(i)]];
    }
    triangles.set_size(corner_count);
    for (int i = 0; i < corner_count; ++i) {
        triangles[i] = corner_indices[static_cast<std::size_t>(i)];
    }
}

std::optional<triangle_pattern_key> find_triangle_pattern_key(const ox_3dvector* contours,
                                                              const ox_list<unsigned int>& sizes,
                                                              const ox_3dvector& normal) {
    if (sizes.size() > triangle_pattern::most_contours) {
        return std::nullopt;
    }
    const std::size_t size = std::accumulate(sizes.begin(), sizes.end(), std::size_t{0});
    if (size < 3 || size > triangle_pattern::most_vertices) {
        return std::nullopt;
    }
    const swept_vertices vertices = sweep(contours, size, normal);
    // Where all contours swept so far have ended, the tessellator goes on from far away, and the
    // next contour's place relative to that decides.
    if ((vertices[0].index < sizes[0]) != (vertices[size - 1].index < sizes[0])) {
        return std::nullopt;
    }
    const double extent = extent_of(vertices.data(), size);
    key_writer key;
    key.append(sizes[0], 4);
    if (!append_order(vertices.data(), size, extent, key) ||
        !append_sides(vertices.data(), size, extent, key)) {
        return std::nullopt;
    }
    return key.value();
}

const triangle_pattern* find_triangle_pattern(const triangle_pattern_key& key) {
    return kept_patterns().find(key);
}

void keep_triangle_pattern(const triangle_pattern_key& key, triangle_pattern&& pattern) {
    kept_patterns().keep(key, std::move(pattern));
}

fan_kind find_fan(const ox_3dvector* contour, std::size_t size, const ox_3dvector& normal) {
    if (size < 3 || size > most_fan_vertices) {
        return fan_kind::mixed;
    }
    const double scale = static_cast<double>(normal.manhattan_size()) * fan_rounding;
    bool any_forward = false;
    bool any_backward = false;
    bool any_doubtful = false;
    wide_vector before = to_wide(contour[1]) - to_wide(contour[0]);
    for (std::size_t i = 2; i < size; ++i) {
        const wide_vector after = to_wide(contour[i]) - to_wide(contour[0]);
        // how far the normal of the triangle points along that of the plane
        const double turn = dot(cross(before, after), to_wide(normal));
        const double doubt = scale * manhattan_size(before) * manhattan_size(after);
        any_forward = any_forward || turn > doubt;
        any_backward = any_backward || turn < -doubt;
        any_doubtful = any_doubtful || !(std::fabs(turn) > doubt);
        before = after;
    }
    if (any_forward && any_backward) {
        return fan_kind::mixed;
    }
    if (any_doubtful) {
        return fan_kind::doubtful;
    }
    return any_forward ? fan_kind::forward : fan_kind::backward;
}

void take_fan(const ox_3dvector* contour, std::size_t size, fan_kind fan,
              ox_list<ox_3dvector>& vertices, ox_list<unsigned int>& triangles) {
    const int n = static_cast<int>(size);
    vertices.set_size(n);
    triangles.set_size(3 * (n - 2));
    vertices[0] = contour[0];
    for (int i = 1; i < n; ++i) {
        vertices[i] = contour[fan == fan_kind::forward ? i : n - i];
    }
    for (int i = 0; i < n - 2; ++i) {
        triangles[3 * i] = 0;
        triangles[3 * i + 1] = static_cast<unsigned int>(i + 1);
        triangles[3 * i + 2] = static_cast<unsigned int>(i + 2);
    }
}

} // namespace ox::internal
