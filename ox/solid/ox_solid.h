#ifndef OX_SOLID_OX_SOLID_H
#define OX_SOLID_OX_SOLID_H

#include <memory>

#include <ox/core/ox_export.h>
#include <ox/core/ox_list.h>
#include <ox/geometry/ox_3dvector.h>
#include <ox/geometry/ox_box.h>
#include <ox/polygon/ox_polygon.h>

namespace ox {

struct ox_solid_state;

/// A solid by its boundary: a closed shell of planar faces, each an outer contour with any number
/// of holes.
///
/// Representation: three parallel lists, the primary storage. `vertices` holds positions (model
/// units), `contours` the vertex indices of all contours back to back, `contour_sizes` one signed
/// count per contour: a positive one opens a face with its outer contour, a negative one is a hole
/// of the face opened last, zero is an empty contour. Faces do not share vertices: each added face
/// brings its own, and nothing ever welds them. Seen from outside, outer contours run
/// counter-clockwise, so that normals point outwards; nothing checks or repairs that, nor that the
/// shell is closed.
///
/// Laziness: the faces as polygons, the bounding box and the tessellation are computed on the first
/// query and kept until a change. References and face pointers returned by queries stay valid until
/// then; a face must not be changed or deleted. Queries fill caches: one solid must not be used by
/// two threads at once, and neither must the argument of a boolean.
///
/// Degenerate input (nothing is reported, nothing throws but a failed allocation):
/// - an empty solid: no faces, an empty box, empty lists;
/// - inconsistent primary lists (an index out of range, sizes that promise more indices than there
///   are): the face list ends there, with the faces begun before;
/// - sizes of any value, -2147483648 included, and lists with a negative count, which are empty;
/// - faces without area, of two vertices or of coordinates that are not finite: kept in the primary
///   storage when set there, but `add_face` stores only what the polygon's merged contours hold;
/// - an argument that is part of this solid (one of its faces, lists or vertices, or the solid
///   itself): its value at the call counts.
///
/// Ownership: a solid owns its lists and cached faces; copies are deep.
///
/// \code
/// ox::ox_solid wall;
/// wall.brick(ox::ox_3dvector(0.0f, 0.0f, 0.0f), 4.0f, 0.3f, 2.5f);
///
/// ox::ox_solid door;
/// door.brick(ox::ox_3dvector(1.0f, -1.0f, 0.0f), 0.9f, 2.0f, 2.1f);
///
/// wall.substracts(door);                                    // the wall has a doorway now
/// int faces = wall.get_faces().size();                      // 10: its two jambs, its lintel ...
/// \endcode
class OX_EXPORT ox_solid {
public:
    // Construction and copying

    /// Makes an empty solid with a tolerance of 0.001 model units. O(1).
    ox_solid();

    /// Copies the primary storage deeply. The copy is otherwise like new: empty caches, a tolerance
    /// of 0.001, both flags off, stopwatches at 0. O(n).
    ox_solid(const ox_solid& source);

    /// Takes everything from `source`, its caches, flags and stopwatches included; `source` is then
    /// like new. References and face pointers that it gave stay valid. O(1).
    ox_solid(ox_solid&& source) noexcept;

    /// Replaces this solid by a copy, as the copy constructor makes it: the flags and stopwatches
    /// of this solid are reset too. Assignment to itself changes nothing. O(n).
    ox_solid& operator=(const ox_solid& source);

    /// Takes everything from `source`, as the move constructor does. Assignment to itself changes
    /// nothing. O(1), and the time to free what the solid held.
    ox_solid& operator=(ox_solid&& source) noexcept;

    /// Exchanges everything with `other`. O(1).
    void swap(ox_solid& other) noexcept;

    /// Frees everything the solid holds, its cached faces included.
    virtual ~ox_solid();

    // Primary storage

    /// Replaces the vertex positions (model units) by a copy of `vertices` and drops the caches.
    /// The three lists are not compared with each other. O(n).
    void set_vertices(const ox_list<ox_3dvector>& vertices);

    /// Replaces the vertex indices of all contours by a copy of `contours` and drops the caches.
    /// O(n).
    void set_contours(const ox_list<unsigned int>& contours);

    /// Replaces the signed contour sizes by a copy of `sizes` and drops the caches. O(n).
    void set_contour_sizes(const ox_list<int>& sizes);

    /// The vertex positions, in model units.
    const ox_list<ox_3dvector>& get_vertices() const;

    /// The vertex indices of all contours, contour after contour.
    const ox_list<unsigned int>& get_contours() const;

    /// The number of indices of each contour: positive for the outer contour that opens a face,
    /// negative for a hole.
    const ox_list<int>& get_contour_sizes() const;

    /// Empties the solid and frees its memory. The tolerance and the flags stay.
    void clear();

    // Building

    /// Appends a polygon as faces, one per outer boundary, each followed by the holes directly
    /// inside it. Vertices are copied, never shared with faces already there. A polygon without
    /// contours adds nothing. O(n) for n vertices.
    void add_face(ox_polygon& polygon);

    /// Becomes the parallelepiped spanned from `origin` by the edge vectors `a`, `b` and `c`, with
    /// outward normals when they are right-handed. Faces: for the axes a, b, c in turn the one at
    /// `origin`, then the one opposite. Edge vectors that lie in one plane leave faces out.
    void brick(const ox_3dvector& origin, const ox_3dvector& a, const ox_3dvector& b,
               const ox_3dvector& c);

    /// Becomes the axis-aligned box from `origin` with the extents `dx`, `dy`, `dz` (model units):
    /// six faces, 24 vertices, in the order of the other form. With a negative extent the box lies
    /// on the other side of `origin`, while the face normals stay those of a positive one.
    void brick(const ox_3dvector& origin, float dx, float dy, float dz);

    /// Becomes the prism swept by `polygon` along `direction` (its length is the height, in model
    /// units): bottom cap, top cap, then one quadrilateral per contour edge. Holes of the polygon
    /// become tunnels. The caps face outwards whichever way the direction goes; the sides are
    /// always built from p(i), p(i+1) upwards, so they face outwards only when the direction and
    /// the polygon's normal point to the same side. The normal of a polygon made from contours
    /// alone comes from the first one: where that runs clockwise, seen from where `direction`
    /// leads, the sides face inwards, and subtracting the solid adds volume; `reverse` the polygon
    /// first. Nothing of the solid changes before all of the prism is there. O(n).
    void extrusion(ox_polygon& polygon, const ox_3dvector& direction);

    // Derived data

    /// The faces as polygons, each with its holes, in the order of the primary storage. They stay
    /// owned by the solid. O(n) at the first call after a change.
    const ox_list<ox_polygon*>& get_faces();

    /// The axis-aligned box around all vertices, those outside any contour included; empty
    /// (negative x size) without vertices. O(n) at the first call after a change.
    const ox_box& get_bounding_box();

    /// The vertices of the triangles of all faces, face after face; faces do not share vertices, so
    /// the mesh has a seam along every edge. Computed at the first call after a change.
    const ox_list<ox_3dvector>& get_tesselation_vertices();

    /// Three indices into `get_tesselation_vertices()` per triangle; every triangle that
    /// has an area runs counter-clockwise about its face's normal.
    const ox_list<unsigned int>& get_tesselation_triangles();

    /// Always false at present: tells whether the shell is known to be manifold, and no operation
    /// establishes that.
    bool check_manifold() const;

    // Measures, in double precision, of the primary storage as it is
    //
    // Nothing is cached. Faces end where the lists contradict each other, as those of `get_faces`
    // do, but no face is rounded to a grid or left out for its size.

    /// The volume that the faces enclose, in cubic model units: negative for a shell that is inside
    /// out, 0 without faces. Each contour counts as the triangles about its first vertex, seen from
    /// the centre of the box around all finite vertices; the place of the centre matters only where
    /// the shell is open. Not a number where a vertex of a face is not finite. O(n).
    double get_volume() const;

    /// The area of all faces, in square model units. Holes are taken off their faces; they must run
    /// against the outer contours. Of a face that is not planar it is the area of its outline seen
    /// from where that is largest. Not a number where a vertex of a face is not finite. O(n).
    double get_surface_area() const;

    /// The edges, or the parts of them, that no edge of the opposite direction covers, as pairs of
    /// points from start to end; empty for a closed shell, and of two edges for one opposite, one
    /// is open. Points nearer to each other than `tolerance` (model units) are one, in chains, and
    /// an edge counts as divided at the ends of others that lie along it within `tolerance`. A
    /// tolerance below 0 or not a number counts as 0: then only equal points are one. An edge with
    /// an end that is not finite is covered by none. The pairs come in ascending order of the
    /// vertices. O(n log n) for n edges, and O(log n) for each end along an edge that has no
    /// opposite between the same points, as long as few different points lie within a tolerance.
    ox_list<ox_3dvector> get_open_edges(float tolerance) const;

    // Booleans, in place
    //
    // Each face of one solid is cut by the cross-section of the other in that face's plane, and the
    // pieces that bound the result are kept. Pieces whose area is not above 0.000001 square model
    // units (the squared tolerance) are dropped. The primary storage of `other` is never changed;
    // its caches are filled. Where no face of this solid would change by more than a thousandth of
    // its area, and no piece of the other solid is kept, the solid is left exactly as it was; so it
    // is when an allocation fails. Cost: one test of boxes for each face, and one
    // section of the other solid for each face whose box reaches the other's box: for n faces there
    // O(log n + s log s), by a tree over their boxes, when s of them meet the face's plane. Faces
    // that would be made again as they are stay in the cache.

    /// Adds the volume of `other`; coplanar faces of equal normal are merged afterwards, found
    /// in O(k log k) for k kept faces. An empty `other` changes nothing, an empty solid becomes a
    /// copy of `other`. When the boxes, this one grown by 0.01 model units, do not overlap, the
    /// faces of `other` are appended as they are.
    ///
    /// When merging two coplanar faces makes more vertices than both had, they overlapped instead
    /// of touching; `Merge divergence for <face>` is then printed to standard output.
    void unites(ox_solid& other);

    /// Removes the volume of `other`. Nothing happens when either solid is empty or the boxes do
    /// not overlap (touching is not overlapping).
    void substracts(ox_solid& other);

    /// Keeps the volume that lies in `other` as well. The solid becomes empty when `other` is, or
    /// when the boxes do not overlap (touching is not overlapping).
    ///
    /// Faces of both solids that coincide and face the same way are kept twice, once from each: of
    /// a solid intersected with itself every face is there twice.
    void intersects(ox_solid& other);

    /// Does nothing: a solid never welds its vertices. Kept for programs that call it.
    void optimize_vertices(float tolerance);

    // Planes

    /// The cross-section of the solid with the plane through `point` with `normal`: new polygons,
    /// one per outer boundary with the holes directly inside it, which the caller deletes. Vertices
    /// no farther than 0.001 model units from the plane lie in it, and ends of the face cuts no
    /// farther apart (Manhattan distance) are joined. Empty when the plane meets no face.
    ///
    /// In the plane of a face the section is the face when `normal` is the face's normal, and
    /// empty when it is the opposite one. Of an open shell the section depends on the order of the
    /// faces: a cut is only continued by the cut of a later face. O(log n + s log s) for n faces
    /// and s crossing segments; the first time after a change, and where the caller changed a face,
    /// O(n log n).
    [[nodiscard]] ox_list<ox_polygon*> intersect_by_plane(const ox_3dvector& point,
                                                          const ox_3dvector& normal);

    /// The cross-section of the solid bounded by `faces`, as above. The faces stay the caller's and
    /// keep their contours; null pointers are skipped. The faces are copied, so O(n log n) for
    /// n vertices, and O(s log s) to join s crossing segments.
    [[nodiscard]] static ox_list<ox_polygon*> intersect_by_plane(const ox_3dvector& point,
                                                                 const ox_3dvector& normal,
                                                                 const ox_list<ox_polygon*>& faces);

    /// Cuts away what lies on the side of the plane that `normal` points to. Distances are measured
    /// with the normal as given, which should therefore be of unit length. Nothing happens when no
    /// vertex lies more than 0.001 above the plane (so for a zero normal or one that is not a
    /// number); the solid becomes empty when some do and none lies more than 0.001 below.
    void clip(const ox_3dvector& point, const ox_3dvector& normal);

    /// The outline of the solid seen along `normal`: the union of the projections of its faces, as
    /// a new polygon in the plane through `point`, which the caller deletes. Faces seen edge-on
    /// (the cosine between the normals below 0.001) are skipped. Empty without faces.
    [[nodiscard]] ox_polygon* project_on_plane(const ox_3dvector& point, const ox_3dvector& normal);

    // Drawing (with the OpenGL context of the calling thread)

    /// Draws the triangles of all faces in the current colour.
    void draw_opengl();

    /// Draws the contours of all faces as lines in the current colour, without points.
    void draw_opengl_contour();

    // Diagnostics

    /// Tells whether the booleans print their progress to standard output. Off by default.
    void set_verbose(bool verbose);

    /// Stores a flag that nothing reads: the booleans are always timed.
    void set_profiling(bool profiling);

    /// Seconds spent in the last run of a phase of the booleans: slot 0 cuts the faces of this
    /// solid, slot 1 those of the other, slot 2 merges and rebuilds, which a boolean that changes
    /// nothing leaves out: slot 2 then tells of an earlier one. 0 before the first run, and for
    /// every other slot.
    double get_chrono(int slot);

    /// The number of living solids of the process, whichever thread made them.
    static int get_instanced();

private:
    ox_solid_state& get_state();

    std::unique_ptr<ox_solid_state>
        state; // null while the solid is like new, having been moved from
};

/// Exchanges everything between two solids. O(1).
inline void swap(ox_solid& a, ox_solid& b) noexcept {
    a.swap(b);
}

} // namespace ox

#endif
