#include <ox/geometry/ox_box.h>

#include <utility>

#include <gtest/gtest.h>

#include <tests/geometry/support.h>

using namespace geometry_test;
using ox::ox_3dvector;
using ox::ox_box;

namespace {

ox_box box_of(const ox_3dvector& p, const ox_3dvector& q) {
    ox_box box;
    box.enlarge(p);
    box.enlarge(q);
    return box;
}

ox_box unit_box() {
    return box_of(ox_3dvector(), ox_3dvector(1.f, 1.f, 1.f));
}

} // namespace

TEST(OxBox, DefaultIsEmpty) {
    const ox_box box;
    EXPECT_TRUE(box.is_empty());
    EXPECT_EQ(box.origin, ox_3dvector());
    EXPECT_EQ(box.size, ox_3dvector(-1.f, 0.f, 0.f));
}

TEST(OxBox, FirstPointMakesABoxOfSizeZeroThatContainsIt) {
    ox_box box;
    const ox_3dvector p(1.f, 2.f, 3.f);
    box.enlarge(p);
    EXPECT_FALSE(box.is_empty());
    EXPECT_EQ(box.origin, p);
    EXPECT_EQ(box.size, ox_3dvector());
    EXPECT_TRUE(box.contains(p));
}

TEST(OxBox, ClearMakesItEmptyAgain) {
    ox_box box = unit_box();
    box.clear();
    EXPECT_TRUE(same_bits(box, ox_box()));
}

TEST(OxBox, CopiesAndMovesItsSixFloats) {
    const ox_box box = unit_box();
    const ox_box copy(box);
    EXPECT_TRUE(same_bits(copy, box));
    ox_box moved{ox_box(copy)};
    EXPECT_TRUE(same_bits(moved, box));
    ox_box assigned;
    assigned = std::move(moved);
    EXPECT_TRUE(same_bits(assigned, box));
}

TEST(OxBox, OnlyANegativeXSizeMeansEmpty) {
    ox_box box = unit_box();
    box.size = ox_3dvector(1.f, -1.f, -1.f);
    EXPECT_FALSE(box.is_empty());
    box.size.x = -0.f;
    EXPECT_FALSE(box.is_empty());
}

TEST(OxBox, GrowsTowardsBothSides) {
    ox_box box = unit_box();
    box.enlarge(ox_3dvector(-1.f, 0.5f, 3.f));
    EXPECT_EQ(box.origin, ox_3dvector(-1.f, 0.f, 0.f));
    EXPECT_EQ(box.size, ox_3dvector(2.f, 1.f, 3.f));
}

TEST(OxBox, InnerPointChangesNothing) {
    ox_box box = unit_box();
    box.enlarge(ox_3dvector(0.25f, 1.f, 0.f));
    EXPECT_TRUE(same_bits(box, unit_box()));
}

TEST(OxBox, EnlargingByAnEmptyBoxChangesNothing) {
    ox_box box = unit_box();
    box.enlarge(ox_box());
    EXPECT_TRUE(same_bits(box, unit_box()));
}

TEST(OxBox, EnlargingAnEmptyBoxCopies) {
    ox_box box;
    box.enlarge(unit_box());
    EXPECT_TRUE(same_bits(box, unit_box()));
}

TEST(OxBox, EnlargingByABoxIncludesBothItsCorners) {
    ox_box box = unit_box();
    box.enlarge(box_of(ox_3dvector(-1.f, -2.f, 0.5f), ox_3dvector(0.5f, 5.f, 0.75f)));
    EXPECT_EQ(box.origin, ox_3dvector(-1.f, -2.f, 0.f));
    EXPECT_EQ(box.size, ox_3dvector(2.f, 7.f, 1.f));
}

TEST(OxBox, EnlargingByItselfOrItsPartsUsesTheirValueAtTheCall) {
    ox_box box = box_of(ox_3dvector(5.f, 5.f, 5.f), ox_3dvector(7.f, 7.f, 7.f));
    const ox_box before = box;
    box.enlarge(box);
    EXPECT_TRUE(same_bits(box, before));
    box.enlarge(box.origin);
    EXPECT_TRUE(same_bits(box, before));
    box.enlarge(box.size);
    EXPECT_EQ(box.origin, ox_3dvector(2.f, 2.f, 2.f));
    EXPECT_EQ(box.size, ox_3dvector(5.f, 5.f, 5.f));
}

TEST(OxBox, ContainsItsFaces) {
    const ox_box box = unit_box();
    EXPECT_TRUE(box.contains(ox_3dvector()));
    EXPECT_TRUE(box.contains(ox_3dvector(1.f, 1.f, 1.f)));
    EXPECT_FALSE(box.contains(ox_3dvector(std::nextafter(1.f, 2.f), 1.f, 1.f)));
    EXPECT_FALSE(box.contains(ox_3dvector(0.5f, -smallest, 0.5f)));
    EXPECT_FALSE(box.contains(ox_3dvector(0.5f, 0.5f, 2.f)));
}

TEST(OxBox, EmptyBoxContainsNothing) {
    const ox_box box;
    EXPECT_FALSE(box.contains(ox_3dvector()));
    EXPECT_FALSE(box.contains(ox_3dvector(-0.5f, 0.f, 0.f)));
    EXPECT_FALSE(box.contains(ox_3dvector(-1.f, 0.f, 0.f)));
}

TEST(OxBox, BoxesSharingAFaceDoNotIntersect) {
    const ox_box box = unit_box();
    EXPECT_FALSE(box.intersects(box_of(ox_3dvector(1.f, 0.f, 0.f), ox_3dvector(2.f, 1.f, 1.f))));
    EXPECT_FALSE(box.intersects(box_of(ox_3dvector(0.f, -1.f, 0.f), ox_3dvector(1.f, 0.f, 1.f))));
    EXPECT_FALSE(box.intersects(box_of(ox_3dvector(0.f, 0.f, 1.f), ox_3dvector(1.f, 1.f, 2.f))));
}

TEST(OxBox, BoxesOverlappingByAnyAmountIntersect) {
    const float almost = std::nextafter(1.f, 0.f);
    const ox_box other = box_of(ox_3dvector(almost, 0.f, 0.f), ox_3dvector(2.f, 1.f, 1.f));
    EXPECT_TRUE(unit_box().intersects(other));
    EXPECT_TRUE(other.intersects(unit_box()));
}

TEST(OxBox, BoxInsideAnotherIntersectsIt) {
    const ox_box inner = box_of(ox_3dvector(.25f, .25f, .25f), ox_3dvector(.5f, .5f, .5f));
    EXPECT_TRUE(unit_box().intersects(inner));
    EXPECT_TRUE(inner.intersects(unit_box()));
}

TEST(OxBox, BoxOfASinglePointIntersectsWhatHoldsThePointInside) {
    const ox_3dvector inside(0.5f, 0.5f, 0.5f);
    const ox_3dvector on_face(1.f, 0.5f, 0.5f);
    EXPECT_TRUE(unit_box().intersects(box_of(inside, inside)));
    EXPECT_FALSE(unit_box().intersects(box_of(on_face, on_face)));
    EXPECT_FALSE(box_of(inside, inside).intersects(box_of(inside, inside)));
}

TEST(OxBox, PlaneTouchedFromThePositiveSideCountsAsPositive) {
    EXPECT_EQ(unit_box().plane_status(ox_3dvector(), ox_3dvector(0.f, 0.f, 1.f)), 1);
}

TEST(OxBox, PlaneTouchedFromTheNegativeSideCountsAsCut) {
    EXPECT_EQ(unit_box().plane_status(ox_3dvector(), ox_3dvector(0.f, 0.f, -1.f)), 0);
}

TEST(OxBox, PlaneStatusTellsTheSide) {
    const ox_3dvector normal(0.f, 3.f, 0.f);
    EXPECT_EQ(unit_box().plane_status(ox_3dvector(0.f, -1.f, 0.f), normal), 1);
    EXPECT_EQ(unit_box().plane_status(ox_3dvector(0.f, 0.5f, 0.f), normal), 0);
    EXPECT_EQ(unit_box().plane_status(ox_3dvector(0.f, 1.5f, 0.f), normal), -1);
}

TEST(OxBox, PlaneStatusAgreesWithItsCorners) {
    sampler random(9);
    for (int i = 0; i < 3000; ++i) {
        const ox_3dvector corner1 = random.vector(2.f);
        const ox_box box = box_of(corner1, random.vector(2.f));
        const ox_3dvector point = random.vector(2.f);
        const ox_3dvector normal = random.direction();
        int clearly_negative = 0;
        int clearly_positive = 0;
        for (const ox_3dvector& corner : box.get_vertices()) {
            const float side = ox_dot(corner - point, normal);
            clearly_negative += side < -1e-4f ? 1 : 0;
            clearly_positive += side > 1e-4f ? 1 : 0;
        }
        if (clearly_negative + clearly_positive < 8) {
            continue;
        }
        const int expected = clearly_negative == 8 ? -1 : (clearly_positive == 8 ? 1 : 0);
        EXPECT_EQ(box.plane_status(point, normal), expected);
    }
}

TEST(OxBox, VerticesFollowTheBitsOfTheirIndex) {
    ox_box box = box_of(ox_3dvector(1.f, 2.f, 3.f), ox_3dvector(11.f, 22.f, 33.f));
    const ox::ox_list<ox_3dvector> vertices = box.get_vertices();
    ASSERT_EQ(vertices.size(), 8);
    for (int i = 0; i < 8; ++i) {
        const ox_3dvector expected((i & 1) != 0 ? 11.f : 1.f, (i & 2) != 0 ? 22.f : 2.f,
                                   (i & 4) != 0 ? 33.f : 3.f);
        EXPECT_EQ(vertices[i], expected) << i;
    }
}

TEST(OxBox, VerticesAllocateExactlyEight) {
    EXPECT_EQ(ox::ox_box().get_vertices().get_capacity(), 8);
}

TEST(OxBox, VerticesOfAnEmptyBoxReadItsFloatsAsTheyAre) {
    const ox::ox_list<ox_3dvector> vertices = ox_box().get_vertices();
    ASSERT_EQ(vertices.size(), 8);
    EXPECT_EQ(vertices[7], ox_3dvector(-1.f, 0.f, 0.f));
}

TEST(OxBox, EnlargedBoxContainsEveryPointUpToRounding) {
    sampler random(10);
    for (int round = 0; round < 200; ++round) {
        ox_box box;
        ox_3dvector points[20];
        for (ox_3dvector& p : points) {
            p = random.vector(100.f);
            box.enlarge(p);
        }
        box.origin -= ox_3dvector(1e-3f, 1e-3f, 1e-3f);
        box.size += ox_3dvector(2e-3f, 2e-3f, 2e-3f);
        for (const ox_3dvector& p : points) {
            EXPECT_TRUE(box.contains(p));
        }
    }
}

TEST(OxBox, UnionDoesNotDependOnTheOrderOnAGridOfWholeNumbers) {
    sampler random(11);
    const auto corner = [&random] {
        const ox_3dvector p = random.vector(50.f);
        return ox_3dvector(std::floor(p.x), std::floor(p.y), std::floor(p.z));
    };
    const auto random_box = [&corner] {
        const ox_3dvector p = corner();
        return box_of(p, corner());
    };
    for (int i = 0; i < 2000; ++i) {
        const ox_box first = random_box();
        const ox_box second = random_box();
        ox_box forward = first;
        forward.enlarge(second);
        ox_box backward = second;
        backward.enlarge(first);
        EXPECT_EQ(forward.origin, backward.origin);
        EXPECT_EQ(forward.size, backward.size);
        EXPECT_TRUE(forward.contains(first.origin + first.size));
        EXPECT_TRUE(forward.contains(second.origin));
        EXPECT_EQ(first.intersects(second), second.intersects(first));
    }
}

TEST(OxBox, NotANumberIsContainedInNoBoxAndEnlargesNone) {
    ox_box box = unit_box();
    box.enlarge(ox_3dvector(not_a_number, not_a_number, not_a_number));
    EXPECT_TRUE(same_bits(box, unit_box()));
    EXPECT_FALSE(box.contains(ox_3dvector(not_a_number, 0.f, 0.f)));
}

TEST(OxBox, HostileValuesTravelThroughEveryOperation) {
    for_each_hostile_vector([](const ox_3dvector& hostile) {
        ox_box box = unit_box();
        box.enlarge(hostile);
        ox_box first;
        first.enlarge(hostile);
        first.enlarge(box);
        EXPECT_FALSE(first.is_empty());
        first.contains(hostile);
        first.intersects(box);
        const int status = box.plane_status(hostile, hostile);
        EXPECT_TRUE(status >= -1 && status <= 1);
        EXPECT_EQ(first.get_vertices().size(), 8);
    });
}
