#ifndef OX_SOLID_INTERNAL_BOOLEAN_KEPT_PIECE_H
#define OX_SOLID_INTERNAL_BOOLEAN_KEPT_PIECE_H

#include <memory>
#include <utility>

#include <ox/polygon/ox_polygon.h>
#include <ox/solid/internal/boolean/operand.h>

namespace ox::internal {

/// A face of the result of a boolean: a face of the target as it stands, what was cut from one, or
/// a piece of the other solid.
struct kept_piece {
    static constexpr int no_face = -1;

    int own_face = no_face;              ///< of the target, that it is or was cut from
    std::unique_ptr<ox_polygon> polygon; ///< null while it is that face as it stands
    bool is_reproducible = false;        ///< an added face would be this polygon again
    bool is_merged = false;              ///< into an earlier piece: no face of its own any more

    static kept_piece whole_own_face(int face) { return {face, nullptr}; }
    static kept_piece part_of_own_face(int face, std::unique_ptr<ox_polygon> part) {
        return {face, std::move(part)};
    }
    static kept_piece of_other(std::unique_ptr<ox_polygon> piece) {
        return {no_face, std::move(piece)};
    }

    bool is_whole_own_face() const { return !polygon && !is_merged; }
    bool is_part_of_own_face() const { return own_face != no_face && polygon; }

    /// The polygon to look at; `own` is the target.
    ox_polygon& get_polygon(const operand& own) const {
        return polygon ? *polygon : own.get_face(own_face);
    }

    /// The polygon as one that may be changed: a copy where it is a face of the target.
    ox_polygon& make_changeable(const operand& own) {
        if (!polygon) {
            polygon = std::make_unique<ox_polygon>(own.get_face(own_face));
        }
        is_reproducible = false;
        return *polygon;
    }

    /// Gives the piece up for an earlier one that holds it now.
    void mark_merged() {
        is_merged = true;
        is_reproducible = false;
        polygon.reset();
    }

private:
    kept_piece(int face, std::unique_ptr<ox_polygon> piece)
        : own_face(face), polygon(std::move(piece)) {}
};

} // namespace ox::internal

#endif
