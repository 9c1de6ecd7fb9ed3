// Booleans of two solids by their boundaries, face by face.
//
// 1. Each face of this solid loses what lies inside the other (union, difference) or outside it
//    (intersection). What lies inside is the face's intersection with the other solid's section in
//    the face's plane.
// 2. The faces of the other solid are treated alike; for a difference they are turned inside out
//    and what lies inside this solid is kept.
// 3. A union merges the pieces that lie in one plane; the pieces become the faces of this solid.

#include <ox/solid/internal/boolean/combination.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>
#include <vector>

#include <ox/solid/internal/boolean/coplanar_merge.h>
#include <ox/solid/internal/boolean/face_cutter.h>

namespace ox::internal {

namespace {

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
    combination(ox_solid_state& target_state, ox_solid_state& other_state, boolean_operation kind)
        : target(target_state), own(target_state), other(other_state), operation(kind),
          cutter(kind, target_state.tolerance), trace{target_state.verbose} {}

    void run() {
        cut_own_faces();
        cut_other_faces();
        if (is_changed || has_changed_area()) {
            rebuild();
        }
    }

private:
    void cut_own_faces();
    void cut_other_faces();
    face_remains cut_own_face(int i) const;
    face_remains cut_other_face(int i) const;
    void keep_own(int i, face_remains remains);
    void keep_other(int i, face_remains remains);
    bool has_changed_area() const;
    void rebuild();
    void store_pieces();

    ox_solid_state& target;
    const operand own;
    const operand other;
    const boolean_operation operation;
    const face_cutter cutter;
    const boolean_trace trace;

    std::vector<kept_piece> kept;
    bool is_changed = false;
};

// The faces of this solid

void combination::cut_own_faces() {
    const phase_timer timer(target.chronos[own_faces_phase]);
    for (int i = 0; i < own.count_faces(); ++i) {
        trace.print_progress("this", i, own.count_faces());
        keep_own(i, cut_own_face(i));
    }
}

face_remains combination::cut_own_face(int i) const {
    ox_polygon& face = own.get_face(i);
    return operation == boolean_operation::intersect ? cutter.keep_inside(face, other)
                                                     : cutter.keep_outside(face, other);
}

/// True if a part is a change is told later, by its area.
void combination::keep_own(int i, face_remains remains) {
    switch (remains.left) {
    case face_remains::extent::whole:
        kept.push_back(kept_piece::whole_own_face(i));
        break;
    case face_remains::extent::part:
        kept.push_back(kept_piece::part_of_own_face(i, std::move(remains.part)));
        break;
    case face_remains::extent::nothing:
        is_changed = true;
        break;
    }
}

// The faces of the other solid

void combination::cut_other_faces() {
    const phase_timer timer(target.chronos[other_faces_phase]);
    for (int i = 0; i < other.count_faces(); ++i) {
        trace.print_progress("other", i, other.count_faces());
        keep_other(i, cut_other_face(i));
    }
}

/// Most faces of a tool are far away, and need not be turned inside out to see that.
face_remains combination::cut_other_face(int i) const {
    ox_polygon& face = other.get_face(i);
    switch (operation) {
    case boolean_operation::unite:
        return cutter.keep_outside(face, own);
    case boolean_operation::subtract:
        return other.is_surely_apart(i, own.get_box()) ? face_remains()
                                                       : cutter.keep_turned_inside(face, own);
    case boolean_operation::intersect:
        break;
    }
    return cutter.keep_inside(face, own);
}

/// Every piece of the other solid is a change of this one.
void combination::keep_other(int i, face_remains remains) {
    if (remains.left == face_remains::extent::nothing) {
        return;
    }
    const bool is_whole = remains.left == face_remains::extent::whole;
    is_changed = true;
    kept.push_back(kept_piece::of_other(is_whole ? std::make_unique<ox_polygon>(other.get_face(i))
                                                 : std::move(remains.part)));
    kept.back().is_reproducible = is_whole && other.is_reproducible(i);
}

// The result

/// True if some own face lost or gained more than a small part of its area.
bool combination::has_changed_area() const {
    return std::any_of(kept.begin(), kept.end(), [this](const kept_piece& piece) {
        if (!piece.is_part_of_own_face()) {
            return false;
        }
        const float former_area = own.get_face(piece.own_face).get_area();
        const double area = piece.polygon->get_area();
        return std::fabs(former_area - area) > former_area * area_change_ratio;
    });
}

void combination::rebuild() {
    {
        const phase_timer timer(target.chronos[rebuild_phase]);
        if (operation == boolean_operation::unite) {
            merge_coplanar_pieces(kept, own, target.tolerance, trace);
        }
        store_pieces();
    }
    trace.print_end();
}

/// Replaces the faces of the target. Those that would come out as the polygons they are stay.
void combination::store_pieces() {
    solid_storage stored;
    owned_faces known;
    std::vector<std::size_t> last_faces; // of each piece among the stored ones
    for (kept_piece& piece : kept) {
        if (!piece.is_merged) {
            const int count = stored.append_polygon(piece.get_polygon(own));
            known.resize(known.size() + static_cast<std::size_t>(count));
        }
        if (piece.is_whole_own_face()) {
            piece.is_reproducible = own.is_reproducible(piece.own_face);
        }
        last_faces.push_back(known.size() - 1);
    }
    // Nothing fails from here on.
    owned_faces former_faces = target.replace_storage(std::move(stored));
    for (std::size_t i = 0; i < kept.size(); ++i) {
        if (kept[i].is_whole_own_face()) {
            kept[i].polygon = std::move(former_faces[static_cast<std::size_t>(kept[i].own_face)]);
        }
        if (kept[i].is_reproducible) {
            known[last_faces[i]] = std::move(kept[i].polygon);
        }
    }
    target.faces.keep(std::move(known));
}

} // namespace

void combine(ox_solid_state& target, ox_solid_state& other, boolean_operation operation) {
    combination(target, other, operation).run();
}

} // namespace ox::internal
