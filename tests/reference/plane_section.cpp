#include <tests/reference/plane_section.h>

#include <cstddef>
#include <vector>

namespace reference {

namespace {

using ox::ox_3dvector;
using ox::ox_list;
using ox::ox_polygon;

int side_of(float distance, float tolerance) {
    if (distance < -tolerance) {
        return -1;
    }
    return distance > tolerance ? 1 : 0;
}

/// The crossings of a face with the plane, sorted along the cut line by insertion.
std::vector<ox_3dvector> crossings_of(ox_polygon& face, const ox_3dvector& p, const ox_3dvector& n,
                                      float tolerance) {
    const ox_3dvector line = ox::ox_cross(n, face.get_normal());
    std::vector<ox_3dvector> points;
    std::vector<float> parameters;
    int start = 0;
    for (int contour = 0; contour < face.get_contour_sizes().size(); ++contour) {
        const int size = static_cast<int>(face.get_contour_sizes()[contour]);
        for (int i = 0; i < size; ++i) {
            const ox_3dvector a = face.get_contour_vertices()[start + i];
            const ox_3dvector b = face.get_contour_vertices()[start + (i + 1) % size];
            const ox_3dvector c = face.get_contour_vertices()[start + (i + 2) % size];
            const float da = ox::ox_dot(a - p, n);
            const float db = ox::ox_dot(b - p, n);
            const float dc = ox::ox_dot(c - p, n);
            const int sa = side_of(da, tolerance);
            const int sb = side_of(db, tolerance);
            const int sc = side_of(dc, tolerance);

            ox_3dvector crossing;
            if (sa + sb == 2 || sa + sb == -2) {
                continue;
            }
            if (sb != 0) {
                if (sa == 0) {
                    continue;
                }
                const float t = -db / (da - db);
                crossing = t * a + (1.0f - t) * b;
            } else {
                if (sa == sc || sa + sc == 1) {
                    continue;
                }
                crossing = b - db * n;
            }

            const float s = ox::ox_dot(crossing - p, line);
            std::size_t place = 0;
            while (place < parameters.size() && !(parameters[place] > s)) {
                ++place;
            }
            points.insert(points.begin() + static_cast<std::ptrdiff_t>(place), crossing);
            parameters.insert(parameters.begin() + static_cast<std::ptrdiff_t>(place), s);
        }
        start += size;
    }
    return points;
}

/// One pass over all chains, in which each may take one other. False when none did.
bool join_once(std::vector<chain>& chains, float tolerance) {
    bool joined = false;
    for (std::size_t c = 0; c < chains.size(); ++c) {
        if (chains[c].closed || chains[c].points.empty()) {
            continue;
        }
        const ox_3dvector end = chains[c].points.back();
        std::size_t best = 0;
        float nearest = 0.0f;
        for (std::size_t other = c + 1; other < chains.size(); ++other) {
            if (chains[other].closed || chains[other].points.empty()) {
                continue;
            }
            const float distance = chains[other].points.front().manhattan_distance_to(end);
            if (distance <= tolerance && (best == 0 || distance <= nearest)) {
                best = other;
                nearest = distance;
            }
        }
        if (best == 0) {
            continue;
        }
        for (const ox_3dvector& point : chains[best].points) {
            chains[c].points.push_back(point);
        }
        chains[best].points.clear();
        chains[c].closed =
            chains[c].points.back().manhattan_distance_to(chains[c].points.front()) <= tolerance;
        joined = true;
    }
    return joined;
}

} // namespace

void chain_segments(std::vector<chain>& chains, float tolerance) {
    while (join_once(chains, tolerance)) {
    }
}

std::unique_ptr<ox_polygon> plane_section(ox::ox_solid& solid, const ox_3dvector& point,
                                          const ox_3dvector& normal, float tolerance) {
    std::vector<chain> chains;
    for (ox_polygon* face : solid.get_faces()) {
        const std::vector<ox_3dvector> crossings = crossings_of(*face, point, normal, tolerance);
        for (std::size_t i = 0; i + 1 < crossings.size(); i += 2) {
            chains.push_back({{crossings[i], crossings[i + 1]}, false});
        }
    }
    if (chains.empty()) {
        return nullptr;
    }
    chain_segments(chains, tolerance);
    auto section = std::make_unique<ox_polygon>(point, normal);
    for (const chain& contour : chains) {
        ox_list<ox_3dvector> points;
        for (const ox_3dvector& p : contour.points) {
            points.push_right(p);
        }
        section->add_contour(points);
    }
    return section;
}

std::vector<std::unique_ptr<ox_polygon>> section_pieces(const ox_list<ox_polygon*>& faces,
                                                        const ox_3dvector& point,
                                                        const ox_3dvector& normal) {
    ox::ox_solid solid;
    for (ox_polygon* face : faces) {
        solid.add_face(*face);
    }
    auto section = plane_section(solid, point, normal, 0.001f);
    std::vector<std::unique_ptr<ox_polygon>> pieces;
    if (section) {
        for (ox_polygon* piece : section->split_to_polygons()) {
            pieces.emplace_back(piece == section.get() ? section.release() : piece);
        }
    }
    return pieces;
}

} // namespace reference
