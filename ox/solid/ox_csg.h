#ifndef OX_SOLID_OX_CSG_H
#define OX_SOLID_OX_CSG_H

#include <memory>

#include <ox/core/ox_export.h>
#include <ox/core/ox_list.h>
#include <ox/geometry/ox_3dvector.h>
#include <ox/mesh/ox_triangle_set.h>
#include <ox/solid/ox_solid.h>

namespace ox {

class ox_progress_manager;
struct ox_csg_state;

/// Why an operand could not be used.
struct ox_csg_problem {
    /// What is wrong with the operand.
    enum ox_kind {
        problem_open_edge,  ///< an edge, or a part of one, that no edge runs against
        problem_not_finite, ///< a coordinate that is infinite or not a number
        problem_no_plane,   ///< a half-space whose normal is zero
        problem_too_large   ///< a coordinate above 2^30 tolerances
    };

    /// The operand, counted from 0 in the order of the calls, half-spaces included.
    int operand = 0;

    /// What is wrong with it.
    ox_kind kind = problem_open_edge;

    /// The start of an open edge or the vertex that is too far away; for a coordinate that is not
    /// finite the nearest finite vertex before it in its ring, else the origin.
    ox_3dvector from;

    /// The end of an open edge or, again, the vertex that is too far away; for a coordinate that is
    /// not finite the nearest finite vertex after it in its ring, else the origin.
    ox_3dvector to;
};

/// Constructive solid geometry: any number of closed solids, united, cut out and intersected in one
/// pass, with a result that is closed and right whatever lies upon what.
///
/// Representation: the operands, copied at the call, each with what it does to what stands so far;
/// the first acts on emptiness. `compute` evaluates them at once, not one after the other.
///
/// An operand is a closed shell when, once points nearer than the tolerance are one (in chains;
/// equal points always), each directed edge is met by its opposite; edges that lie along several
/// others count as divided at their ends. It encloses what its winding number is not 0 for: an
/// inside-out shell counts as what it encloses, two shells in one solid as their union. Faces that
/// are not planar are taken as triangulated. When every operand is a closed shell, the result is
///
/// - closed: every directed edge of its vertex indices has exactly as many opposites, in the solid
///   and in the triangles;
/// - right: its volume is that of the exact result within the operands' surface times a tenth of
///   the tolerance (times the tolerance where faces are uneven by more than that), plus the
///   tolerance times the area over which different faces nearly coincide: faces of different
///   operands within the tolerance of each other over their whole overlap count as one;
/// - made of polygons: pieces of one plane that touch along an edge are one face with holes,
///   whichever operands they come from, without vertices on straight edges that no third face
///   needs;
/// - the same bits everywhere, and a valid operand again.
///
/// Degenerate input:
/// - an operand that is no closed shell, not finite or too far away: `compute` gives false,
///   computes nothing, and the problems say where;
/// - an empty solid: an empty region; intersecting with it leaves nothing;
/// - inconsistent primary lists: the face list ends there, with the faces begun before;
/// - faces without area: part of the shell like any other;
/// - an operand more than once: a union with itself is itself, a difference is empty.
///
/// Ownership: operands are copied, results are handed out as copies. Copies of this object are
/// deep, but without the progress manager; moves cost O(1) and leave an empty object with the
/// default tolerance. The progress manager belongs to the caller. An allocation that fails leaves
/// the operands as they were before the call and reaches the caller as `std::bad_alloc`.
///
/// \code
/// ox::ox_csg csg;
/// csg.unites(wall);
/// csg.unites(crossing_wall);
/// csg.substracts(window);
/// csg.clips(ridge, slope);
/// if (csg.compute()) {
///     ox::ox_solid building = csg.get_solid();
/// }
/// \endcode
class OX_EXPORT ox_csg {
public:
    // Construction and copying

    /// No operands, and a tolerance of 0.001 model units.
    ox_csg();

    /// No operands. Points of one operand nearer than `tolerance` (model units) are one, and faces
    /// of different operands within it coincide. With 0 only equal points are one. A negative
    /// tolerance, or one that is not finite, counts as 0.001.
    explicit ox_csg(float tolerance);

    /// A deep copy: tolerance, operands and result, but no progress manager. O(n).
    ox_csg(const ox_csg& other);

    /// Takes everything from `other`, the progress manager included, which becomes an empty object
    /// with the default tolerance. O(1).
    ox_csg(ox_csg&& other) noexcept;

    /// Becomes a deep copy as the copy constructor makes it. Assignment to itself changes nothing.
    ox_csg& operator=(const ox_csg& other);

    /// Takes everything from `other`, as the move constructor does. Assignment to itself changes
    /// nothing.
    ox_csg& operator=(ox_csg&& other) noexcept;

    /// Frees the operands and the result.
    ~ox_csg();

    // Operands. Each call applies to what stands so far and drops the result of `compute`. The
    // primary storage of a solid is read as it is, without rounding to a face's grid. O(n).

    /// Adds the volume of `operand`.
    void unites(const ox_solid& operand);

    /// Removes the volume of `operand`.
    void substracts(const ox_solid& operand);

    /// Keeps the volume that lies in `operand` as well.
    void intersects(const ox_solid& operand);

    /// Cuts away what lies on the side of the plane through `point` that `normal` points to. The
    /// normal needs no unit length; a zero one is `problem_no_plane`, and either one not finite is
    /// `problem_not_finite`. O(1).
    void clips(const ox_3dvector& point, const ox_3dvector& normal);

    /// Forgets the operands and the result; tolerance and progress manager stay.
    void clear();

    /// The number of operands, half-spaces included.
    int get_nb_operands() const;

    // Evaluation

    /// Sets the manager that `compute` reports to (null for none) and the share `[min, max]` of its
    /// bar: `min + (max - min) * compute_phase_progress(fraction)`. It must outlive every call of
    /// `compute`.
    void set_progress_manager(ox_progress_manager* manager, double min, double max);

    /// Evaluates the operands. False when one of them could not be used, which the problems tell,
    /// or when the progress manager asked to stop: there are no problems then, and the next call
    /// begins anew. The operands stay in either case. Called again without a new operand it answers
    /// from the result, in O(1).
    ///
    /// O((n + k) log n) time and O(n + k) memory for n edges and k pairs of faces whose boxes,
    /// grown by the tolerance, overlap.
    bool compute();

    // Result, empty before a `compute` that gave true

    /// The result as a solid whose faces share their vertices by index: each an outer contour,
    /// counter-clockwise seen from outside, then its holes. O(n).
    ox_solid get_solid() const;

    /// The faces of `get_solid()` in triangles with the same shared vertices: a closed mesh. The
    /// arrays are the caller's own. O(n).
    ox_triangle_set get_triangles() const;

    /// For each face of `get_solid()` the lowest number of the operands whose faces cover a part of
    /// it. O(n).
    ox_list<int> get_origins() const;

    // Problems of the last `compute`

    /// The number of problems: at least one for each operand that could not be used, 0 before
    /// `compute` and after one that gave true.
    int get_nb_problems() const;

    /// Problem `index`, in the order of the operands; one of the default values when there is none
    /// of that number. Valid until the next change of this object.
    const ox_csg_problem& get_problem(int index) const;

private:
    ox_csg_state& get_state(); // made anew after a move

    std::unique_ptr<ox_csg_state> state; // null when it was taken by a move
};

} // namespace ox

#endif
