// Limits of the face-by-face booleans by where solids lie: far from the origin, and with faces that
// cross at shallow angles. Judged by the laws of volumes.

#include <tests/solid/csg/shapes.h>
#include <tests/solid/limits/limits_map.h>
#include <tests/support/random_shapes.h>

namespace {

using limits::combine;
using limits::engine;
using limits::operation;
using limits::verdicts;
using ox::ox_3dvector;
using ox::ox_solid;
using support::generator;

/// True if union and intersection do not make up both, or difference and intersection the first.
bool breaks_a_law(engine by, const ox_solid& a, const ox_solid& b) {
    const double common = combine(by, a, operation::intersects, b).get_volume();
    const ox_solid united = combine(by, a, operation::unites, b);
    const ox_solid rest = combine(by, a, operation::substracts, b);
    const double area = a.get_surface_area() + b.get_surface_area();
    return limits::is_wrong(united, a.get_volume() + b.get_volume() - common, area) ||
           limits::is_wrong(rest, a.get_volume() - common, area);
}

void judge(const ox_solid& a, const ox_solid& b, verdicts& counts) {
    ++counts.cases;
    for (const engine by : {engine::face_by_face, engine::csg}) {
        counts.add(by, breaks_a_law(by, a, b));
    }
}

ox_solid random_solid(generator& random, const ox_3dvector& centre) {
    const support::frame axes = support::random_frame(random);
    return random.one_in(2) ? support::random_brick(random, centre, axes)
                            : support::random_prism(random, centre, axes);
}

/// Pairs in general position whose centres have coordinates up to `reach`.
verdicts judge_pairs(double reach) {
    generator random(62);
    verdicts counts;
    for (int i = 0; i < support::all_or(4000, 200); ++i) {
        const ox_3dvector centre = support::random_point(random, reach);
        const ox_solid a = random_solid(random, centre);
        const ox_3dvector shift = support::random_point(random, 1.5);
        const ox_solid b = random_solid(random, centre + shift);
        judge(a, b, counts);
    }
    return counts;
}

/// The unit vector at twice the angle whose tangent is `t`.
struct direction {
    explicit direction(double t)
        : cosine((1.0 - t * t) / (1.0 + t * t)), sine(2.0 * t / (1.0 + t * t)) {}
    double cosine;
    double sine;
};

/// The frame turned by twice the angle of tangent `t` about a direction between its x and y axes.
/// Without sine or cosine, so that it has the same bits everywhere.
support::frame tilted(const support::frame& frame, double axis, double t) {
    const direction along(axis);
    const direction turn(t);
    const ox_3dvector k =
        frame.x * static_cast<float>(along.cosine) + frame.y * static_cast<float>(along.sine);
    const auto turned = [&](const ox_3dvector& v) {
        return v * static_cast<float>(turn.cosine) +
               ox::ox_cross(k, v) * static_cast<float>(turn.sine) +
               k * (ox::ox_dot(k, v) * static_cast<float>(1.0 - turn.cosine));
    };
    return {turned(frame.x), turned(frame.y), turned(frame.z)};
}

/// A plate a unit thick about `centre`.
ox_solid random_plate(generator& random, const ox_3dvector& centre, const support::frame& axes) {
    const auto x = static_cast<float>(random.real(1.0, 4.0));
    const auto y = static_cast<float>(random.real(1.0, 4.0));
    ox_solid plate;
    plate.brick(centre - (axes.x * x + axes.y * y + axes.z) * 0.5f, axes.x * x, axes.y * y, axes.z);
    return plate;
}

/// Plates of one thickness and level whose tops and bottoms cross at `low` to `high` degrees.
verdicts judge_shallow(double low, double high) {
    constexpr double half_degree = 3.14159265358979 / 360.0;
    generator random(63);
    verdicts counts;
    for (int i = 0; i < support::all_or(4000, 200); ++i) {
        const support::frame axes = support::random_frame(random);
        const double axis = random.real(-1.0, 1.0);
        const double tilt = random.real(low, high) * half_degree;
        const support::frame other = tilted(axes, axis, tilt);
        const ox_3dvector centre = support::random_point(random, 10.0);
        const ox_solid a = random_plate(random, centre, axes);
        const double across = random.real(-1.0, 1.0);
        const double along = random.real(-1.0, 1.0);
        const ox_solid b =
            random_plate(random, csg_test::point_in(axes, centre, across, along, 0.0), other);
        judge(a, b, counts);
    }
    return counts;
}

TEST(LimitsOfDistance, AFewAtTheOriginAreWrong) {
    limits::expect_limit("general position, at the origin", judge_pairs(0.0), {1, 19});
}

TEST(LimitsOfDistance, AFewWithinAHundredUnitsAreWrong) {
    limits::expect_limit("general position, up to 100 units away", judge_pairs(100.0), {0, 22});
}

TEST(LimitsOfDistance, SomeWithinFiveHundredUnitsAreWrong) {
    limits::expect_limit("general position, up to 500 units away", judge_pairs(500.0), {1, 45});
}

TEST(LimitsOfDistance, SomeWithinAThousandUnitsAreWrong) {
    limits::expect_limit("general position, up to 1,000 units away", judge_pairs(1000.0), {5, 84});
}

TEST(LimitsOfDistance, ManyWithinFourThousandUnitsAreWrong) {
    limits::expect_limit("general position, up to 4,000 units away", judge_pairs(4000.0),
                         {30, 513});
}

TEST(LimitsOfDistance, MostWithinTenThousandUnitsAreWrong) {
    limits::expect_limit("general position, up to 10,000 units away", judge_pairs(10000.0),
                         {135, 2590}, {1, 10});
}

TEST(LimitsOfAngles, MostPlatesThatCrossBelowATenthOfADegreeAreWrong) {
    limits::expect_limit("plates that cross at 0.01 to 0.1 degrees", judge_shallow(0.01, 0.1),
                         {168, 3309});
}

TEST(LimitsOfAngles, MostPlatesThatCrossBelowADegreeAreWrong) {
    limits::expect_limit("plates that cross at 0.1 to 1 degrees", judge_shallow(0.1, 1.0),
                         {183, 3635});
}

TEST(LimitsOfAngles, SomePlatesThatCrossBelowElevenDegreesAreWrong) {
    limits::expect_limit("plates that cross at 1 to 11 degrees", judge_shallow(1.0, 11.0),
                         {51, 940});
}

} // namespace
