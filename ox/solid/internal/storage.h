#ifndef OX_SOLID_INTERNAL_STORAGE_H
#define OX_SOLID_INTERNAL_STORAGE_H

#include <memory>

#include <ox/core/ox_list.h>
#include <ox/geometry/ox_3dvector.h>
#include <ox/polygon/ox_polygon.h>

namespace ox::internal {

/// A place in a primary storage.
struct storage_place {
    int size_index = 0; ///< of a contour among the sizes
    int index = 0;      ///< of its first vertex index
};

/// The primary storage of a solid: what its faces are made from. The lists may contradict each
/// other. What is appended is there whole or, after an allocation that failed, not at all.
struct solid_storage {
    ox_list<ox_3dvector> vertices;
    ox_list<unsigned int> contours; ///< the vertex indices of all contours, one after another
    ox_list<int> contour_sizes;     ///< positive opens a face, negative is a hole of that face

    /// The number of vertices, 0 for a list with a negative count.
    unsigned int count_vertices() const;

    /// Appends a polygon as faces, one per outer boundary, each followed by the holes directly
    /// inside it. Returns the number of faces. O(n + c) for n vertices in c contours.
    int append_polygon(ox_polygon& polygon);

    /// Appends the lists of another storage as they are, with indices that name the same vertices.
    void append_lists(const solid_storage& other);

    /// True if there is a face at this place that is the only outer contour of `polygon`, then its
    /// holes, with the same bits; the place is moved behind it then. O(n).
    bool holds_face(ox_polygon& polygon, storage_place& place) const;
};

/// Reads the faces of a primary storage one after another, up to its first contradiction.
class storage_reader {
public:
    explicit storage_reader(const solid_storage& primary_storage) : storage(primary_storage) {}

    /// False behind the last face, and behind the first index that is missing or out of range.
    bool has_more() const {
        return !is_inconsistent && next.size_index < storage.contour_sizes.size();
    }

    /// Where the next face begins.
    const storage_place& get_place() const { return next; }

    /// Passes over a face that is known to be there.
    void skip_face();

    /// Makes the next face; null when not even its outer contour can be read. Of a face that is
    /// not there completely the contours before the contradiction are kept.
    std::unique_ptr<ox_polygon> read_face();

private:
    bool has_more_contours() const;
    bool gather_contour();

    const solid_storage& storage;
    storage_place next;
    bool is_inconsistent = false;
    ox_list<ox_3dvector> contour;
};

} // namespace ox::internal

#endif
