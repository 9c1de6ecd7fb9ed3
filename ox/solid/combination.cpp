// Booleans of two solids by their boundaries, face by face.
//
// 1. Each face of this solid loses what lies inside the other (union, difference) or outside it
//    (intersection). What lies inside is the face's intersection with the other solid's section in
//    the face's plane.
// 2. The faces of the other solid are treated alike; for a difference they are turned inside out
//    and what lies inside this solid is kept.
// 3. A union merges the pieces that lie in one plane; the pieces become the faces of this solid.

#include <cmath>
#include <cstddef>
#include <cstdio>
#include <memory>
#include <utility>
#include <vector>

#include <ox/solid/internal/combination.h>
#include <ox/solid/internal/plane_section.h>

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

class combination {
public:
    combination(ox_solid_state& target_state, ox_solid& other_solid, solid_operation kind)
        : target(target_state), other(other_solid), operation(kind),
          tolerance(target_state.tolerance),
          minimum_area(target_state.tolerance * target_state.tolerance) {}

    void run() {
        cut_own_faces();
        cut_other_faces();
        if (is_changed) {
            rebuild();
        }
    }

private:
    using polygon_pointer = std::unique_ptr<ox_polygon>;

    void cut_own_faces();
    void cut_own_face(ox_polygon& face, const ox_box& other_box);
    void cut_other_faces();
    void cut_other_face(ox_polygon& face, const ox_box& own_box);
    polygon_pointer find_cut(ox_polygon& piece, ox_solid& solid, const ox_box& box) const;

    void rebuild();
    void merge_faces();
    void merge_into(std::size_t i);
    bool are_coplanar(const ox_polygon& a, const ox_polygon& b) const;
    void replace_faces();

    /// One line per face when progress is asked for, on standard output like all of them.
    void print_progress(const char* phase, int done, int count) const {
        if (target.verbose) {
            std::printf("%s faces (%d / %d)\n", phase, done, count);
        }
    }

    ox_solid_state& target;
    ox_solid& other;
    const solid_operation operation;
    const float tolerance;
    const float minimum_area;

    std::vector<polygon_pointer> kept; // null where a piece was merged into an earlier one
    bool is_changed = false;
};

// Cutting

/// The section of `solid` in the plane of a piece, or none where it is too small to cut anything.
/// For a union it is made with the opposite normal: of a face that both solids have, facing the
/// same way, it is then empty, and both copies stay to be merged into one.
std::unique_ptr<ox_polygon> combination::find_cut(ox_polygon& piece, ox_solid& solid,
                                                  const ox_box& box) const {
    if (!piece.may_intersect(box)) {
        return nullptr;
    }
    const ox_3dvector& normal = piece.get_normal();
    const bool is_union = operation == solid_operation::unite;
    polygon_pointer cut =
        plane_section(solid, piece.get_point(), is_union ? -normal : normal, tolerance);
    return cut && cut->get_area() > minimum_area ? std::move(cut) : nullptr;
}

void combination::cut_own_faces() {
    const phase_timer timer(target.chronos[own_faces_slot]);
    const ox_list<ox_polygon*> faces = target.owner->get_faces();
    const ox_box other_box = other.get_bounding_box();
    for (int i = 0; i < faces.size(); ++i) {
        print_progress("this", i, faces.size());
        cut_own_face(*faces[i], other_box);
    }
}

void combination::cut_own_face(ox_polygon& face, const ox_box& other_box) {
    const float former_area = face.get_area();
    auto piece = std::make_unique<ox_polygon>(face);
    const polygon_pointer cut = find_cut(*piece, other, other_box);
    if (operation == solid_operation::intersect) {
        if (!cut) {
            is_changed = true;
            return;
        }
        piece->intersects(*cut);
    } else if (cut) {
        piece->substracts(*cut);
    }

    const double area = piece->get_area();
    if (std::fabs(former_area - area) > former_area * area_change_ratio) {
        is_changed = true;
    }
    if (piece->get_area() > minimum_area) {
        kept.push_back(std::move(piece));
    } else {
        is_changed = true;
    }
}

void combination::cut_other_faces() {
    const phase_timer timer(target.chronos[other_faces_slot]);
    const ox_list<ox_polygon*> faces = other.get_faces();
    const ox_box own_box = target.owner->get_bounding_box();
    for (int i = 0; i < faces.size(); ++i) {
        print_progress("other", i, faces.size());
        cut_other_face(*faces[i], own_box);
    }
}

void combination::cut_other_face(ox_polygon& face, const ox_box& own_box) {
    auto piece = std::make_unique<ox_polygon>(face);
    if (operation == solid_operation::substract) {
        piece->reverse();
    }
    const polygon_pointer cut = find_cut(*piece, *target.owner, own_box);
    if (operation == solid_operation::unite) {
        if (cut) {
            piece->substracts(*cut);
        }
    } else {
        if (!cut) {
            return;
        }
        piece->intersects(*cut);
    }

    if (piece->get_area() > minimum_area) {
        is_changed = true;
        kept.push_back(std::move(piece));
    }
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
    for (std::size_t i = 0; i < kept.size(); ++i) {
        print_progress("merge", static_cast<int>(i), static_cast<int>(kept.size()));
        if (kept[i]) {
            merge_into(i);
        }
    }
}

/// Unites piece `i` with each later piece in its plane. A union with more vertices than both had
/// is a sign that they overlapped instead of touching: merging into this piece ends there.
void combination::merge_into(std::size_t i) {
    ox_polygon& piece = *kept[i];
    for (std::size_t j = i + 1; j < kept.size(); ++j) {
        if (!kept[j] || !are_coplanar(piece, *kept[j])) {
            continue;
        }
        const int former_count =
            piece.get_contour_vertices().size() + kept[j]->get_contour_vertices().size();
        piece.unites(*kept[j]);
        if (piece.get_contour_vertices().size() > former_count) {
            std::printf("Merge divergence for %d\n", static_cast<int>(i));
            return;
        }
        kept[j].reset();
    }
}

bool combination::are_coplanar(const ox_polygon& a, const ox_polygon& b) const {
    const ox_3dvector difference = a.get_point() - b.get_point();
    return a.get_normal().distance_to(b.get_normal()) < tolerance &&
           std::fabs(ox_dot(difference, a.get_normal())) <= tolerance &&
           std::fabs(ox_dot(difference, b.get_normal())) <= tolerance;
}

void combination::replace_faces() {
    target.invalidate();
    target.clear_primary_storage();
    for (polygon_pointer& piece : kept) {
        if (piece) {
            target.owner->add_face(*piece);
            piece.reset();
        }
    }
}

} // namespace

void combine(ox_solid_state& target, ox_solid& other, solid_operation operation) {
    combination(target, other, operation).run();
}

} // namespace ox
