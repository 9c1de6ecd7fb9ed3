// The sweep beside its plain version: weights, image and log, to the bit.

#include <algorithm>
#include <cstddef>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <ox/structure/ox_loadshare.h>
#include <string>
#include <tests/core/fresh_process.h>
#include <tests/reference/load_sweep.h>
#include <tests/support/generator.h>
#include <vector>

namespace {

using ox::ox_3dvector;
using ox::ox_list;
using ox::ox_loadshare;

/// A slab of random contours and beams, as the library and the plain version take it.
struct twin_slabs {
    ox_loadshare slab; ///< in the frame of the x and y axes
    reference::load_sweep plain;

    void add_contour(const std::vector<ox::ox_2dvector>& points) {
        ox_list<ox_3dvector> outline;
        for (const ox::ox_2dvector& p : points) {
            outline.push_right(ox_3dvector(p.x, p.y, 0));
        }
        slab.add_slab_contour(outline);
        if (!points.empty()) {
            plain.contours.push_back(points);
        }
    }

    void add_beam(const ox::ox_2dvector& start, const ox::ox_2dvector& end) {
        slab.add_beam(ox_3dvector(start.x, start.y, 0), ox_3dvector(end.x, end.y, 0));
        reference::plain_beam beam;
        beam.start = start;
        beam.end = end;
        plain.beams.push_back(beam);
    }

    void expect_same_weights(float step) {
        slab.compute_weights(step);
        plain.compute_weights(step);
        for (std::size_t k = 0; k < plain.beams.size(); ++k) {
            ASSERT_EQ(slab.get_weight(static_cast<int>(k)), plain.beams[k].weight);
        }
    }
};

/// Points on a coarse grid, so that lines run through vertices and along edges, or anywhere.
ox::ox_2dvector random_point(support::generator& random, bool coarse) {
    const float x = coarse ? static_cast<float>(random.between(0, 6)) : random.grid(0, 6);
    const float y = coarse ? static_cast<float>(random.between(0, 6)) : random.grid(0, 6);
    return ox::ox_2dvector(x, y);
}

void add_random_slab(support::generator& random, twin_slabs& slabs, bool coarse, float scale) {
    const int contours = random.between(0, 3);
    for (int c = 0; c < contours; ++c) {
        std::vector<ox::ox_2dvector> points;
        const int n = random.between(0, 9);
        for (int i = 0; i < n; ++i) {
            points.push_back(random_point(random, coarse) * scale);
        }
        slabs.add_contour(points);
    }
    const int beams = random.between(0, 8);
    for (int k = 0; k < beams; ++k) {
        const ox::ox_2dvector start = random_point(random, coarse);
        const ox::ox_2dvector end = random_point(random, coarse && !random.one_in(4));
        slabs.add_beam(start * scale, end * scale);
    }
}

TEST(OxLoadshareSweep, AgreesWithThePlainSweepOnRandomAndDegenerateSlabs) {
    support::generator random(91);
    for (int round = 0; round < 10000; ++round) {
        twin_slabs slabs;
        const bool coarse = random.one_in(2);
        const float scales[] = {1.f, 1.f, 1000.f, 1e6f, 1e12f, 0.01f};
        const float scale = scales[random.between(0, 5)];
        add_random_slab(random, slabs, coarse, scale);
        const float steps[] = {0.5f, 0.25f, 1.f, 0.37f};
        slabs.expect_same_weights(steps[random.between(0, 3)] * scale);
        ASSERT_FALSE(HasFailure()) << "round " << round;
    }
}

TEST(OxLoadshareSweep, ImageAgreesWithThatOfThePlainSweep) {
    support::generator random(92);
    for (int round = 0; round < 2000; ++round) {
        twin_slabs slabs;
        add_random_slab(random, slabs, random.one_in(2), 1.f);
        slabs.slab.set_image_log(true);
        slabs.plain.paint = true;
        slabs.expect_same_weights(random.one_in(2) ? 0.25f : 0.3f);
        int width = 0;
        int height = 0;
        const unsigned int* const image = slabs.slab.get_image_log(width, height);
        ASSERT_EQ(width, slabs.plain.width);
        ASSERT_EQ(height, slabs.plain.height);
        ASSERT_TRUE(std::equal(slabs.plain.image.begin(), slabs.plain.image.end(), image));
    }
}

TEST(OxLoadshareSweep, LogAgreesWithThatOfThePlainSweep) {
    fresh_process::run([] {
        support::generator random(93);
        std::string expected;
        for (int round = 0; round < 300; ++round) {
            twin_slabs slabs;
            add_random_slab(random, slabs, random.one_in(2), 1.f);
            slabs.slab.produce_log(true);
            slabs.plain.keep_log = true;
            slabs.expect_same_weights(0.5f);
            expected += slabs.plain.log;
        }
        std::ifstream file("ox_log.txt");
        const std::string text(std::istreambuf_iterator<char>(file), {});
        EXPECT_TRUE(text == expected);
    });
}

TEST(OxLoadshareSweep, AgreesWithThePlainSweepOnSlabsOfManyPointsAndBeams) {
    support::generator random(94);
    for (int round = 0; round < 20; ++round) {
        twin_slabs slabs;
        std::vector<ox::ox_2dvector> points;
        for (int i = 0; i < 500; ++i) {
            points.push_back(random_point(random, round % 2 == 0));
        }
        slabs.add_contour(points);
        for (int k = 0; k < 100; ++k) {
            slabs.add_beam(random_point(random, false), random_point(random, false));
        }
        slabs.expect_same_weights(0.015625f);
    }
}

/// A beam from below the slab to above it. Many start or end at the same few places.
void add_long_beam(support::generator& random, twin_slabs& slabs, bool coarse) {
    const float scale = random.one_in(50) ? 3e37f : 1.0f;
    const ox::ox_2dvector start(random_point(random, coarse).x, -1.0f);
    const ox::ox_2dvector end(random_point(random, coarse).x * scale, 7.0f);
    random.one_in(2) ? slabs.add_beam(start, end) : slabs.add_beam(end, start);
}

TEST(OxLoadshareSweep, AgreesWithThePlainSweepWhereThousandsOfBeamsCrossEachOther) {
    support::generator random(96);
    for (int round = 0; round < 40; ++round) {
        twin_slabs slabs;
        slabs.add_contour({{-1, 0}, {7, 0}, {7, 6}, {-1, 6}});
        const int beams = random.between(2000, 6000);
        for (int k = 0; k < beams; ++k) {
            add_long_beam(random, slabs, round % 2 == 0);
        }
        slabs.expect_same_weights(0.5f);
    }
}

TEST(OxLoadshareSweep, AgreesWithThePlainSweepWhereStepsAreAsSmallAsTheSpacingOfFloats) {
    support::generator random(95);
    for (int round = 0; round < 300; ++round) {
        twin_slabs slabs;
        const ox::ox_2dvector origin(0.0f, random.one_in(2) ? 6860000.0f : -16777220.0f);
        std::vector<ox::ox_2dvector> points;
        for (int i = 0; i < 6; ++i) {
            points.push_back(origin + random_point(random, true));
        }
        slabs.add_contour(points);
        slabs.add_beam(origin + random_point(random, true), origin + random_point(random, true));
        const float steps[] = {0.25f, 0.5f, 1.0f, 2.0f};
        slabs.expect_same_weights(steps[random.between(0, 3)]);
    }
}

} // namespace
