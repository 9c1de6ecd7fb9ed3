#ifndef OX_POLYGON_OX_POLYGON_PIECES_H
#define OX_POLYGON_OX_POLYGON_PIECES_H

#include <utility>

#include <ox/core/ox_list.h>
#include <ox/polygon/ox_polygon.h>

namespace ox {

/// Owns the polygons that cutting or splitting a polygon returned, and spares that polygon where it
/// is one of them itself.
///
/// Ownership: the list's polygons but the receiver are deleted with this object. The receiver must
/// outlive it, and nobody else may delete what the list holds. Moves hand everything over; there
/// are no copies.
///
/// \code
/// const ox::ox_polygon_pieces pieces(wall, wall.cut_by_plane(point, normal, true));
/// for (ox::ox_polygon* piece : pieces) {
///     draw(*piece);
/// }
/// \endcode
class ox_polygon_pieces {
public:
    /// Takes the list that an operation of `receiver` returned. O(1).
    ox_polygon_pieces(const ox_polygon& receiver, ox_list<ox_polygon*> returned)
        : spared(&receiver), pieces(std::move(returned)) {}

    /// Takes the list of `other`, which owns nothing any more. O(1).
    ox_polygon_pieces(ox_polygon_pieces&& other) noexcept
        : spared(other.spared), pieces(std::move(other.pieces)) {
        other.pieces.clear();
    }

    /// Exchanges what both own. O(1).
    ox_polygon_pieces& operator=(ox_polygon_pieces&& other) noexcept {
        std::swap(spared, other.spared);
        std::swap(pieces, other.pieces);
        return *this;
    }
    ox_polygon_pieces(const ox_polygon_pieces&) = delete;
    ox_polygon_pieces& operator=(const ox_polygon_pieces&) = delete;

    ~ox_polygon_pieces() {
        for (ox_polygon* piece : pieces) {
            if (piece != spared) {
                delete piece;
            }
        }
    }

    /// The number of polygons, the receiver included.
    int size() const { return pieces.size(); }

    /// Polygon i, for 0 <= i < size().
    ox_polygon& operator[](int i) const { return *pieces.at(i); }

    /// The polygons in their order, never null.
    ox_polygon* const* begin() const { return pieces.begin(); }
    /// Behind the last polygon.
    ox_polygon* const* end() const { return pieces.end(); }

    /// True if nothing was cut: the only polygon is the receiver. O(1).
    bool is_receiver() const { return pieces.size() == 1 && pieces.at(0) == spared; }

private:
    const ox_polygon* spared;
    ox_list<ox_polygon*> pieces;
};

} // namespace ox

#endif
