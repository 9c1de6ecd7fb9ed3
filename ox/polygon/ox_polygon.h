#ifndef OX_POLYGON_OX_POLYGON_H
#define OX_POLYGON_OX_POLYGON_H

#include <ox/core/ox_export.h>
#include <ox/core/ox_list.h>
#include <ox/geometry/ox_3dvector.h>
#include <ox/geometry/ox_box.h>
#include <ox/geometry/ox_matrix.h>

namespace ox {

struct ox_polygon_data;

namespace internal {
struct polygon_access;
}

/// A planar region: one plane (a point and a normal) and closed contours in it, which together
/// bound the region, with holes and with islands inside holes.
///
/// Contours are added in any direction and with any overlap. The first query merges what was
/// added since the last one: the even-odd union of all contours becomes a set of contours that
/// do not overlap, each marked as outer boundary or hole and linked to the contour around it.
/// Regions covered an even number of times drop out, so a contour inside another is a hole of
/// it, and two overlapping contours leave their symmetric difference.
///
/// Frame: the plane carries an orthonormal frame (dx, dy) with its origin in the plane's point.
/// Merging, booleans and offset work on integers of 0.0001 model units in that frame, so their
/// vertices are rounded to that grid and lie on the plane.
///
/// Invariants of a queried polygon:
/// - sizes, orientations and parents have one entry per contour, and the sizes sum to the number
///   of vertices;
/// - the index of a contour's parent is smaller than its own;
/// - outer boundaries run counter-clockwise and holes clockwise, seen from the side that the
///   normal points to.
///
/// Laziness: contours, bounding box, tessellation with area, and best centre are computed on
/// the first query and kept until a change. References returned by queries stay valid until
/// then. Queries fill caches, const ones too: one polygon must not be used by two threads at
/// once.
///
/// A failed allocation throws `std::bad_alloc`, and the contours stay as they were. Not every one
/// of the libraries' own can be survived: where one fails among crossings, the clipping library may
/// free memory twice, and the tessellator may read through a null pointer.
///
/// Degenerate input (nothing is reported, nothing throws but a failed allocation):
/// - an empty contour: ignored;
/// - fewer than three added vertices in total: dropped, the contours stay as they were;
/// - a contour of one or two vertices, of repeated or of collinear vertices: bounds nothing and
///   vanishes in the merge;
/// - exactly three added vertices, in one contour or in several: they replace all contours by
///   that triangle, which is not projected on the plane;
/// - a contour with a coordinate that is not a number, infinite or outside the integer grid
///   (4.6e14 model units from the plane's point): dropped alone, the others stay;
/// - a first contour without a plane of its own (summed cross products shorter than 0.000001):
///   all pending contours are dropped and the plane stays undefined;
/// - a plane of numbers that are not finite: the region is empty for as long as they stay.
///
/// Ownership: a polygon owns everything it holds; copies are deep.
///
/// Memory: each thread keeps, until it ends, what merges and tessellations of small shapes gave, a
/// few megabytes at most: shapes that lie alike are answered from there.
///
/// \code
/// ox::ox_list<ox::ox_3dvector> square;
/// square.push_right(ox::ox_3dvector(0.0f, 0.0f, 0.0f));
/// square.push_right(ox::ox_3dvector(1.0f, 0.0f, 0.0f));
/// square.push_right(ox::ox_3dvector(1.0f, 1.0f, 0.0f));
/// square.push_right(ox::ox_3dvector(0.0f, 1.0f, 0.0f));
///
/// ox::ox_polygon polygon;
/// polygon.add_contour(square);
/// float area = polygon.get_area();                 // 1, and the normal is (0, 0, 1)
/// polygon.offset(0.5f, ox::ox_polygon::join_round);  // a rounded square, 2 wide
/// \endcode
class OX_EXPORT ox_polygon {
public:
    /// How `offset` joins the moved sides at a convex corner.
    enum join {
        join_square = 0, ///< cut off at a right angle, one offset distance from the corner
        join_round = 1,  ///< arc around the corner
        join_miter = 2,  ///< prolonged to their meeting point, cut off beyond twice the distance
    };

    // Construction and copying

    /// Makes an empty polygon without a plane: the first contour will define it. O(1).
    ox_polygon();

    /// Makes an empty polygon in the plane through `point` with `normal`, of any length.
    /// A normal shorter than 0.0001 is refused: the polygon then has no plane, and
    /// `point` is kept.
    ox_polygon(const ox_3dvector& point, const ox_3dvector& normal);

    /// Copies deeply. The source is normalised first, so a copy always holds merged contours.
    /// The tessellation is copied when the source has a valid one. O(n) after the merge.
    ox_polygon(const ox_polygon& source);

    /// Replaces this polygon by a copy, as the copy constructor makes it. Assignment to itself
    /// does nothing.
    ox_polygon& operator=(const ox_polygon& source);

    /// Takes what `source` holds and leaves it a new polygon. O(1).
    ox_polygon(ox_polygon&& source);

    /// Exchanges what both hold. O(1).
    ox_polygon& operator=(ox_polygon&& source) noexcept;

    /// Exchanges what both hold. O(1).
    void swap(ox_polygon& other) noexcept;

    /// Frees everything the polygon holds.
    virtual ~ox_polygon();

    // Building

    /// Adds a closed contour (the last vertex is joined to the first). The region is the same
    /// whichever way it runs. The contour is merged by the next query, and projected on the plane
    /// then. An empty list is ignored; see the class for other degenerate contours. O(n).
    ///
    /// A polygon without a plane takes that of its first contour, whose normal points to where the
    /// contour is seen to run counter-clockwise: the cross products of the sides at all corners,
    /// added up. Reflex corners count against convex ones, so that an outline may have no plane of
    /// its own and vanish, a star of four tips of 45 degrees for one, and an uneven one gets a
    /// plane that leans. Make the polygon with its plane where you know it.
    void add_contour(const ox_list<ox_3dvector>& vertices);

    /// Removes all contours and forgets the plane. A computed best centre stays in place.
    void clear();

    /// Turns the plane about its point to the normal `normal`, of any length; one shorter than
    /// 0.001 is ignored. The contours are projected on the new plane, and reversed when the new
    /// normal points to the other side (negative dot product with the old one). O(n).
    void set_normal(const ox_3dvector& normal);

    /// Moves the plane to `point`, keeping its normal. The contours are projected on the moved
    /// plane only where making the normal of unit length again changes it by a rounding; a
    /// normal that stays exactly as it is (an axis, for example) leaves them where they are,
    /// until the next merge or boolean brings them into the plane. Without a plane only the
    /// point is stored. O(n).
    void set_point(const ox_3dvector& point);

    /// Turns the polygon over: negates the normal and the frame's dy, and reverses all contours
    /// and triangles. Area, bounding box and best centre are kept. O(n).
    void reverse();

    /// Transforms the plane's point and all contours as positions, the normal and the frame as
    /// directions. The normal is not made of unit length again: a matrix that scales leaves a
    /// plane that the caller should set anew. O(n).
    void matrix_transform(ox_matrix& m);

    // Contours

    /// The vertices of all contours, contour after contour, in model units.
    const ox_list<ox_3dvector>& get_contour_vertices();

    /// The number of vertices of each contour.
    const ox_list<unsigned int>& get_contour_sizes();

    /// For each contour: true for an outer boundary, false for a hole.
    const ox_list<bool>& get_contour_orientations();

    /// For each contour: the index of the contour directly around it, -1 at the top level.
    const ox_list<int>& get_contour_parents();

    /// The number of outer boundaries, islands inside holes included. O(number of contours).
    int count_outer_contours();

    // Plane and measures

    /// The normal of the plane; zero when no plane was ever defined. Merges added contours, so
    /// the plane of a polygon made only of contours is known here.
    const ox_3dvector& get_normal() const;

    /// A point of the plane, the origin of the polygon's frame. Merges added contours.
    const ox_3dvector& get_point() const;

    /// The axis-aligned box around all contours; empty (negative x size) without contours. O(n)
    /// at the first call after a change.
    const ox_box& get_bounding_box();

    /// The length of all contours, holes included, in model units: each contour's edges added
    /// in order, its closing edge last. O(n).
    float get_perimeter();

    /// The area of the region in squared model units: the sum of the areas of its triangles.
    float get_area();

    /// A point well inside the region, for labels: the candidate of a shrinking grid (steps 0.5
    /// to 0.0625 model units) that lies farthest from the outline, less a tenth of its distance
    /// to the middle of the bounds. `get_point()` when there is no contour. The result is kept
    /// until the next contours are merged: booleans, offsets, changes of the plane,
    /// transformations and `clear` leave it in place. Scores end at 10000, and of equal ones the
    /// last in scan order wins, so an area that reaches beyond that limit has its centre near a
    /// side. Where no candidate lies inside (a sliver, coordinates beyond 1e15) the centre keeps
    /// the value it had, zero at first. Bounded by pruning: milliseconds for common shapes of any
    /// size, seconds for rings of thousands of sides.
    const ox_3dvector& get_best_center();

    /// True if the projection of `p` on the plane lies inside the region, by counting
    /// crossings of a line through it along dx. No tolerance; `p`'s distance from the plane is
    /// ignored. O(n) for the first questions after a change and for coordinates beyond 1e37, then
    /// O(log n) for each stretch of the outline that passes near `p`.
    bool contains(const ox_3dvector& p);

    // Tessellation

    /// The vertices of the triangles. Each primitive of the tessellator has vertices of its own,
    /// so a contour vertex may occur several times.
    const ox_list<ox_3dvector>& get_tesselation_vertices();

    /// Three indices into `get_tesselation_vertices()` per triangle; every triangle that has an
    /// area runs counter-clockwise about the normal.
    const ox_list<unsigned int>& get_tesselation_triangles();

    // Booleans and offset, in place

    /// Adds the region of `other`. Does nothing when `other` has no contour. A polygon without a
    /// plane takes the plane of `other` first.
    ///
    /// All three operations project the contours of `other` on this plane and work on this
    /// polygon's integer grid; contours of either polygon that do not fit the grid are left out.
    /// A result that vanishes leaves the plane. `other` may be this polygon. O(n log n) plus the
    /// crossings.
    void unites(const ox_polygon& other);

    /// Removes the region of `other`. Does nothing when either polygon has no contour.
    void substracts(const ox_polygon& other);

    /// Keeps what lies in `other` as well. Does nothing when this polygon has no contour; one
    /// without contours as `other` clears this polygon, its plane included.
    void intersects(const ox_polygon& other);

    /// Grows (positive distance, model units) or shrinks (negative) the region: outlines move
    /// outwards, holes shrink. `join_type` is one of `join`; every other value is read as
    /// `join_square`. Arcs keep within 0.0001 model units of the circle: 0.000025 by their chords,
    /// and the rounding to the grid.
    ///
    /// Out of reach is a distance that is not finite, one of which twice could lead outside the
    /// integer grid, and with round joins one whose arcs would have more than 16,000,000 vertices.
    /// An arc has 71 times the root of the distance for each radian that it turns: the limit is a
    /// full circle of 1,290,000,000 model units, or 1,400 right angles of 10,000. It leaves no
    /// contour when it is negative, and the polygon unchanged otherwise. O(n log n) for n vertices,
    /// those of the arcs included, plus the crossings of the moved sides: seconds and gigabytes
    /// near that limit.
    void offset(float distance, int join_type);

    // Cutting and splitting

    /// Cuts the polygon by the plane through `point` with `normal`: returns the piece on the
    /// side the normal points to and, with `both_sides`, the piece behind as second. A piece may
    /// come back without contours. Where nothing is to be cut (parallel planes, or the polygon
    /// lies wholly on one side that is asked for) the list holds this polygon itself; a list
    /// that holds another pointer gives the caller a new polygon to delete. Wholly behind and
    /// without `both_sides`: empty list. Touching the plane is not crossing it.
    /// The cut runs through the projection of `point` on this polygon's plane, so a cutting plane
    /// that is not perpendicular needs a point in both planes. Planes count as parallel when the
    /// cross product of the normals is shorter than 0.001 or not a number. `ox_polygon_pieces` owns
    /// what is returned here and by `split_to_polygons`. O(n log n) plus the crossings.
    [[nodiscard]] ox_list<ox_polygon*> cut_by_plane(const ox_3dvector& point,
                                                    const ox_3dvector& normal, bool both_sides);

    /// The points where the line in which this plane meets the plane through `point` with
    /// `normal` enters and leaves the polygon, in order along it: each pair bounds one stretch
    /// inside. Empty for planes that are parallel (|dot| of the normals above 0.999, `normal` as
    /// given), for a plane that is not finite, and for crossings that do not alternate: a line
    /// that runs through a hole gives an empty list. O(n log n).
    ox_list<ox_3dvector> intersect_by_plane(const ox_3dvector& point, const ox_3dvector& normal);

    /// Tells whether the ray from `start` in `direction` (of any length but zero) meets the region,
    /// from either side, and writes the point and its distance from `start` in lengths of
    /// `direction`. A start in the plane is met at distance 0; of points on the outline some are
    /// in, as `contains` says. False, both untouched, for a ray that misses the region, points away
    /// or is parallel to the plane, and for numbers that are not finite. The plane is met in double
    /// precision. The cost is that of `contains`.
    bool intersect_by_ray(const ox_3dvector& start, const ox_3dvector& direction, ox_3dvector& hit,
                          float& distance);

    /// Makes one new polygon per outer boundary, with the holes directly inside it; the caller
    /// deletes them. A hole keeps its parent's index in this polygon. With fewer than two outer
    /// boundaries the list holds this polygon itself, which must not be deleted. O(n).
    [[nodiscard]] ox_list<ox_polygon*> split_to_polygons();

    /// Returns a list that holds this polygon itself when it is one convex contour, otherwise an
    /// empty list: the polygon was not split.
    ox_list<ox_polygon*> split_to_convex_polygons();

    /// True if a contour is convex (collinear vertices are allowed). A negative index
    /// means the only contour, and gives false when there are several. The vertices looked at
    /// are always those from the first of the whole polygon on, as many as the contour has.
    /// False for an index out of range. O(n).
    bool is_convex(int contour);

    /// Quick rejection: false when `box` is farther than 0.0001 model units from the bounding
    /// box along some axis.
    bool may_intersect(const ox_box& box);

    // Simplification and distributions

    /// Drops vertices of a closed contour that a tolerance (model units) allows to drop, in two
    /// phases. First every vertex whose edge to the next one is shorter than a tenth of the
    /// tolerance, until no such edge is left. Then every corner between vertices a and c that lies
    /// at most the tolerance away from the line through them, or whose a and c are nearer to each
    /// other than a tenth of the tolerance, until no such corner is left. Distances from lines are
    /// measured in the plane of `normal`, which should be of unit length.
    ///
    /// A contour without a corner that stands out, a lone vertex too, vanishes; a corner is
    /// compared with the neighbours it has left, so a finely sampled arc can move away by more than
    /// the tolerance. A negative tolerance or one that is not a number drops nothing. The vertices
    /// that are left keep their bits and their order. O(n log n).
    static void optimize_contour(ox_list<ox_3dvector>& contour, const ox_3dvector& normal,
                                 float tolerance);

    /// The same with the normal of what the contour encloses after the first phase (the sum of the
    /// cross products of its triangle fan, twice the area in length). A contour whose normal is not
    /// longer than the tolerance encloses nothing to measure corners by: only its short edges go.
    static void optimize_contour(ox_list<ox_3dvector>& contour, float tolerance);

    /// Simplifies every contour by `optimize_contour` with this polygon's normal. When a vertex
    /// went, the polygon is cleared and made anew of the contours that are left: it takes its plane
    /// from the first of them, and the next query merges them. O(n log n).
    void optimize_contours(float tolerance);

    /// The points of a square grid that the polygon contains, row after row along the frame's dy,
    /// and along dx within a row. Neighbours are `step` apart (model units); the grid starts half
    /// a step below the lower corner of the bounds in the frame. Containment is what `contains`
    /// says, so of points on the outline some are in.
    ///
    /// Empty for a step that is not positive, for bounds so far from the plane's point that the
    /// step does not change a coordinate, and where coordinates reach 1e37 model units and the
    /// points of the whole grid, times the sides, are more than 1,000,000,000. Rows and columns end
    /// with a coordinate that the step no longer changes. An allocation failure where
    /// the result has more than 2^31 - 1 points. O(n log n) for n sides, per row its crossings,
    /// and the points found.
    ox_list<ox_3dvector> regular_distribution(float step);

    /// `count` random points of the region, uniform over its area: equal seeds give equal points
    /// for equal polygons. Each point takes three numbers of `ox_random`, for its triangle (by
    /// running sums of areas) and for its place in it. Empty without triangles and for a count
    /// below 1. O(count) after the tessellation.
    ox_list<ox_3dvector> random_distribution(int count, int seed);

    /// Rasterises the region into `nx` times `ny` flags, cell (i, j) at `grid[j * nx + i]`, and
    /// returns how many became true; all others become false. `origin` is the corner of cell
    /// (0, 0), `dx` and `dy` are the sides of a cell; all are projected on the polygon's plane.
    ///
    /// A cell is set when its centre, origin + (i + 0.5) dx + (j + 0.5) dy, lies inside the region,
    /// and not nearer than `margin` (model units) to its outline: who fills a face with luminaires,
    /// tiles or samples must keep them clear of its edges, and would otherwise need a second,
    /// offset polygon. A margin of 0, a negative one or one that is not a number asks for the
    /// inside alone. Inside is by the even-odd rule on the crossings of the line through a row's
    /// centres; of centres on the outline some are in. Works in double precision.
    ///
    /// Nothing is set, and 0 returned, for a null grid or a count below 1 (which are not written
    /// to), and for cells without an area or with coordinates that are not finite. More than
    /// 2^31 - 1 cells are told as 2^31 - 1. O(n log n) for n sides, and per row its crossings, its
    /// cells, and the cells near the outline.
    int fill_regular_grid(bool* grid, const ox_3dvector& origin, const ox_3dvector& dx,
                          const ox_3dvector& dy, int nx, int ny, float margin);

    // Drawing (with the OpenGL context of the calling thread)

    /// Draws the triangles with the polygon's normal, in the current colour. Nothing without
    /// triangles.
    void draw_opengl();

    /// Draws every contour as a closed line in the current colour and, `with_points`, its
    /// vertices as points of 5 pixels. No OpenGL call without contours.
    void draw_opengl_contour(bool with_points);

    // Class-wide

    /// The number of living polygons of the process, whichever thread made them.
    static int get_instanced();

    /// Always 0.0: kept for programs that read it.
    static double get_compute_contour_time();

    /// Tells how a contour turns when seen from the side `normal` points to: 1 clockwise, -1
    /// counter-clockwise, collinear or empty, 0 when the vertices coincide or the contour only
    /// goes from one point to another. Repeated vertices are skipped. O(n).
    static int is_clockwise(const ox_list<ox_3dvector>& contour, const ox_3dvector& normal);

    /// The area of a triangle by Heron's formula, in squared model units; 0 for a triangle so
    /// flat that half its perimeter does not exceed its longest side.
    static float compute_triangle_area(const ox_3dvector& a, const ox_3dvector& b,
                                       const ox_3dvector& c);

private:
    friend struct internal::polygon_access;

    ox_polygon_data* data;
};

} // namespace ox

#endif
