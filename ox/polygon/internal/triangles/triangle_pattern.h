#ifndef OX_POLYGON_INTERNAL_TRIANGLES_TRIANGLE_PATTERN_H
#define OX_POLYGON_INTERNAL_TRIANGLES_TRIANGLE_PATTERN_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include <ox/core/ox_list.h>
#include <ox/geometry/ox_3dvector.h>
#include <ox/polygon/internal/triangles/tessellator.h>

// What the tessellator answers for a small region, known without asking it.

namespace ox::internal {

/// Triangles of one or two small contours: the vertices of the primitives as indices into those of
/// the contours, and three indices into them per triangle.
class triangle_pattern {
public:
    /// Of both contours together. With a hole they make as many triangles, whose corners not even
    /// single triangles exceed.
    static constexpr std::size_t most_vertices = 8;
    static constexpr int most_contours = 2;

    /// What the tessellator answered for the vertices at `coordinates`; it must not have made
    /// vertices.
    triangle_pattern(const tessellator_answer& answer, const double* coordinates);

    /// Writes the triangles of the contours with these vertices into the two lists.
    void apply(const ox_3dvector* contours, ox_list<ox_3dvector>& vertices,
               ox_list<unsigned int>& triangles) const;

private:
    static constexpr std::size_t most_corners = 3 * most_vertices;

    std::array<std::uint8_t, most_corners> vertex_indices{};
    std::array<std::uint8_t, most_corners> corner_indices{};
    int vertex_count = 0;
    int corner_count = 0;
};

/// How small contours lie, as far as the tessellator looks at them: their sizes, the order of
/// the vertices in its sweep, which of them are at the same place of it, and the side on
/// which every vertex lies of the line through any two others. It decides by nothing else as long
/// as no edges cross, so contours with the same key have the same pattern, when it does not make
/// them one fan.
using triangle_pattern_key = std::array<std::uint64_t, 2>;

/// Finds the key of concatenated contours. None for too many vertices or contours, for two that the
/// sweep meets one after the other (the tessellator then looks farther), and for three vertices
/// so close to one line or two so close in the sweep that roundings could decide. O(1).
std::optional<triangle_pattern_key> find_triangle_pattern_key(const ox_3dvector* contours,
                                                              const ox_list<unsigned int>& sizes,
                                                              const ox_3dvector& normal);

/// The pattern kept for a key by this thread, null when there is none.
const triangle_pattern* find_triangle_pattern(const triangle_pattern_key& key);

/// Keeps a pattern for this thread, unless too many are kept.
void keep_triangle_pattern(const triangle_pattern_key& key, triangle_pattern&& pattern);

/// In which direction the triangles around a contour's first vertex run about the normal.
enum class fan_kind {
    forward,  ///< all counter-clockwise
    backward, ///< all clockwise
    mixed,    ///< some of each, or not a number of vertices of which the tessellator makes one fan
    doubtful, ///< too flat to tell: roundings could decide
};

/// Looks for a fan around the first vertex. O(size).
fan_kind find_fan(const ox_3dvector* contour, std::size_t size, const ox_3dvector& normal);

/// Writes the triangles of a contour that is a fan forward or backward, as every convex contour is:
/// the tessellator makes it one fan. O(size).
void take_fan(const ox_3dvector* contour, std::size_t size, fan_kind fan,
              ox_list<ox_3dvector>& vertices, ox_list<unsigned int>& triangles);

} // namespace ox::internal

#endif
