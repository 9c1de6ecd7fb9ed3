#ifndef OX_STRUCTURE_INTERNAL_SLAB_CROSSINGS_H
#define OX_STRUCTURE_INTERNAL_SLAB_CROSSINGS_H

#include <vector>

#include <ox/core/ox_list.h>
#include <ox/geometry/ox_3dvector.h>
#include <ox/internal/sweep_window.h>

namespace ox::internal {

/// The outline of a slab, met by a horizontal line that moves up.
class slab_crossings {
public:
    /// The contours must outlive this object.
    explicit slab_crossings(const ox_list<ox_list<ox_3dvector>>& contours);

    /// The x of every crossing of the closed contours with the line at y, in ascending order.
    /// Lines must be asked for from below up.
    ///
    /// A contour that only touches the line with a vertex or an edge does not cross it; one that
    /// passes through a vertex, or runs along the line between its sides, crosses it once.
    const std::vector<float>& find(float y);

private:
    struct edge {
        const ox_list<ox_3dvector>* contour;
        int start; ///< the index of its first point
    };

    std::vector<edge> edges;
    sweep_window window;
    std::vector<float> found;
};

} // namespace ox::internal

#endif
