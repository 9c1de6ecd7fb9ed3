#include <tests/reference/combine.h>

#include <cmath>
#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include <tests/reference/plane_section.h>

namespace reference {

namespace {

using ox::ox_3dvector;
using ox::ox_box;
using ox::ox_list;
using ox::ox_polygon;
using ox::ox_solid;

using polygons = std::vector<std::unique_ptr<ox_polygon>>;

constexpr float tolerance = 0.001f;
constexpr float minimum_area = tolerance * tolerance;

enum mode { mode_union, mode_difference, mode_intersection };

bool are_separated(const ox_box& a, const ox_box& b) {
    for (unsigned int axis = 0; axis < 3; ++axis) {
        const float a_start = a.origin.at(axis);
        const float b_start = b.origin.at(axis);
        if (b_start >= a_start + a.size.at(axis) || a_start >= b_start + b.size.at(axis)) {
            return true;
        }
    }
    return false;
}

/// The section of `solid` in the plane of the piece; none when it is too small to count.
std::unique_ptr<ox_polygon> cut_for(ox_polygon& piece, ox_solid& solid, int kind) {
    const ox_box box = solid.get_bounding_box();
    if (!piece.may_intersect(box)) {
        return nullptr;
    }
    ox_3dvector normal = piece.get_normal();
    if (kind == mode_union) {
        normal = -normal;
    }
    auto cut = plane_section(solid, piece.get_point(), normal, tolerance);
    if (cut && !(cut->get_area() > minimum_area)) {
        cut.reset();
    }
    return cut;
}

std::string progress(const std::string& phase, std::size_t done, std::size_t count) {
    return phase + " faces (" + std::to_string(done) + " / " + std::to_string(count) + ")\n";
}

bool cut_own_faces(ox_solid& solid, ox_solid& other, int kind, polygons& kept,
                   std::string& printed) {
    bool changed = false;
    std::size_t done = 0;
    const std::size_t count = static_cast<std::size_t>(solid.get_faces().size());
    for (ox_polygon* face : solid.get_faces()) {
        printed += progress("this", done++, count);
        const float a0 = face->get_area();
        auto piece = std::make_unique<ox_polygon>(*face);
        auto cut = cut_for(*piece, other, kind);
        if (kind == mode_intersection && !cut) {
            changed = true;
            continue;
        }
        if (kind == mode_intersection) {
            piece->intersects(*cut);
        } else if (cut) {
            piece->substracts(*cut);
        }
        const float a1 = piece->get_area();
        if (std::fabs(static_cast<double>(a0) - static_cast<double>(a1)) >
            static_cast<double>(a0) * 0.001) {
            changed = true;
        }
        if (a1 > minimum_area) {
            kept.push_back(std::move(piece));
        } else {
            changed = true;
        }
    }
    return changed;
}

bool cut_other_faces(ox_solid& solid, ox_solid& other, int kind, polygons& kept,
                     std::string& printed) {
    bool changed = false;
    std::size_t done = 0;
    const std::size_t count = static_cast<std::size_t>(other.get_faces().size());
    for (ox_polygon* face : other.get_faces()) {
        printed += progress("other", done++, count);
        auto piece = std::make_unique<ox_polygon>(*face);
        if (kind == mode_difference) {
            piece->reverse();
        }
        auto cut = cut_for(*piece, solid, kind);
        if (kind == mode_union) {
            if (cut) {
                piece->substracts(*cut);
            }
        } else if (cut) {
            piece->intersects(*cut);
        } else {
            continue;
        }
        if (piece->get_area() > minimum_area) {
            changed = true;
            kept.push_back(std::move(piece));
        }
    }
    return changed;
}

bool lie_in_one_plane(const ox_polygon& a, const ox_polygon& b) {
    const ox_3dvector na = a.get_normal();
    const ox_3dvector nb = b.get_normal();
    const ox_3dvector d = a.get_point() - b.get_point();
    return (na - nb).size() < tolerance && std::fabs(ox::ox_dot(d, na)) <= tolerance &&
           std::fabs(ox::ox_dot(d, nb)) <= tolerance;
}

void merge(polygons& kept, std::string& printed) {
    for (std::size_t i = 0; i < kept.size(); ++i) {
        printed += progress("merge", i, kept.size());
        for (std::size_t j = i + 1; kept[i] && j < kept.size(); ++j) {
            if (!kept[j] || !lie_in_one_plane(*kept[i], *kept[j])) {
                continue;
            }
            const int before =
                kept[i]->get_contour_vertices().size() + kept[j]->get_contour_vertices().size();
            kept[i]->unites(*kept[j]);
            if (kept[i]->get_contour_vertices().size() > before) {
                printed += "Merge divergence for " + std::to_string(i) + "\n";
                break;
            }
            kept[j].reset();
        }
    }
}

std::string combine(ox_solid& solid, ox_solid& other, int kind) {
    std::string printed;
    polygons kept;
    const bool own_changed = cut_own_faces(solid, other, kind, kept, printed);
    const bool other_changed = cut_other_faces(solid, other, kind, kept, printed);
    if (!own_changed && !other_changed) {
        return printed;
    }
    if (kind == mode_union) {
        merge(kept, printed);
    }
    solid.clear();
    for (const auto& piece : kept) {
        if (piece) {
            solid.add_face(*piece);
        }
    }
    return printed + "done\n";
}

/// Appends the faces of `other` with their own vertices.
void concatenate(ox_solid& solid, const ox_solid& other) {
    ox_list<ox_3dvector> vertices = solid.get_vertices();
    ox_list<unsigned int> contours = solid.get_contours();
    ox_list<int> sizes = solid.get_contour_sizes();
    const unsigned int base = static_cast<unsigned int>(vertices.size());
    for (const ox_3dvector& vertex : other.get_vertices()) {
        vertices.push_right(vertex);
    }
    for (const unsigned int index : other.get_contours()) {
        contours.push_right(index + base);
    }
    for (const int size : other.get_contour_sizes()) {
        sizes.push_right(size);
    }
    solid.set_vertices(vertices);
    solid.set_contours(contours);
    solid.set_contour_sizes(sizes);
}

} // namespace

std::string unites(ox_solid& solid, ox_solid& other) {
    const ox_box other_box = other.get_bounding_box();
    if (other_box.is_empty()) {
        return "";
    }
    ox_box box = solid.get_bounding_box();
    if (box.is_empty()) {
        solid = other;
        return "";
    }
    box.origin -= ox_3dvector(0.01f, 0.01f, 0.01f);
    box.size += ox_3dvector(0.02f, 0.02f, 0.02f);
    if (are_separated(box, other_box)) {
        concatenate(solid, other);
    } else {
        return combine(solid, other, mode_union);
    }
    return "";
}

std::string substracts(ox_solid& solid, ox_solid& other) {
    const ox_box box = solid.get_bounding_box();
    const ox_box other_box = other.get_bounding_box();
    if (!box.is_empty() && !other_box.is_empty() && !are_separated(box, other_box)) {
        return combine(solid, other, mode_difference);
    }
    return "";
}

std::string intersects(ox_solid& solid, ox_solid& other) {
    const ox_box box = solid.get_bounding_box();
    const ox_box other_box = other.get_bounding_box();
    if (box.is_empty()) {
        return "";
    }
    if (!other_box.is_empty() && !are_separated(box, other_box)) {
        return combine(solid, other, mode_intersection);
    }
    solid.clear();
    return "";
}

void clip(ox_solid& solid, const ox_3dvector& point, const ox_3dvector& normal) {
    ox_3dvector axis = normal;
    ox_3dvector u;
    ox_3dvector w;
    axis.build_axis(u, w);
    int above = 0;
    int below = 0;
    float u_min = 1e8f;
    float u_max = -1e8f;
    float w_min = 1e8f;
    float w_max = -1e8f;
    float d_max = 0.0f;
    for (const ox_3dvector& vertex : solid.get_vertices()) {
        const float d = ox::ox_dot(vertex - point, normal);
        above += d > tolerance ? 1 : 0;
        below += d < -tolerance ? 1 : 0;
        d_max = d > d_max ? d : d_max;
        const float along_u = ox::ox_dot(vertex - point, u);
        u_min = along_u < u_min ? along_u : u_min;
        u_max = along_u > u_max ? along_u : u_max;
        const float along_w = ox::ox_dot(vertex - point, w);
        w_min = along_w < w_min ? along_w : w_min;
        w_max = along_w > w_max ? along_w : w_max;
    }
    if (above == 0) {
        return;
    }
    if (below == 0) {
        solid.clear();
        return;
    }
    u_min -= 10.0f * tolerance;
    w_min -= 10.0f * tolerance;
    u_max += 20.0f * tolerance;
    w_max += 20.0f * tolerance;
    d_max += 20.0f * tolerance;
    ox_solid brick;
    brick.brick(point + u_min * u + w_min * w, u * (u_max - u_min), w * (w_max - w_min),
                normal * d_max);
    substracts(solid, brick);
}

} // namespace reference
