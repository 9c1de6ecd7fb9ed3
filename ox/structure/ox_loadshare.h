#ifndef OX_STRUCTURE_OX_LOADSHARE_H
#define OX_STRUCTURE_OX_LOADSHARE_H

#include <memory>

#include <ox/core/ox_export.h>
#include <ox/core/ox_list.h>
#include <ox/geometry/ox_3dvector.h>

namespace ox {

struct ox_loadshare_state;

/// Distributes the weight of a planar slab over the beams that carry it.
///
/// Represents closed slab contours (even-odd: one inside another is a hole) and beams, both
/// projected into a frame of the slab's plane when they are added. A sweep by lines parallel to
/// the frame's x axis divides the slab on each line among the beams that cross it: every beam takes
/// the stretch to half the distance to its neighbours. Lengths are in model units, weights in units
/// of area times the slab's weight per area.
///
/// Stretches that no beam crosses on their line are given to none: `get_uncarried_weight` tells how
/// much they weigh. Beams parallel to the lines carry nothing.
///
/// Degenerate input:
/// - a contour with a point that is not finite, in the frame, or without points: dropped;
/// - contours of one or two points, a slab of no height or of no finite size: no load;
/// - a line on which the outline is crossed an odd number of times: no load from it;
/// - beams of no length or not finite: they keep their index and carry nothing;
/// - normals or directions that are zero or parallel: a frame with zero axes, hence no load.
///
/// Copies are deep.
///
/// \code
///   ox::ox_loadshare slab;
///   slab.set_slab_geometry(ox::ox_3dvector(0, 0, 1), ox::ox_3dvector(1, 0, 0));
///   slab.add_slab_contour(outline);
///   const int beam = slab.add_beam(start, end);
///   slab.compute_weights(0.01f);
///   const float load = slab.get_weight(beam);
/// \endcode
class OX_EXPORT ox_loadshare {
public:
    /// No slab and no beam, weight 1 per area, neither log nor image, and the frame of the world's
    /// x and y axes.
    ox_loadshare();

    /// A deep copy, with the results and the image.
    ox_loadshare(const ox_loadshare& other);

    /// Becomes a deep copy of `other`, with the results and the image.
    ox_loadshare& operator=(const ox_loadshare& other);

    /// Takes the slab, beams and results of `other`, which becomes a new object.
    ox_loadshare(ox_loadshare&& other);

    /// Exchanges the contents with those of `other`. O(1).
    ox_loadshare& operator=(ox_loadshare&& other) noexcept;

    /// Exchanges the contents with those of `other`. O(1).
    void swap(ox_loadshare& other) noexcept;
    /// Deletes everything, the image included.
    virtual ~ox_loadshare();

    /// Sets the frame for what is added from now on: the normal, and as x axis the direction made
    /// square to it. Coordinates are measured from the world's origin along the axes.
    void set_slab_geometry(const ox_3dvector& normal, const ox_3dvector& direction);

    /// Sets the weight per area, 1 at first.
    void set_slab_weight(float weight);

    /// Adds a closed contour of the slab. O(n).
    void add_slab_contour(const ox_list<ox_3dvector>& points);

    /// Adds a beam and returns its index, counted from 0.
    int add_beam(const ox_3dvector& start, const ox_3dvector& end);

    /// Removes all beams.
    void clear_beams();

    /// Removes all contours, and with them the bounds of the slab.
    void clear_slab_contours();

    /// Computes the load of every beam by lines `step` apart, from the lowest point of the slab up.
    /// A step below 0.001 (0, negative, NaN) is 0.001; one of half the spacing of floats at the
    /// farthest line of the slab, or less, would not advance every line and is raised to it. The
    /// load is exact to about one step of the slab's height. O(n log n) for n points
    /// and beams, and for each line O(k) for the k of them that it meets.
    void compute_weights(float step);

    /// The load of a beam after the last computation; -1 for an index that is out of range.
    float get_weight(int index);

    /// The load that the last computation gave to no beam, 0 before the first: that of the
    /// stretches of slab that no beam crosses on their line. With the weights of all beams it makes
    /// the weight of the lines that were looked at, which is the slab's, to about one step of its
    /// height. Lines on which the outline is crossed an odd number of times are in neither.
    float get_uncarried_weight() const;

    /// Sets whether `compute_weights` writes every line with its stretches to the log.
    void produce_log(bool enabled);

    /// Sets whether `compute_weights` paints an image.
    void set_image_log(bool enabled);

    /// The image of the last computation, row after row from the lowest line up, one pixel a step
    /// wide: white where no beam carries, the colour of the beam (red in the lowest byte) where one
    /// does, 0 at the beams themselves. Null, and 0 by 0, when none was asked for or it would have
    /// had more than 2^28 pixels or no memory. The array stays the object's own until the next
    /// computation.
    unsigned int* get_image_log(int& width, int& height);

private:
    std::unique_ptr<ox_loadshare_state> state;
};

/// Exchanges the contents of two objects. O(1).
inline void swap(ox_loadshare& a, ox_loadshare& b) noexcept {
    a.swap(b);
}

} // namespace ox

#endif
