// The cross-section of a solid by a plane, as slicers of boundary models make it.
//
// 1. Each face gives the points where its contours cross the plane, sorted along the line in which
//    face and plane meet.
// 2. The sorted points of a face, taken in pairs, are segments: the line enters the face at the
//    first of a pair and leaves it at the second. Normals that point outwards make all segments
//    run the same way round the section.
// 3. Segments are joined end to start into chains.
// 4. The chains, closed or not, are the contours of the section.

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

#include <ox/solid/internal/plane_section.h>

namespace ox {

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

/// A working contour of the section: a chain of segments.
struct ox_solid_contour {
    ox_list<ox_3dvector> points;
    bool closed = false;
    bool is_dead_end = false; // no later chain begins where this one ends
};

sided_vertex see_from_plane(const ox_3dvector& position, const section_plane& plane) {
    const float distance = ox_dot(position - plane.point, plane.normal);
    const int side = distance < -plane.tolerance ? -1 : (distance > plane.tolerance ? 1 : 0);
    return {position, distance, side};
}

// Crossings of one face

/// Whether the contour crosses the plane between `a` and `b`, or in `b`. Of a run of vertices on
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

/// Keeps the crossings sorted by parameter; equal ones stay in the order of their arrival.
void insert_sorted(std::vector<crossing>& crossings, const crossing& added) {
    const auto greater = [&](const crossing& stored) { return stored.parameter > added.parameter; };
    crossings.insert(std::find_if(crossings.begin(), crossings.end(), greater), added);
}

/// Adds the crossings of one contour, given by its vertices in order.
void add_crossings(const std::vector<sided_vertex>& contour, const section_plane& plane,
                   const ox_3dvector& line, std::vector<crossing>& crossings) {
    for (std::size_t i = 0; i < contour.size(); ++i) {
        const sided_vertex& a = contour[i];
        const sided_vertex& b = contour[(i + 1) % contour.size()];
        const sided_vertex& c = contour[(i + 2) % contour.size()];
        if (is_crossing(a, b, c)) {
            const ox_3dvector point = crossing_point(a, b, plane);
            insert_sorted(crossings, {point, ox_dot(point - plane.point, line)});
        }
    }
}

/// The crossings of all contours of a face, sorted along the cut line.
std::vector<crossing> find_crossings(ox_polygon& face, const section_plane& plane) {
    const ox_3dvector line = ox_cross(plane.normal, face.get_normal());
    const ox_list<ox_3dvector>& vertices = face.get_contour_vertices();
    std::vector<crossing> crossings;
    std::vector<sided_vertex> contour;
    int next = 0;
    for (const unsigned int size : face.get_contour_sizes()) {
        contour.clear();
        for (unsigned int i = 0; i < size; ++i) {
            contour.push_back(see_from_plane(vertices[next++], plane));
        }
        add_crossings(contour, plane, line, crossings);
    }
    return crossings;
}

/// Makes a working contour of each pair of crossings. An odd last one, which vertices within the
/// tolerance of the plane can leave, bounds no segment and is dropped.
void append_segments(const std::vector<crossing>& crossings,
                     std::vector<ox_solid_contour>& contours) {
    for (std::size_t i = 0; i + 1 < crossings.size(); i += 2) {
        ox_solid_contour segment;
        segment.points.push_right(crossings[i].point);
        segment.points.push_right(crossings[i + 1].point);
        contours.push_back(std::move(segment));
    }
}

std::vector<ox_solid_contour> find_segments(ox_solid& solid, const section_plane& plane) {
    std::vector<ox_solid_contour> contours;
    for (ox_polygon* face : solid.get_faces()) {
        append_segments(find_crossings(*face, plane), contours);
    }
    return contours;
}

// Chaining

bool is_open(const ox_solid_contour& contour) {
    return !contour.closed && contour.points.size() > 0;
}

const ox_3dvector& first_point(const ox_solid_contour& contour) {
    return contour.points[0];
}

const ox_3dvector& last_point(const ox_solid_contour& contour) {
    return contour.points[contour.points.size() - 1];
}

/// The open chain after `chain` that begins nearest to its end, within the tolerance; of equally
/// near ones the last. The number of chains when there is none.
std::size_t find_continuation(const std::vector<ox_solid_contour>& contours, std::size_t chain,
                              float tolerance) {
    std::size_t found = contours.size();
    float nearest = tolerance;
    for (std::size_t i = chain + 1; i < contours.size(); ++i) {
        if (!is_open(contours[i])) {
            continue;
        }
        const float distance =
            first_point(contours[i]).manhattan_distance_to(last_point(contours[chain]));
        if (distance <= nearest) {
            nearest = distance;
            found = i;
        }
    }
    return found;
}

/// Moves the points of `continuation` to the end of `chain`.
void join(ox_solid_contour& chain, ox_solid_contour& continuation, float tolerance) {
    for (const ox_3dvector& point : continuation.points) {
        chain.points.push_right(point);
    }
    continuation.points.clear();
    chain.closed = last_point(chain).manhattan_distance_to(first_point(chain)) <= tolerance;
}

/// Lets each open chain take one continuation. False when none found any.
///
/// Chains only leave the search, by closing or by being taken: one that found no continuation
/// never will, and is not searched for again. So all passes together search at most twice per
/// segment.
bool join_pass(std::vector<ox_solid_contour>& contours, float tolerance) {
    bool has_joined = false;
    for (std::size_t chain = 0; chain < contours.size(); ++chain) {
        if (!is_open(contours[chain]) || contours[chain].is_dead_end) {
            continue;
        }
        const std::size_t continuation = find_continuation(contours, chain, tolerance);
        if (continuation == contours.size()) {
            contours[chain].is_dead_end = true;
            continue;
        }
        join(contours[chain], contours[continuation], tolerance);
        has_joined = true;
    }
    return has_joined;
}

void chain_segments(std::vector<ox_solid_contour>& contours, float tolerance) {
    while (join_pass(contours, tolerance)) {
    }
}

} // namespace

std::unique_ptr<ox_polygon> plane_section(ox_solid& solid, const ox_3dvector& point,
                                          const ox_3dvector& normal, float tolerance) {
    std::vector<ox_solid_contour> contours = find_segments(solid, {point, normal, tolerance});
    if (contours.empty()) {
        return nullptr;
    }
    chain_segments(contours, tolerance);
    auto section = std::make_unique<ox_polygon>(point, normal);
    for (const ox_solid_contour& contour : contours) {
        section->add_contour(contour.points); // one that was taken is empty, and ignored
    }
    return section;
}

} // namespace ox
