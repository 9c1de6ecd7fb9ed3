// Limits of the face-by-face booleans in chains: eight operations with bricks on a lattice, where
// most faces coincide with others. Judged by unit cubes.

#include <tests/solid/csg/whole_boxes.h>
#include <tests/solid/limits/limits_map.h>

namespace {

using csg_test::block_model;
using csg_test::whole_box;
using limits::engine;
using limits::operation;
using limits::verdicts;
using ox::ox_3dvector;
using ox::ox_solid;
using support::generator;

constexpr int depth = 8;
constexpr int lattice_side = 6;

verdicts judge(bool turned) {
    generator random(64);
    verdicts counts;
    for (int i = 0; i < support::all_or(2000, 100); ++i) {
        const support::frame axes = turned ? support::random_frame(random) : support::frame();
        const ox_3dvector origin =
            turned ? support::random_point(random, 1.0) : ox_3dvector(0.0f, 0.0f, 0.0f);
        block_model model(lattice_side);
        ox_solid face_by_face;
        ox_solid by_csg;
        double area = 0.0;
        for (int step = 0; step < depth; ++step) {
            const whole_box box = csg_test::random_box(random, lattice_side);
            const operation with =
                step < 2 || random.one_in(2) ? operation::unites : operation::substracts;
            const ox_solid brick = csg_test::to_brick(box, axes, origin);
            csg_test::apply(model, with, box);
            face_by_face = limits::combine(engine::face_by_face, face_by_face, with, brick);
            by_csg = limits::combine(engine::csg, by_csg, with, brick);
            area += csg_test::area_of(box);
        }
        ++counts.cases;
        counts.add(engine::face_by_face, limits::is_wrong(face_by_face, model.get_volume(), area));
        counts.add(engine::csg, limits::is_wrong(by_csg, model.get_volume(), area));
    }
    return counts;
}

TEST(LimitsOfChains, EightOperationsOnALatticeMayBeWrong) {
    limits::expect_limit("chains of eight unions and differences on a lattice", judge(false),
                         {29, 573});
}

TEST(LimitsOfChains, EightOperationsOnATurnedLatticeMayBeWrong) {
    limits::expect_limit("chains of eight on a turned lattice", judge(true), {44, 817});
}

} // namespace
