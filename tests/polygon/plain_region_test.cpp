// The polygon against its plain version, exactly: the same vertices, contours and triangles.

#include <ox/polygon/ox_polygon.h>
#include <tests/polygon/plain_twins.h>
#include <tests/polygon/polygon_checks.h>
#include <tests/reference/plain_region.h>

using namespace polygon_checks;
using ox::ox_3dvector;
using support::generator;

namespace {

// Few different coordinates make repeated points, collinear runs, spikes and touching edges.
reference::contour random_contour(generator& random, const support::frame& axes, bool coarse) {
    reference::contour result;
    const int n = random.between(3, 10);
    for (int i = 0; i < n; ++i) {
        const float u = coarse ? static_cast<float>(random.between(0, 4)) : random.grid(-20, 20);
        const float v = coarse ? static_cast<float>(random.between(0, 4)) : random.grid(-20, 20);
        result.push_back(axes.x * u + axes.y * v + axes.z * 2.0f);
    }
    return result;
}

void add_random_contours(generator& random, const support::frame& axes, bool coarse,
                         twins& target) {
    const int n = random.between(1, 4);
    for (int i = 0; i < n; ++i) {
        target.add(random_contour(random, axes, coarse));
    }
    target.merge();
}

} // namespace

TEST(PlainRegion, MergedContoursAndTrianglesAreTheSame) {
    generator random(20281);
    for (int round = 0; round < 1500 && !HasFailure(); ++round) {
        const support::frame axes =
            random.one_in(2) ? support::frame() : support::random_frame(random);
        const bool coarse = random.one_in(2);
        twins pair;
        add_random_contours(random, axes, coarse, pair);
        expect_equal(pair.polygon, pair.plain);
        add_random_contours(random, axes, coarse, pair);
        expect_equal(pair.polygon, pair.plain);
    }
}

TEST(PlainRegion, BooleansAreTheSame) {
    generator random(20282);
    for (int round = 0; round < 1500 && !HasFailure(); ++round) {
        const support::frame axes =
            random.one_in(2) ? support::frame() : support::random_frame(random);
        const bool coarse = random.one_in(2);
        twins a;
        add_random_contours(random, axes, coarse, a);
        twins b;
        add_random_contours(random, axes, coarse, b);
        combine_and_compare(round, a, b);
    }
}

TEST(PlainRegion, OffsetsAreTheSame) {
    generator random(20283);
    const ClipperLib::JoinType joins[] = {ClipperLib::jtSquare, ClipperLib::jtRound,
                                          ClipperLib::jtMiter};
    for (int round = 0; round < 600 && !HasFailure(); ++round) {
        twins pair;
        add_random_contours(random, support::frame(), random.one_in(2), pair);
        const float distance = random.grid(-2, 3);
        pair.polygon.offset(distance, round % 3);
        if (!pair.plain.contours.empty()) {
            pair.plain.offset(distance, joins[round % 3]);
        }
        expect_equal(pair.polygon, pair.plain);
    }
}

TEST(PlainRegion, ChangedPlanesAreTheSame) {
    generator random(20284);
    for (int round = 0; round < 600 && !HasFailure(); ++round) {
        twins pair;
        add_random_contours(random, support::random_frame(random), random.one_in(2), pair);
        const ox_3dvector point = support::random_point(random, 5.0);
        if (!pair.plain.plane_defined) {
            continue;
        }
        pair.polygon.set_point(point);
        pair.plain.set_plane(point, pair.plain.normal);
        const ox_3dvector normal = support::random_frame(random).x;
        pair.polygon.set_normal(normal);
        pair.plain.set_plane(point, normal);
        expect_equal(pair.polygon, pair.plain);
    }
}
