// Booleans of two solids by their boundaries, face by face.
//
// 1. Each face of this solid loses what lies inside the other (union, difference) or outside it
//    (intersection). What lies inside is the face's intersection with the other solid's section in
//    the face's plane.
// 2. The faces of the other solid are treated alike; for a difference they are turned inside out
//    and what lies inside this solid is kept.
// 3. A union merges the pieces that lie in one plane; the pieces become the faces of this solid.

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdio>
#include <memory>
#include <utility>
#include <vector>

#include <ox/solid/internal/area/area_bound.h>
#include <ox/solid/internal/boolean/combination.h>
#include <ox/solid/internal/search/plane_index.h>
#include <ox/solid/internal/section/plane_section.h>
#include <ox/solid/internal/same_bits.h>
#include <ox/solid/ox_solid.h>

namespace ox {

namespace {

/// The stopwatches of the three phases.
constexpr int own_faces_slot = 0;
constexpr int other_faces_slot = 1;
constexpr int rebuild_slot = 2;

/// Runs a stopwatch from 0 for as long as it lives.
class phase_timer {
public:
    explicit phase_timer(ox_chrono& stopwatch) : chrono(stopwatch) {
        chrono.reset();
        chrono.start();
    }
    phase_timer(const phase_timer&) = delete;
    phase_timer& operator=(const phase_timer&) = delete;
    ~phase_timer() { chrono.pause(); }

private:
    ox_chrono& chrono;
};

/// A solid that takes part in a boolean: its faces, in their boxes.
class operand {
public:
    explicit operand(ox_solid_state& solid_state)
        : state(solid_state), box(solid_state.owner->get_bounding_box()),
          faces(solid_state.faces.get_list(solid_state)),
          bounds(solid_state.faces.refresh_bounds()) {}

    const ox_box& get_box() const { return box; }
    int count_faces() const { return faces.size(); }
    ox_polygon& get_face(int i) const { return *faces[i]; }

    /// Whether a face is added to a solid as the polygon that it is.
    bool is_settled(int i) const { return state.faces.is_settled(state, i); }

    /// Whether a face cannot meet a solid in `other_box`.
    bool is_far_from(int i, const ox_box& other_box) const {
        return bounds[static_cast<std::size_t>(i)].surely_apart_from(
            other_box, faces[i]->get_contour_vertices().size());
    }

    std::unique_ptr<ox_polygon> cut(const ox_3dvector& point, const ox_3dvector& normal,
                                    float tolerance) const {
        return plane_section(faces, state.faces.get_tree(), point, normal, tolerance);
    }

private:
    ox_solid_state& state;
    const ox_box box;
    const ox_list<ox_polygon*>& faces;
    const std::vector<face_bounds>& bounds;
};

/// A face of the result.
struct kept_piece {
    static constexpr int no_face = -1;

    std::unique_ptr<ox_polygon> polygon; // null for an own face that nothing was cut from
    int own_face = no_face;              // the own face that it is, or was cut from
    bool is_settled = false;             // an added face would be this polygon
    bool is_taken = false;               // merged into an earlier piece

    bool is_whole_own_face() const { return own_face != no_face && !polygon; }
    bool is_cut_own_face() const { return own_face != no_face && polygon; }
};

class combination {
public:
    combination(ox_solid_state& target_state, ox_solid_state& other_state, solid_operation kind)
        : target(target_state), own(target_state), other(other_state), operation(kind),
          tolerance(target_state.tolerance),
          minimum_area(target_state.tolerance * target_state.tolerance) {}

    void run() {
        cut_own_faces();
        cut_other_faces();
        if (is_changed || has_changed_area()) {
            rebuild();
        }
    }

private:
    using polygon_pointer = std::unique_ptr<ox_polygon>;

    void cut_own_faces();
    void cut_own_face(int i);
    void cut_other_faces();
    void cut_other_face(int i);
    void keep_other_face(polygon_pointer piece, bool is_settled);
    polygon_pointer cut_away(ox_polygon& face, const operand& solid) const;
    polygon_pointer keep_inside(polygon_pointer piece, const operand& solid) const;
    polygon_pointer find_cut(ox_polygon& piece, const operand& solid) const;
    bool is_large_enough(ox_polygon& piece) const;
    bool has_changed_area() const;

    ox_polygon& polygon_of(const kept_piece& piece) const {
        return piece.polygon ? *piece.polygon : own.get_face(piece.own_face);
    }

    void rebuild();
    void merge_faces();
    void merge_into(std::size_t i, const std::vector<std::size_t>& later);
    std::vector<face_plane> list_planes() const;
    ox_polygon& make_changeable(kept_piece& piece) const;
    bool are_coplanar(const ox_polygon& a, const ox_polygon& b) const;
    void replace_faces();

    /// One line per face when progress is asked for, on standard output like all of them.
    void print_progress(const char* phase, int done, int count) const {
        if (target.verbose) {
            std::printf("%s faces (%d / %d)\n", phase, done, count);
        }
    }

    ox_solid_state& target;
    const operand own;
    const operand other;
    const solid_operation operation;
    const float tolerance;
    const float minimum_area;

    std::vector<kept_piece> kept;
    bool is_changed = false;
};

// Cutting

/// The section of `solid` in the plane of a piece, or none where the piece is too far away. For a
/// union it is made with the opposite normal: of a face that both solids have, facing the same way,
/// it is then empty, and both copies stay to be merged into one.
std::unique_ptr<ox_polygon> combination::find_cut(ox_polygon& piece, const operand& solid) const {
    if (!piece.may_intersect(solid.get_box())) {
        return nullptr;
    }
    const ox_3dvector& normal = piece.get_normal();
    const bool is_union = operation == solid_operation::unite;
    return solid.cut(piece.get_point(), is_union ? -normal : normal, tolerance);
}

/// What is left of a face outside the solid; null when that is the whole face. A cut that is too
/// small to count cuts nothing, but its size, which takes triangles to find, only matters where it
/// has cut something.
std::unique_ptr<ox_polygon> combination::cut_away(ox_polygon& face, const operand& solid) const {
    const polygon_pointer cut = find_cut(face, solid);
    if (!cut) {
        return nullptr;
    }
    auto piece = std::make_unique<ox_polygon>(face);
    piece->substracts(*cut);
    const bool is_cut = !have_same_contours(*piece, face) && is_large_enough(*cut);
    return is_cut ? std::move(piece) : nullptr;
}

/// What is left of a piece inside the solid; null when that is too small, or the cut is.
std::unique_ptr<ox_polygon> combination::keep_inside(polygon_pointer piece,
                                                     const operand& solid) const {
    const polygon_pointer cut = find_cut(*piece, solid);
    if (!cut) {
        return nullptr;
    }
    piece->intersects(*cut);
    const bool is_kept = is_large_enough(*piece) && is_large_enough(*cut);
    return is_kept ? std::move(piece) : nullptr;
}

bool combination::is_large_enough(ox_polygon& piece) const {
    return is_area_surely_above(piece, minimum_area) || piece.get_area() > minimum_area;
}

void combination::cut_own_faces() {
    const phase_timer timer(target.chronos[own_faces_slot]);
    for (int i = 0; i < own.count_faces(); ++i) {
        print_progress("this", i, own.count_faces());
        cut_own_face(i);
    }
}

void combination::cut_own_face(int i) {
    const bool is_far = own.is_far_from(i, other.get_box());
    ox_polygon& face = own.get_face(i);
    if (operation == solid_operation::intersect) {
        polygon_pointer piece =
            is_far ? nullptr : keep_inside(std::make_unique<ox_polygon>(face), other);
        is_changed = is_changed || !piece;
        if (piece) {
            kept.push_back({std::move(piece), i, false, false});
        }
        return;
    }
    polygon_pointer piece = is_far ? nullptr : cut_away(face, other);
    if (is_large_enough(piece ? *piece : face)) {
        kept.push_back({std::move(piece), i, false, false});
    } else {
        is_changed = true;
    }
}

void combination::cut_other_faces() {
    const phase_timer timer(target.chronos[other_faces_slot]);
    for (int i = 0; i < other.count_faces(); ++i) {
        print_progress("other", i, other.count_faces());
        cut_other_face(i);
    }
}

void combination::cut_other_face(int i) {
    const bool is_far = other.is_far_from(i, own.get_box());
    ox_polygon& face = other.get_face(i);
    if (operation != solid_operation::unite) {
        if (is_far) {
            return;
        }
        auto piece = std::make_unique<ox_polygon>(face);
        if (operation == solid_operation::substract) {
            piece->reverse();
        }
        piece = keep_inside(std::move(piece), own);
        if (piece) {
            keep_other_face(std::move(piece), false);
        }
        return;
    }
    polygon_pointer piece = is_far ? nullptr : cut_away(face, own);
    if (is_large_enough(piece ? *piece : face)) {
        const bool is_whole = !piece;
        keep_other_face(is_whole ? std::make_unique<ox_polygon>(face) : std::move(piece),
                        is_whole && other.is_settled(i));
    }
}

void combination::keep_other_face(polygon_pointer piece, bool is_settled) {
    is_changed = true;
    kept.push_back({std::move(piece), kept_piece::no_face, is_settled, false});
}

/// Whether some own face lost or gained more than a small part of its area.
bool combination::has_changed_area() const {
    return std::any_of(kept.begin(), kept.end(), [this](const kept_piece& piece) {
        if (!piece.is_cut_own_face()) {
            return false;
        }
        const float former_area = own.get_face(piece.own_face).get_area();
        const double area = piece.polygon->get_area();
        return std::fabs(former_area - area) > former_area * area_change_ratio;
    });
}

// Merging and rebuilding

void combination::rebuild() {
    {
        const phase_timer timer(target.chronos[rebuild_slot]);
        if (operation == solid_operation::unite) {
            merge_faces();
        }
        replace_faces();
    }
    if (target.verbose) {
        std::printf("done\n");
    }
}

void combination::merge_faces() {
    const plane_index planes(list_planes(), tolerance);
    for (std::size_t i = 0; i < kept.size(); ++i) {
        print_progress("merge", static_cast<int>(i), static_cast<int>(kept.size()));
        if (!kept[i].is_taken) {
            merge_into(i, planes.find_later(i));
        }
    }
}

/// The planes of the pieces. Merging leaves them as they are.
std::vector<face_plane> combination::list_planes() const {
    std::vector<face_plane> planes;
    planes.reserve(kept.size());
    for (const kept_piece& piece : kept) {
        const ox_polygon& polygon = polygon_of(piece);
        planes.push_back({polygon.get_point(), polygon.get_normal()});
    }
    return planes;
}

/// Unites piece `i` with each of the `later` pieces in its plane. A union with more vertices than
/// both had is a sign that they overlapped instead of touching: merging into this piece ends there.
void combination::merge_into(std::size_t i, const std::vector<std::size_t>& later) {
    for (const std::size_t j : later) {
        if (kept[j].is_taken || !are_coplanar(polygon_of(kept[i]), polygon_of(kept[j]))) {
            continue;
        }
        ox_polygon& piece = make_changeable(kept[i]);
        ox_polygon& taken = polygon_of(kept[j]);
        const int former_count =
            piece.get_contour_vertices().size() + taken.get_contour_vertices().size();
        piece.unites(taken);
        if (piece.get_contour_vertices().size() > former_count) {
            std::printf("Merge divergence for %d\n", static_cast<int>(i));
            return;
        }
        kept[j].is_taken = true;
        kept[j].polygon.reset();
    }
}

/// The polygon of a piece as one that may be changed, a copy where it is a face of the target.
ox_polygon& combination::make_changeable(kept_piece& piece) const {
    if (!piece.polygon) {
        piece.polygon = std::make_unique<ox_polygon>(own.get_face(piece.own_face));
    }
    piece.is_settled = false;
    return *piece.polygon;
}

bool combination::are_coplanar(const ox_polygon& a, const ox_polygon& b) const {
    const ox_3dvector difference = a.get_point() - b.get_point();
    return a.get_normal().distance_to(b.get_normal()) < tolerance &&
           std::fabs(ox_dot(difference, a.get_normal())) <= tolerance &&
           std::fabs(ox_dot(difference, b.get_normal())) <= tolerance;
}

/// Replaces the faces of the target. Those that would come out as the polygons they are stay.
void combination::replace_faces() {
    for (kept_piece& piece : kept) {
        if (piece.is_whole_own_face()) {
            piece.is_settled = own.is_settled(piece.own_face);
        }
    }
    face_cache former_faces = target.invalidate();
    target.clear_primary_storage();
    std::vector<polygon_pointer> known;
    for (kept_piece& piece : kept) {
        if (piece.is_taken) {
            continue;
        }
        if (!piece.polygon) {
            piece.polygon = former_faces.release(piece.own_face);
        }
        const int faces = target.append_polygon(*piece.polygon);
        known.resize(known.size() + static_cast<std::size_t>(faces));
        if (piece.is_settled) {
            known.back() = std::move(piece.polygon);
        }
        piece.polygon.reset();
    }
    target.faces = face_cache(std::move(known));
}

} // namespace

void combine(ox_solid_state& target, ox_solid_state& other, solid_operation operation) {
    combination(target, other, operation).run();
}

} // namespace ox
