// Limits of outlines that have to find their own plane: it is that of their first contour, whose
// corners' normals are summed, each weighted by its two sides.

#include <cmath>
#include <cstdio>

#include <tests/solid/limits/limits_map.h>
#include <tests/support/buildings.h>
#include <tests/support/measures.h>
#include <tests/support/random_shapes.h>

namespace {

using ox::ox_3dvector;
using ox::ox_list;
using ox::ox_polygon;
using support::building;
using support::point;

/// Four tips of 45 degrees at (1, 0), (0, 1), ... and four dents between them, on the diagonals:
/// with sides of one length and corners that turn by 135 degrees to the left and 45 to the right,
/// the summed normals cancel.
ox_list<ox_3dvector> star() {
    // The tip (1, 0) and the dent (d, d): the side turns from the axis by 22.5 degrees.
    const float d = 0.29289322f; // 1 - the root of 1/2
    return support::contour({ox_3dvector(1.0f, 0.0f, 0.0f), ox_3dvector(d, d, 0.0f),
                             ox_3dvector(0.0f, 1.0f, 0.0f), ox_3dvector(-d, d, 0.0f),
                             ox_3dvector(-1.0f, 0.0f, 0.0f), ox_3dvector(-d, -d, 0.0f),
                             ox_3dvector(0.0f, -1.0f, 0.0f), ox_3dvector(d, -d, 0.0f)});
}

TEST(LimitsOfOutlines, AStarWithTipsOf45DegreesHasNoPlaneOfItsOwnAndVanishes) {
    ox_polygon polygon;
    polygon.add_contour(star());
    EXPECT_EQ(polygon.get_contour_sizes().size(), 0);
    EXPECT_EQ(polygon.get_area(), 0.0f);
}

TEST(LimitsOfOutlines, AStarOfAPolygonThatIsMadeWithItsPlaneIsRight) {
    ox_polygon polygon(ox_3dvector(0.0f, 0.0f, 0.0f), ox_3dvector(0.0f, 0.0f, 1.0f));
    polygon.add_contour(star());
    ASSERT_EQ(polygon.get_contour_sizes().size(), 1);
    EXPECT_NEAR(polygon.get_area(), 4.0f * 0.29289322f, 0.001f);
}

/// The exact normal of a ring, its length twice the area (Newell).
point newell_normal(const building::ring& ring) {
    point sum;
    const point first = support::to_point(ring[0]);
    for (int i = 1; i + 1 < ring.size(); ++i) {
        const point turn = support::cross(support::to_point(ring[i]) - first,
                                          support::to_point(ring[i + 1]) - first);
        sum = {sum.x + turn.x, sum.y + turn.y, sum.z + turn.z};
    }
    return sum;
}

/// True if the polygon's normal is more than a tenth of a degree off that of its outer ring.
bool leans(const building::ring& ring) {
    ox_polygon polygon;
    polygon.add_contour(ring);
    const point right = newell_normal(ring);
    const point found = support::to_point(polygon.get_normal());
    const double sine = support::length(support::cross(right, found)) /
                        (support::length(right) * support::length(found));
    return !(sine < 0.0017453 && support::dot(right, found) > 0.0);
}

TEST(LimitsOfOutlines, SomeSurveyedFacesGetANormalMoreThanATenthOfADegreeOff) {
    limits::verdicts counts;
    counts.concerns_csg = false;
    for (const building& surveyed : support::read_surveyed_buildings()) {
        for (const building::face& face : surveyed.faces) {
            ++counts.cases;
            counts.add(limits::engine::face_by_face, leans(face.front()));
        }
    }
    limits::expect_limit("surveyed faces whose normal is off by more than 0.1 degrees", counts,
                         {128, 128});
}

} // namespace
