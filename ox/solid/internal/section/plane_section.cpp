// The cross-section of a solid by a plane, as slicers of boundary models make it.
//
// 1. Each face gives the points where its contours cross the plane, sorted along the line in which
//    face and plane meet.
// 2. The sorted points of a face, taken in pairs, are segments: the line enters the face at the
//    first of a pair and leaves it at the second. Normals that point outwards make all segments
//    run the same way round the section.
// 3. Segments are joined end to start into chains.
// 4. The chains, closed or not, are the contours of the section.

#include <ox/solid/internal/section/plane_section.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

#include <ox/solid/internal/section/section_chains.h>

namespace ox::internal {

namespace {

/// A plane with the tolerance within which a point lies on it.
struct section_plane {
    ox_3dvector point;
    ox_3dvector normal;
    float tolerance;
};

/// A vertex seen from the plane.
struct sided_vertex {
    ox_3dvector position;
    float distance;
    int side; // 1 above, -1 below, 0 on the plane
};

/// A point where a contour crosses the plane, and its place along the cut line.
struct crossing {
    ox_3dvector point;
    float parameter;
};

sided_vertex see_from_plane(const ox_3dvector& position, const section_plane& plane) {
    const float distance = ox_dot(position - plane.point, plane.normal);
    const int side = distance < -plane.tolerance ? -1 : (distance > plane.tolerance ? 1 : 0);
    return {position, distance, side};
}

// Crossings of one face

/// True if the contour crosses the plane between `a` and `b`, or in `b`. Of a run of vertices on
/// the plane only one end counts: the one after which the contour leaves towards the other side, or
/// the one at which it arrives from below or leaves downwards.
bool is_crossing(const sided_vertex& a, const sided_vertex& b, const sided_vertex& c) {
    if (b.side != 0) {
        return a.side == -b.side;
    }
    return a.side != c.side && a.side + c.side != 1;
}

/// The point of a crossing: on the edge from `a` to `b`, or `b` moved onto the plane.
ox_3dvector crossing_point(const sided_vertex& a, const sided_vertex& b,
                           const section_plane& plane) {
    if (b.side == 0) {
        return b.position - b.distance * plane.normal;
    }
    const float t = -b.distance / (a.distance - b.distance);
    return t * a.position + (1.0f - t) * b.position;
}

/// Finds the segments in which a plane cuts faces. Its lists are used again for each face.
class segment_finder {
public:
    explicit segment_finder(const section_plane& cutting_plane) : plane(cutting_plane) {}

    /// Makes a segment of each pair of crossings along the cut line. An odd last one,
    /// which vertices within the tolerance of the plane can leave, bounds no segment and is
    /// dropped.
    void append_segments(ox_polygon& face, std::vector<section_segment>& segments);

private:
    void add_crossings();
    void sort_crossings();

    const section_plane plane;
    ox_3dvector line; // the cut line's direction
    std::vector<sided_vertex> contour;
    std::vector<crossing> crossings;
};

/// Adds the crossings of one contour, given by its vertices in order.
void segment_finder::add_crossings() {
    const std::size_t n = contour.size();
    for (std::size_t i = 0; i < n; ++i) {
        const sided_vertex& a = contour[i];
        const sided_vertex& b = contour[(i + 1) % n];
        const sided_vertex& c = contour[(i + 2) % n];
        if (is_crossing(a, b, c)) {
            const ox_3dvector point = crossing_point(a, b, plane);
            crossings.push_back({point, ox_dot(point - plane.point, line)});
        }
    }
}

/// Sorts the crossings by parameter; equal ones stay in the order of their arrival. A parameter
/// that is not a number has no place among the others: then each crossing in turn goes before the
/// first one that is greater.
void segment_finder::sort_crossings() {
    const auto is_number = [](const crossing& c) { return !std::isnan(c.parameter); };
    if (std::all_of(crossings.begin(), crossings.end(), is_number)) {
        std::stable_sort(
            crossings.begin(), crossings.end(),
            [](const crossing& a, const crossing& b) { return a.parameter < b.parameter; });
        return;
    }
    for (auto added = crossings.begin(); added != crossings.end(); ++added) {
        const float parameter = added->parameter;
        const auto place = std::find_if(crossings.begin(), added, [&](const crossing& stored) {
            return stored.parameter > parameter;
        });
        std::rotate(place, added, added + 1);
    }
}

void segment_finder::append_segments(ox_polygon& face, std::vector<section_segment>& segments) {
    line = ox_cross(plane.normal, face.get_normal());
    crossings.clear();
    const ox_3dvector* vertex = face.get_contour_vertices().get_data();
    for (const unsigned int size : face.get_contour_sizes()) {
        contour.clear();
        for (const ox_3dvector* const end = vertex + size; vertex != end; ++vertex) {
            contour.push_back(see_from_plane(*vertex, plane));
        }
        add_crossings();
    }
    sort_crossings();
    for (std::size_t i = 0; i + 1 < crossings.size(); i += 2) {
        segments.emplace_back(crossings[i].point, crossings[i + 1].point);
    }
}

} // namespace

std::unique_ptr<ox_polygon> plane_section(const ox_list<ox_polygon*>& faces, const face_tree& tree,
                                          const ox_3dvector& point, const ox_3dvector& normal,
                                          float tolerance) {
    segment_finder finder({point, normal, tolerance});
    std::vector<section_segment> segments;
    for (const int face : tree.find_faces_at(point, normal, tolerance)) {
        finder.append_segments(*faces[face], segments);
    }
    if (segments.empty()) {
        return nullptr;
    }
    chain_segments(segments, tolerance);
    auto section = std::make_unique<ox_polygon>(point, normal);
    for (std::size_t i = 0; i < segments.size(); ++i) {
        if (!segments[i].is_appended) {
            section->add_contour(list_points(segments, i));
        }
    }
    return section;
}

} // namespace ox::internal
