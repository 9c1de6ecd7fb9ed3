#include <ox/geometry/ox_matrix.h>

#include <cstddef>
#include <cstdio>

#include <ox/core/ox_log.h>
#include <ox/internal/angles.h>
#include <ox/internal/plain_numbers.h>

namespace ox {

using namespace internal;

ox_matrix::ox_matrix(const float* values) {
    load_from_float(values);
}

ox_matrix::ox_matrix(const double* values) {
    load_from_double(values);
}

void ox_matrix::load_identity() {
    *this = ox_matrix();
}

void ox_matrix::load_from_float(const float* values) {
    if (values == nullptr) {
        return;
    }
    for (int i = 0; i < 16; ++i) {
        m[i] = values[i];
    }
}

void ox_matrix::load_from_double(const double* values) {
    if (values == nullptr) {
        return;
    }
    for (int i = 0; i < 16; ++i) {
        m[i] = static_cast<float>(values[i]);
    }
}

void ox_matrix::rotation(int axis, float angle) {
    load_identity();
    if (axis < 0 || axis > 2) {
        return;
    }
    const int a = (axis + 1) % 3;
    const int b = (axis + 2) % 3;
    const float cosine = rounded_cos(angle);
    const float sine = rounded_sin(angle);
    m[4 * a + a] = cosine;
    m[4 * b + b] = cosine;
    m[4 * a + b] = sine;
    m[4 * b + a] = -sine;
}

void ox_matrix::rotation(const ox_3dvector& point, const ox_3dvector& axis, float angle) {
    ox_3dvector u;
    ox_3dvector v;
    ox_3dvector w = axis;
    w.build_axis(u, v);
    inv_axis_transformation(point, u, v, w);
    rotate(2, angle);
    axis_transform(point, u, v, w);
}

void ox_matrix::scaling(float sx, float sy, float sz) {
    load_identity();
    m[0] = sx;
    m[5] = sy;
    m[10] = sz;
}

void ox_matrix::translation(const ox_3dvector& t) {
    load_identity();
    m[12] = t.x;
    m[13] = t.y;
    m[14] = t.z;
}

void ox_matrix::axis_transformation(const ox_3dvector& o, const ox_3dvector& x,
                                    const ox_3dvector& y, const ox_3dvector& z) {
    const float values[16] = {x.x,           y.x,           z.x,           0.0f,  // image of +x
                              x.y,           y.y,           z.y,           0.0f,  // image of +y
                              x.z,           y.z,           z.z,           0.0f,  // image of +z
                              -ox_dot(o, x), -ox_dot(o, y), -ox_dot(o, z), 1.0f}; // of the origin
    load_from_float(values);
}

void ox_matrix::inv_axis_transformation(const ox_3dvector& o, const ox_3dvector& x,
                                        const ox_3dvector& y, const ox_3dvector& z) {
    const float values[16] = {x.x, x.y, x.z, 0.0f,  // image of +x
                              y.x, y.y, y.z, 0.0f,  // image of +y
                              z.x, z.y, z.z, 0.0f,  // image of +z
                              o.x, o.y, o.z, 1.0f}; // image of the origin
    load_from_float(values);
}

ox_matrix& ox_matrix::operator*=(const ox_matrix& b) {
    ox_matrix product;
    for (int column = 0; column < 4; ++column) {
        for (int row = 0; row < 4; ++row) {
            float sum = 0.0f;
            for (int k = 0; k < 4; ++k) {
                sum += m[4 * k + row] * b.m[4 * column + k];
            }
            product.m[4 * column + row] = sum;
        }
    }
    return *this = product;
}

void ox_matrix::rotate(int axis, float angle) {
    ox_matrix b;
    b.rotation(axis, angle);
    *this *= b;
}

void ox_matrix::rotate(const ox_3dvector& point, const ox_3dvector& axis, float angle) {
    ox_matrix b;
    b.rotation(point, axis, angle);
    *this *= b;
}

void ox_matrix::scale(float sx, float sy, float sz) {
    ox_matrix b;
    b.scaling(sx, sy, sz);
    *this *= b;
}

void ox_matrix::translate(const ox_3dvector& t) {
    ox_matrix b;
    b.translation(t);
    *this *= b;
}

void ox_matrix::axis_transform(const ox_3dvector& o, const ox_3dvector& x, const ox_3dvector& y,
                               const ox_3dvector& z) {
    ox_matrix b;
    b.axis_transformation(o, x, y, z);
    *this *= b;
}

void ox_matrix::inv_axis_transform(const ox_3dvector& o, const ox_3dvector& x, const ox_3dvector& y,
                                   const ox_3dvector& z) {
    ox_matrix b;
    b.inv_axis_transformation(o, x, y, z);
    *this *= b;
}

ox_3dvector ox_matrix::transform_point(const ox_3dvector& p) const {
    return ox_3dvector(m[0] * p.x + m[4] * p.y + m[8] * p.z + m[12],
                       m[1] * p.x + m[5] * p.y + m[9] * p.z + m[13],
                       m[2] * p.x + m[6] * p.y + m[10] * p.z + m[14]);
}

ox_3dvector ox_matrix::transform_vector(const ox_3dvector& v) const {
    return ox_3dvector(m[0] * v.x + m[4] * v.y + m[8] * v.z, m[1] * v.x + m[5] * v.y + m[9] * v.z,
                       m[2] * v.x + m[6] * v.y + m[10] * v.z);
}

namespace {

/// The four elements of a column.
const float* column_of(const float* m, int column) {
    return m + 4 * static_cast<std::ptrdiff_t>(column);
}

/// Cofactor of the element of `row` and `column`: the signed determinant of the 3x3 matrix left
/// without them. The sign goes into the first factor of each product, which makes the sum the
/// same, to the sign of a zero, as the fully expanded form of the inverse writes it.
float cofactor(const float* m, int row, int column) {
    static const int others[4][3] = {{1, 2, 3}, {0, 2, 3}, {0, 1, 3}, {0, 1, 2}};
    const int* rows = others[row];
    const float* a = column_of(m, others[column][0]);
    const float* b = column_of(m, others[column][1]);
    const float* c = column_of(m, others[column][2]);
    const float sign = (row + column) % 2 == 0 ? 1.0f : -1.0f;
    const int i = rows[0];
    const int j = rows[1];
    const int k = rows[2];
    return sign * a[i] * b[j] * c[k] - sign * a[i] * b[k] * c[j] - sign * b[i] * a[j] * c[k] +
           sign * b[i] * a[k] * c[j] + sign * c[i] * a[j] * b[k] - sign * c[i] * a[k] * b[j];
}

} // namespace

bool ox_matrix::reverse(ox_matrix& out) const {
    double adjugate[4][4];
    for (int row = 0; row < 4; ++row) {
        for (int column = 0; column < 4; ++column) {
            adjugate[row][column] = static_cast<double>(cofactor(m, row, column));
        }
    }
    double determinant = 0.0;
    for (int row = 0; row < 4; ++row) {
        determinant += static_cast<double>(m[row]) * adjugate[row][0];
    }
    if (determinant == 0.0) {
        return false;
    }
    const double factor = 1.0 / determinant;
    for (int i = 0; i < 16; ++i) {
        out.m[i] = static_cast<float>(adjugate[i / 4][i % 4] * factor);
    }
    return true;
}

bool operator==(const ox_matrix& a, const ox_matrix& b) {
    for (unsigned int i = 0; i < 16; ++i) {
        if (!(a[i] == b[i])) {
            return false;
        }
    }
    return true;
}

bool operator!=(const ox_matrix& a, const ox_matrix& b) {
    return !(a == b);
}

void ox_matrix::log() const {
    const auto element = [this](int i) { return static_cast<double>(m[i]); };
    const plain_numbers with_a_point;
    char text[1024]; // twelve numbers of at most 48 characters each
    std::snprintf(text, sizeof(text),
                  "\t%f - %f - %f\n\t%f - %f - %f\n\t%f - %f - %f\n\t%f - %f - %f", element(0),
                  element(1), element(2), element(4), element(5), element(6), element(8),
                  element(9), element(10), element(12), element(13), element(14));
    ox_log_thread_safe(text);
}

} // namespace ox
