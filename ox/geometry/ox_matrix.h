#ifndef OX_GEOMETRY_OX_MATRIX_H
#define OX_GEOMETRY_OX_MATRIX_H

#include <iosfwd>
#include <type_traits>

#include <ox/core/ox_export.h>
#include <ox/geometry/ox_3dvector.h>

namespace ox {

/// A 4x4 transformation matrix, in single precision.
///
/// Represents an affine map of points, stored as the fixed-function graphics pipeline expects
/// it: column-major, the element of a row and a column at the index 4 * column + row. Elements
/// 0 to 2, 4 to 6 and 8 to 10 hold the images of the three axes, 12 to 14 the translation, and
/// 3, 7, 11, 15 the bottom row. A plain value of 16 floats, without any invariant.
///
/// Two families of operations exist. The set family (`load_...`, `rotation`, `scaling`,
/// `translation`, `axis_transformation`, `inv_axis_transformation`) replaces the matrix. The
/// apply family (`rotate`, `scale`, `translate`, `axis_transform`, `inv_axis_transform`)
/// multiplies it on the right by the set-family matrix of the same arguments: what is applied
/// last acts on a point first.
///
/// Degenerate input:
/// - a null array: the constructors give the identity, `load_from_...` change nothing;
/// - a rotation about a coordinate axis other than 0, 1, 2: the identity;
/// - a rotation about a line whose direction is zero: a map of everything to the point on it;
/// - a singular matrix: `reverse` returns false;
/// - NaN and infinite elements or angles travel by the rules of IEEE arithmetic.
///
/// Every operation costs constant time and may be given this matrix itself.
///
/// \code
///   ox::ox_matrix placement;
///   placement.translate(ox::ox_3dvector(1.0f, 2.0f, 3.0f));
///   placement.rotate(2, 1.5707964f); // turned about z first, then moved
///   const ox::ox_3dvector p = placement.transform_point(ox::ox_3dvector(1.0f, 0.0f, 0.0f));
/// \endcode
class ox_matrix {
public:
    /// The identity.
    ox_matrix() = default;

    /// Copies 16 floats in storage order; a null pointer gives the identity.
    OX_EXPORT ox_matrix(const float* values);

    /// Copies 16 doubles in storage order, each rounded to float; a null pointer gives the
    /// identity.
    OX_EXPORT ox_matrix(const double* values);

    /// Element i, 0 to 15, in storage order. The index is not checked.
    float& operator[](unsigned int i) { return m[i]; }

    /// Value of element i, 0 to 15, in storage order. The index is not checked.
    float operator[](unsigned int i) const { return m[i]; }

    // Set family

    /// Makes this the identity.
    OX_EXPORT void load_identity();

    /// Replaces all elements by 16 floats in storage order; a null pointer changes nothing.
    OX_EXPORT void load_from_float(const float* values);

    /// Replaces all elements by 16 doubles in storage order, each rounded to float (infinite
    /// beyond its range); a null pointer changes nothing.
    OX_EXPORT void load_from_double(const double* values);

    /// Makes this the rotation by `angle` (radians) about a coordinate axis, 0 = x, 1 = y,
    /// 2 = z, counter-clockwise seen from the tip of the axis. Any other axis gives the
    /// identity.
    OX_EXPORT void rotation(int axis, float angle);

    /// Makes this the rotation by `angle` (radians) about the line through `point` with the
    /// direction `axis` (of any length), counter-clockwise seen from the tip of the direction.
    /// Composed of the change to a frame of the line, a turn about its third axis, and the
    /// change back.
    OX_EXPORT void rotation(const ox_3dvector& point, const ox_3dvector& axis, float angle);

    /// Makes this the scaling by sx, sy, sz along the axes.
    OX_EXPORT void scaling(float sx, float sy, float sz);

    /// Makes this the translation by t (model units).
    OX_EXPORT void translation(const ox_3dvector& t);

    /// Makes this the map of world coordinates to coordinates in the frame with the origin o
    /// and the axes x, y, z, which are taken to be orthonormal.
    OX_EXPORT void axis_transformation(const ox_3dvector& o, const ox_3dvector& x,
                                       const ox_3dvector& y, const ox_3dvector& z);

    /// Makes this the map of coordinates in the frame with the origin o and the axes x, y, z to
    /// world coordinates.
    OX_EXPORT void inv_axis_transformation(const ox_3dvector& o, const ox_3dvector& x,
                                           const ox_3dvector& y, const ox_3dvector& z);

    // Apply family

    /// Makes this the product this x b: a point is transformed by b first. `m *= m` squares.
    /// Each element is a float sum that starts from 0 and runs along the row.
    OX_EXPORT ox_matrix& operator*=(const ox_matrix& b);

    /// Multiplies on the right by `rotation(axis, angle)`.
    OX_EXPORT void rotate(int axis, float angle);

    /// Multiplies on the right by `rotation(point, axis, angle)`.
    OX_EXPORT void rotate(const ox_3dvector& point, const ox_3dvector& axis, float angle);

    /// Multiplies on the right by `scaling(sx, sy, sz)`.
    OX_EXPORT void scale(float sx, float sy, float sz);

    /// Multiplies on the right by `translation(t)`.
    OX_EXPORT void translate(const ox_3dvector& t);

    /// Multiplies on the right by `axis_transformation(o, x, y, z)`.
    OX_EXPORT void axis_transform(const ox_3dvector& o, const ox_3dvector& x, const ox_3dvector& y,
                                  const ox_3dvector& z);

    /// Multiplies on the right by `inv_axis_transformation(o, x, y, z)`.
    OX_EXPORT void inv_axis_transform(const ox_3dvector& o, const ox_3dvector& x,
                                      const ox_3dvector& y, const ox_3dvector& z);

    // Reading

    /// The image of a point. The bottom row is ignored: there is no division by w.
    OX_EXPORT ox_3dvector transform_point(const ox_3dvector& p) const;

    /// The image of a direction: as for a point, without the translation.
    OX_EXPORT ox_3dvector transform_vector(const ox_3dvector& v) const;

    /// Writes the inverse into `out`, which may be this matrix, and returns true; returns false
    /// and leaves `out` as it was when the determinant is exactly 0. No tolerance: a nearly
    /// singular matrix is inverted. By cofactors (adjugate over determinant): cofactors in
    /// single precision, determinant and division in double.
    OX_EXPORT bool reverse(ox_matrix& out) const;

    /// Writes the matrix to the log as one message, a line per column: the images of the three
    /// axes and the translation.
    OX_EXPORT void log() const;

private:
    float m[16] = {1.0f, 0.0f, 0.0f, 0.0f, 0.0f, 1.0f, 0.0f, 0.0f,
                   0.0f, 0.0f, 1.0f, 0.0f, 0.0f, 0.0f, 0.0f, 1.0f};
};

static_assert(sizeof(ox_matrix) == 64, "sixteen packed floats");
static_assert(std::is_standard_layout_v<ox_matrix>, "can be handed to the graphics pipeline");
static_assert(std::is_trivially_copyable_v<ox_matrix>, "a plain value");

/// True if all elements are equal, without a tolerance (so a NaN equals nothing).
OX_EXPORT bool operator==(const ox_matrix& a, const ox_matrix& b);

/// True if an element differs, without a tolerance.
OX_EXPORT bool operator!=(const ox_matrix& a, const ox_matrix& b);

/// The product of two matrices, as `operator*=` makes it: a point is transformed by b first.
inline ox_matrix operator*(ox_matrix a, const ox_matrix& b) {
    return a *= b;
}

/// The image of the point p, as `transform_point` gives it. For a direction call
/// `transform_vector`.
inline ox_3dvector operator*(const ox_matrix& m, const ox_3dvector& p) {
    return m.transform_point(p);
}

/// Writes m row by row as "[a b c d; e f g h; ...]": the columns of the text are the images of the
/// axes and the translation.
OX_EXPORT std::ostream& operator<<(std::ostream& out, const ox_matrix& m);

} // namespace ox

#endif
