// Triangles of small contours are mostly known without the tessellator: fans of contours that are
// seen whole from their first vertex, and what it said about contours that lay alike before. They
// must be the tessellator's, primitive by primitive.

#include <algorithm>
#include <cmath>
#include <vector>

#include <ox/geometry/ox_matrix.h>
#include <ox/polygon/ox_polygon.h>
#include <tests/polygon/plain_twins.h>

using namespace polygon_checks;
using ox::ox_3dvector;
using ox::ox_list;
using ox::ox_matrix;
using ox::ox_polygon;
using support::generator;

namespace {

// The polygon's contours as the plain version holds them: it tessellates what the polygon has.
reference::plain_region plain_copy(ox_polygon& polygon) {
    reference::plain_region result;
    result.normal = polygon.get_normal();
    for (int c = 0; c < count_contours(polygon); ++c) {
        reference::plain_contour contour;
        for (const ox_3dvector& v : contour_of(polygon, c)) {
            contour.vertices.push_back(v);
        }
        result.contours.push_back(contour);
    }
    return result;
}

void expect_triangles_of_the_tessellator(ox_polygon& polygon) {
    const reference::plain_triangles expected = reference::tessellate(plain_copy(polygon));
    expect_same_elements(polygon.get_tesselation_vertices(), expected.vertices);
    expect_same_elements(polygon.get_tesselation_triangles(), expected.indices);
    EXPECT_EQ(polygon.get_area(), expected.area);
}

struct drawing {
    support::frame axes;
    ox_3dvector origin;
    float scale = 1.0f;
    ox_list<ox_3dvector> contour;

    void add(double u, double v) {
        const float a = scale * static_cast<float>(u);
        const float b = scale * static_cast<float>(v);
        contour.push_right(origin + axes.x * a + axes.y * b);
    }
};

// On a plane along the axes, on an upright one, or on any.
support::frame any_frame(generator& random) {
    support::frame axes;
    if (random.one_in(4)) {
        return axes;
    }
    axes = support::random_frame(random);
    if (random.one_in(2)) {
        axes.x = ox_3dvector(axes.x.x, axes.x.y, 0.0f);
        axes.x.normalize();
        axes.y = ox_3dvector(0.0f, 0.0f, 1.0f);
    }
    return axes;
}

drawing any_drawing(generator& random) {
    drawing result;
    result.axes = any_frame(random);
    const double reach[] = {0.0, 10.0, 1000.0, 100000.0};
    result.origin = support::random_point(random, reach[random.between(0, 3)]);
    const float scales[] = {0.002f, 0.1f, 1.0f, 8.0f, 300.0f};
    result.scale = scales[random.between(0, 4)];
    return result;
}

void draw_convex(generator& random, drawing& paper) {
    const int n = random.one_in(20) ? random.between(90, 110) : random.between(4, 12);
    std::vector<double> angles;
    for (int i = 0; i < n; ++i) {
        angles.push_back(random.real(0.0, 6.283));
    }
    std::sort(angles.begin(), angles.end());
    const double flatness = random.one_in(3) ? random.real(0.0, 0.01) : 1.0;
    for (const double a : angles) {
        paper.add(std::cos(a), flatness * std::sin(a));
    }
}

// Arms of all widths, equal ones included, whose inner corner is on the diagonal of the ends.
void draw_l_shape(generator& random, drawing& paper) {
    const double w = 1.0 + random.between(0, 3);
    const double h = random.one_in(3) ? w : 1.0 + random.between(0, 3);
    const double b = random.one_in(3) ? 0.5 * w : w * random.real(0.05, 0.95);
    const double d = random.one_in(3) ? 0.5 * h : h * random.real(0.05, 0.95);
    const double x[] = {0.0, w, w, b, b, 0.0};
    const double y[] = {0.0, 0.0, d, d, h, h};
    const int turns = random.between(0, 3);
    for (int i = 0; i < 6; ++i) {
        const double turned[] = {x[i], -y[i], -x[i], y[i], x[i]};
        paper.add(turned[turns], turned[turns + 1]);
    }
}

// A star around a middle has no crossing sides.
void draw_star(generator& random, drawing& paper) {
    const int n = random.between(4, 9);
    const double turn = random.real(0.0, 6.283);
    for (int i = 0; i < n; ++i) {
        const double angle = turn + 6.283 * i / n;
        const double r = random.real(0.1, 1.0);
        paper.add(r * std::cos(angle), r * std::sin(angle));
    }
}

// Few coordinates: collinear vertices, crossing sides, repeated points.
void draw_on_squares(generator& random, drawing& paper) {
    const int n = random.between(4, 8);
    for (int i = 0; i < n; ++i) {
        const int u = random.between(0, 4);
        const int v = random.between(0, 4);
        paper.add(u, v);
    }
}

// U, T, Z and stair shapes: two columns of levels.
void draw_levels(generator& random, drawing& paper) {
    const int a = random.between(1, 5);
    const int b = random.between(1, 5);
    const int c = random.between(1, 5);
    const double x[] = {0, 3, 3, 2, 2, 1, 1, 0};
    const double y[] = {0, 0, 1.0 * a, 1.0 * a, 1.0 * b, 1.0 * b, 1.0 * c, 1.0 * c};
    const bool lying = random.one_in(2);
    for (int i = 0; i < 8; ++i) {
        paper.add(lying ? -y[i] : x[i], lying ? x[i] : y[i]);
    }
}

void draw_anything(generator& random, drawing& paper) {
    switch (random.between(0, 4)) {
    case 0:
        draw_convex(random, paper);
        break;
    case 1:
        draw_l_shape(random, paper);
        break;
    case 2:
        draw_star(random, paper);
        break;
    case 3:
        draw_levels(random, paper);
        break;
    default:
        draw_on_squares(random, paper);
        break;
    }
}

ox_polygon any_polygon(generator& random) {
    drawing paper = any_drawing(random);
    draw_anything(random, paper);
    const int start = random.between(0, paper.contour.size() - 1);
    std::rotate(paper.contour.begin(), paper.contour.begin() + start, paper.contour.end());
    if (random.one_in(2)) {
        std::reverse(paper.contour.begin(), paper.contour.end());
    }
    ox_polygon polygon;
    polygon.add_contour(paper.contour);
    return polygon;
}

} // namespace

TEST(TrianglePattern, SingleContoursHaveTheTrianglesOfTheTessellator) {
    generator random(40211);
    for (int round = 0; round < 60000 && !testing::Test::HasFailure(); ++round) {
        ox_polygon polygon = any_polygon(random);
        expect_triangles_of_the_tessellator(polygon);
    }
}

TEST(TrianglePattern, QuadrilateralsWithAQuadrilateralHoleHaveTheTrianglesOfTheTessellator) {
    generator random(40214);
    for (int round = 0; round < 40000 && !testing::Test::HasFailure(); ++round) {
        drawing paper = any_drawing(random);
        const bool upright = random.one_in(2);
        ox_polygon polygon;
        double low = 0.0;
        double high = 10.0;
        for (int contour = 0; contour < 2; ++contour) {
            const double x[] = {low, high, high, low};
            const double y[] = {low, low, high, high};
            paper.contour.clear();
            for (int i = 0; i < 4; ++i) {
                const double slant = upright ? 0.0 : random.real(-0.9, 0.9);
                paper.add(x[i] + slant, y[i] - slant);
            }
            polygon.add_contour(paper.contour);
            low = random.one_in(20) ? 11.0 : random.real(0.5, 5.0); // beside, not inside
            high = random.real(low + 0.5, low + 4.5);
        }
        expect_triangles_of_the_tessellator(polygon);
    }
}

// The tessellator goes on to the second one from far above or below, so that not only the ranks of
// the coordinates tell which of them comes first.
TEST(TrianglePattern, SquaresBesideEachOtherHaveTheTrianglesOfTheTessellator) {
    generator random(40215);
    for (int round = 0; round < 5000 && !testing::Test::HasFailure(); ++round) {
        drawing paper;
        ox_polygon polygon;
        const double distance = random.real(1.1, 30.0);
        const double height = random.real(0.0, 30.0);
        for (int contour = 0; contour < 2; ++contour) {
            const double left = contour * distance;
            const double base = contour * height;
            paper.contour.clear();
            paper.add(left, base);
            paper.add(left + 1.0, base);
            paper.add(left + 1.0, base + 40.0);
            paper.add(left, base + 40.0);
            polygon.add_contour(paper.contour);
        }
        expect_triangles_of_the_tessellator(polygon);
    }
}

TEST(TrianglePattern, TurnedAndMovedContoursHaveTheTrianglesOfTheTessellator) {
    generator random(40212);
    for (int round = 0; round < 20000 && !testing::Test::HasFailure(); ++round) {
        ox_polygon polygon = any_polygon(random);
        ox_matrix m;
        const float across = static_cast<float>(random.real(-2.0, 2.0));
        const float along = static_cast<float>(random.real(-2.0, 2.0));
        m.scaling(across, along, 1.0f);
        polygon.matrix_transform(m);
        expect_triangles_of_the_tessellator(polygon);
        polygon.reverse();
        m.load_identity();
        polygon.matrix_transform(m); // forgets the triangles
        expect_triangles_of_the_tessellator(polygon);
    }
}

TEST(TrianglePattern, ContoursOffTheirPlaneHaveTheTrianglesOfTheTessellator) {
    generator random(40213);
    for (int round = 0; round < 20000 && !testing::Test::HasFailure(); ++round) {
        ox_polygon polygon = any_polygon(random);
        ox_matrix m; // shears the vertices away from the plane of the normal
        m[8] = static_cast<float>(random.real(-1.0, 1.0));
        m[6] = static_cast<float>(random.real(-1.0, 1.0));
        polygon.matrix_transform(m);
        polygon.set_normal(support::random_frame(random).z);
        expect_triangles_of_the_tessellator(polygon);
    }
}

TEST(TrianglePattern, AnEmptyRegionAndATriangleNeedNoTessellator) {
    ox_polygon empty;
    expect_triangles_of_the_tessellator(empty);
    ox_polygon triangle;
    triangle.add_contour(
        support::contour({ox_3dvector(0.0f, 0.0f, 0.0f), ox_3dvector(1.0f, 0.0f, 0.0f),
                          ox_3dvector(0.0f, 1.0f, 0.0f)}));
    expect_triangles_of_the_tessellator(triangle);
}
