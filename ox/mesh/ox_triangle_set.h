#ifndef OX_MESH_OX_TRIANGLE_SET_H
#define OX_MESH_OX_TRIANGLE_SET_H

#include <cstdint>
#include <memory>

#include <ox/core/ox_export.h>
#include <ox/core/ox_list.h>
#include <ox/geometry/ox_3dvector.h>

namespace ox {

namespace internal {
class mesh_file;
}

/// A plain indexed triangle mesh: an array of vertices and an array of three vertex indices per
/// triangle, read from and written to files, welded and refined.
///
/// Representation: the two counts, 32-bit unsigned, and the two arrays, each absent when its count
/// is 0. Coordinates are in model units. There is no invariant on the contents: the caller writes
/// through the pointers, and files are not checked beyond their size.
///
/// Degenerate input:
/// - indices not below the vertex count: `optimize` and `subdivide` log "invalid triangle index"
///   and change nothing;
/// - NaN and infinite vertices: `optimize` logs "too many octrees" and changes nothing;
/// - triangles without area, or with a repeated corner: kept, welded and refined like others;
/// - files that are missing, cut short, of another format, or whose counts promise more than they
///   hold: refused as each function says, before memory of the promised size is asked for.
///
/// Ownership: copies share both arrays, and what is written through one is seen through the other.
/// Whatever replaces an array (`allocate` and reading with another count, the vertices of
/// `optimize`, all of `subdivide`) replaces it for that object only. An array whose count stays is
/// kept, so a file with the same count is read into the shared one; `optimize` rewrites the shared
/// indices in place, so a copy that keeps the old vertices should be allocated anew. An array lives
/// until its last owner lets go.
///
/// \code
///   ox::ox_triangle_set set;
///   if (set.read_binary_stl("part.stl")) {
///       set.optimize(0.001f, 10.0f); // one vertex for each place
///       set.write_binary_raw("part.raw");
///   }
/// \endcode
class OX_EXPORT ox_triangle_set {
public:
    /// A set without vertices and triangles.
    ox_triangle_set();

    /// What `allocate` makes of an empty set.
    ox_triangle_set(unsigned int nb_vertices, unsigned int nb_triangles);

    /// A set that shares the arrays of `other`. O(1).
    ox_triangle_set(const ox_triangle_set& other);

    /// Lets go of the arrays and shares those of `other`. O(1).
    ox_triangle_set& operator=(const ox_triangle_set& other);

    /// Takes the arrays of `other`, which becomes empty. O(1).
    ox_triangle_set(ox_triangle_set&& other) noexcept;

    /// Exchanges the arrays with those of `other`. O(1).
    ox_triangle_set& operator=(ox_triangle_set&& other) noexcept;

    /// Exchanges the arrays with those of `other`. O(1).
    void swap(ox_triangle_set& other) noexcept;

    /// Lets go of both arrays.
    virtual ~ox_triangle_set();

    /// Gives the set these counts. An array whose count changes is replaced: new vertices are at
    /// (0, 0, 0), new indices uninitialised. An array whose count stays is kept with its contents.
    /// An allocation that fails leaves the set as it was. O(n).
    void allocate(unsigned int nb_vertices, unsigned int nb_triangles);

    /// The number of vertices.
    unsigned int get_nb_vertices() const { return nb_vertices; }

    /// The number of triangles.
    unsigned int get_nb_triangles() const { return nb_triangles; }

    /// The vertices, null when there are none. The set keeps them; the caller may write to them.
    ox_3dvector* get_vertices() const { return vertices.get(); }

    /// Three vertex indices for each triangle, null when there are none. The set keeps them; the
    /// caller may write to them.
    unsigned int* get_triangles() const { return triangles.get(); }

    /// Reads a binary STL file: an 80-byte header, the triangle count, and a 50-byte record for
    /// each triangle. Its normals and attributes are ignored; triangle i gets the vertices 3i,
    /// 3i + 1 and 3i + 2 of its own, which `optimize` welds.
    ///
    /// Logs "reading stl...", "open file ok", "header ok", "nb of triangles ok", "reading N
    /// triangles..." and "triangle size : 52 bytes." as far as it comes. False when the file cannot
    /// be opened or ends before the count is read; the set stays as it was. False when it holds
    /// fewer records than it promises, or promises more than 2^32 - 1 vertices: the number of
    /// complete records is logged as "N read triangles..." and the set is emptied. A null path,
    /// a pipe and a device cannot be opened. O(n).
    bool read_binary_stl(const char* path);

    /// Reads a raw file, all little-endian: the eight characters "binaryra", the 32-bit counts of
    /// vertices and triangles, three floats for each vertex, three 32-bit indices for each
    /// triangle. The indices are not compared with the vertex count.
    ///
    /// Logs "reading binary_raw...", "open file ok", "header ok" and "reading N vertices and N
    /// triangles" as far as it comes. False when the file cannot be opened, begins otherwise or
    /// ends before the counts are read; the set stays as it was. False when it holds less than it
    /// promises: the set is emptied and "Error reading file" logged. A null path, a pipe and a
    /// device cannot be opened. O(n).
    bool read_binary_raw(const char* path);

    /// Writes a raw file (see `read_binary_raw`). Logs "writing binary_raw...", "open file ok" and
    /// "header ok" as far as it comes. False when the file cannot be opened or its first bytes
    /// cannot be written; the set stays as it was. False when the arrays cannot be written, also
    /// when the device turns out to be full: the set is emptied, as after a failed read, and "Error
    /// writing file" is logged. A null path cannot be opened. O(n).
    bool write_binary_raw(const char* path);

    /// Writes a binary STL file (see `read_binary_stl`): of each triangle its unit normal, AB x AC
    /// made unit in single precision (zero without an area), and its corners; the set keeps its
    /// shared vertices, the file has none. False when the file cannot be opened or written to its
    /// end, and, without a file, for an index not below the vertex count, which is logged as
    /// "invalid triangle index". A null path cannot be opened. O(n).
    bool write_binary_stl(const char* path) const;

    /// Writes a Wavefront OBJ file: a line `v x y z` for each vertex, with the nine digits that
    /// give the same float back, then a line `f a b c` for each triangle, its indices counted
    /// from 1. Numbers have decimal points in any locale; those that are not finite are written as
    /// the C library does, and most readers refuse them. False as `write_binary_stl` says. O(n).
    bool write_obj(const char* path) const;

    /// Welds the vertices that belong to triangles and drops all others. A corner joins the first
    /// welded vertex that is at most `position_tolerance` (model units) away on every axis, whose
    /// unit normal (that of the triangle ABC that made it, AB x AC made unit) differs by at most
    /// `normal_tolerance` in sum over the axes, and that lies in the same octree cell. So vertices
    /// of different normals stay apart on sharp edges, unless `normal_tolerance` is above 3.5. The
    /// cells are 1/512 of the octree's edge wide, the smallest power of two that reaches from the
    /// origin over the model; two vertices on either side of a cell boundary stay apart. Triangles
    /// keep their number and order. A negative or NaN tolerance welds nothing.
    ///
    /// A vertex that is NaN, infinite or above about 2^100: logs "too many octrees" and changes
    /// nothing. An index not below the vertex count: logs "invalid triangle index" and changes
    /// nothing. O(n) for n triangles on average; corners of many different normals within the
    /// position tolerance of one place are compared with each other.
    void optimize(float position_tolerance, float normal_tolerance);

    /// Replaces each triangle (a, b, c) by (a, m0, m2), (b, m1, m0), (c, m2, m1) and (m0, m1, m2),
    /// where m0, m1 and m2 are the middles of the sides ab, bc and ca. Triangles that share a side
    /// share its middle. The old vertices keep their indices; the middles follow in the order in
    /// which triangles first name their sides.
    ///
    /// An index not below the vertex count: logs "invalid triangle index" and changes nothing. A
    /// result beyond 2^32 - 1 vertices or triangles: logs "too many triangles" and changes nothing.
    /// O(n log k) for n triangles and vertices, k triangles at a vertex.
    void subdivide();

private:
    void allocate_uninitialised(unsigned int nb_vertices, unsigned int nb_triangles);
    bool read_raw_arrays(internal::mesh_file& file, unsigned int new_nb_vertices,
                         unsigned int new_nb_triangles);
    bool read_stl_records(internal::mesh_file& file, unsigned int record_count,
                          std::uint64_t& read_count);
    bool has_valid_triangles() const; ///< logs when it is false
    void replace_vertices(const ox_list<ox_3dvector>& replacements);

    unsigned int nb_vertices = 0;
    std::shared_ptr<ox_3dvector[]> vertices;
    unsigned int nb_triangles = 0;
    std::shared_ptr<unsigned int[]> triangles;
};

/// Exchanges the arrays of two sets. O(1).
inline void swap(ox_triangle_set& a, ox_triangle_set& b) noexcept {
    a.swap(b);
}

} // namespace ox

#endif
