#ifndef OX_TESTS_POLYGON_PLAIN_TWINS_H
#define OX_TESTS_POLYGON_PLAIN_TWINS_H

#include <vector>

#include <ox/polygon/ox_polygon.h>
#include <tests/polygon/polygon_checks.h>
#include <tests/reference/plain_region.h>

namespace polygon_checks {

/// The polygon is its plain version, exactly: the same plane, contours, triangles and area.
inline void expect_equal(ox::ox_polygon& polygon, const reference::plain_region& plain) {
    expect_same_vector(polygon.get_normal(), plain.normal);
    expect_same_vector(polygon.get_point(), plain.point);
    ASSERT_EQ(count_contours(polygon), static_cast<int>(plain.contours.size()));
    reference::contour vertices;
    for (int c = 0; c < count_contours(polygon); ++c) {
        const reference::plain_contour& expected = plain.contours[static_cast<std::size_t>(c)];
        ASSERT_EQ(polygon.get_contour_sizes()[c], expected.vertices.size());
        EXPECT_EQ(polygon.get_contour_orientations()[c], expected.outer);
        EXPECT_EQ(polygon.get_contour_parents()[c], expected.parent);
        vertices.insert(vertices.end(), expected.vertices.begin(), expected.vertices.end());
    }
    expect_same_elements(polygon.get_contour_vertices(), vertices);
    const reference::plain_triangles triangles = reference::tessellate(plain);
    expect_same_elements(polygon.get_tesselation_vertices(), triangles.vertices);
    expect_same_elements(polygon.get_tesselation_triangles(), triangles.indices);
    EXPECT_EQ(polygon.get_area(), triangles.area);
}

/// A polygon and its plain version that are given the same contours.
struct twins {
    ox::ox_polygon polygon;
    reference::plain_region plain;
    std::vector<reference::contour> pending;

    void set_plane(const ox::ox_3dvector& point, const ox::ox_3dvector& normal) {
        polygon = ox::ox_polygon(point, normal);
        plain = reference::plain_region();
        plain.set_plane(point, normal);
        pending.clear();
    }

    void add(const reference::contour& vertices) {
        ox::ox_list<ox::ox_3dvector> list;
        for (const ox::ox_3dvector& v : vertices) {
            list.push_right(v);
        }
        polygon.add_contour(list);
        pending.push_back(vertices);
    }

    // Merging happens at the first query: both are merged at the same moment here.
    void merge() {
        if (pending.empty()) {
            return;
        }
        polygon.get_contour_vertices();
        plain.merge(pending);
        pending.clear();
    }
};

/// Unites, subtracts or intersects by turns, both in the same way, and compares. Nothing is done
/// without contours.
inline void combine_and_compare(int round, twins& a, twins& b) {
    a.merge();
    b.merge();
    if (a.plain.contours.empty() || b.plain.contours.empty()) {
        return;
    }
    switch (round % 3) {
    case 0:
        a.polygon.unites(b.polygon);
        a.plain.combine(ClipperLib::ctUnion, b.plain);
        break;
    case 1:
        a.polygon.substracts(b.polygon);
        a.plain.combine(ClipperLib::ctDifference, b.plain);
        break;
    default:
        a.polygon.intersects(b.polygon);
        a.plain.combine(ClipperLib::ctIntersection, b.plain);
        break;
    }
    expect_equal(a.polygon, a.plain);
}

} // namespace polygon_checks

#endif
