// Limits of the face-by-face booleans: a second opening whose side lies in the plane of a reveal
// that is there, in walls turned about general axes.

#include <algorithm>

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

constexpr float wall_length = 4.0f;
constexpr float wall_thickness = 0.3f;
constexpr float wall_height = 3.0f;

/// An upright rectangle of the wall's view.
struct window {
    float x0;
    float z0;
    float x1;
    float z1;
};

window random_window(generator& random) {
    const auto x = static_cast<float>(random.real(0.3, 1.2));
    const auto z = static_cast<float>(random.real(0.3, 1.0));
    const auto width = static_cast<float>(random.real(0.4, 1.2));
    const auto height = static_cast<float>(random.real(0.4, 1.2));
    return {x, z, x + width, z + height};
}

double area_of(const window& w) {
    return static_cast<double>(w.x1 - w.x0) * static_cast<double>(w.z1 - w.z0);
}

/// The area of both together.
double area_of_union(const window& a, const window& b) {
    const window common = {std::max(a.x0, b.x0), std::max(a.z0, b.z0), std::min(a.x1, b.x1),
                           std::min(a.z1, b.z1)};
    const bool overlap = common.x0 < common.x1 && common.z0 < common.z1;
    return area_of(a) + area_of(b) - (overlap ? area_of(common) : 0.0);
}

/// A block of the wall's frame, from `y0` to `y1` through it.
ox_solid block(const window& w, float y0, float y1, const support::frame& axes,
               const ox_3dvector& origin) {
    ox_solid solid;
    solid.brick(origin + axes.x * w.x0 + axes.y * y0 + axes.z * w.z0, axes.x * (w.x1 - w.x0),
                axes.y * (y1 - y0), axes.z * (w.z1 - w.z0));
    return solid;
}

/// Cuts a window and then the one that `second` makes of it out of walls up to `reach` away.
template <typename Second>
verdicts judge(double reach, Second second) {
    generator random(61);
    verdicts counts;
    for (int i = 0; i < support::all_or(2000, 100); ++i) {
        const support::frame axes = support::random_frame(random);
        const ox_3dvector origin = support::random_point(random, reach);
        const window first = random_window(random);
        const window other = second(first, random);
        const ox_solid wall =
            block({0.0f, 0.0f, wall_length, wall_height}, 0.0f, wall_thickness, axes, origin);
        const double right =
            static_cast<double>(wall_thickness) *
            (static_cast<double>(wall_length * wall_height) - area_of_union(first, other));
        ++counts.cases;
        for (const engine by : {engine::face_by_face, engine::csg}) {
            const ox_solid opened =
                combine(by, wall, operation::substracts, block(first, -0.1f, 0.4f, axes, origin));
            const ox_solid result =
                combine(by, opened, operation::substracts, block(other, -0.1f, 0.4f, axes, origin));
            counts.add(by, limits::is_wrong(result, right, wall.get_surface_area()));
        }
    }
    return counts;
}

window same(const window& w, generator& /*random*/) {
    return w;
}

/// Inside the window, from its left reveal on.
window nested(const window& w, generator& random) {
    const auto share = static_cast<float>(random.real(0.2, 0.8));
    const float width = (w.x1 - w.x0) * share;
    const float height = (w.z1 - w.z0) * 0.1f;
    return {w.x0, w.z0 + height, w.x0 + width, w.z1 - height};
}

/// Around the window, from its left reveal on.
window around(const window& w, generator& random) {
    const auto more = static_cast<float>(random.real(0.1, 0.25));
    return {w.x0, w.z0 - more, w.x1 + more, w.z1 + more};
}

/// On the same sill, over a part of the window, and higher.
window on_the_sill(const window& w, generator& random) {
    const auto share = static_cast<float>(random.real(0.2, 0.8));
    const auto more = static_cast<float>(random.real(0.1, 0.5));
    const float shift = (w.x1 - w.x0) * share;
    return {w.x0 + shift, w.z0, w.x1 + shift, w.z1 + more};
}

/// From the window's right reveal on, as high as it.
window beside(const window& w, generator& random) {
    const auto width = static_cast<float>(random.real(0.4, 1.2));
    return {w.x1, w.z0, w.x1 + width, w.z1};
}

/// Apart from the window.
window apart(const window& w, generator& random) {
    const auto gap = static_cast<float>(random.real(0.05, 0.3));
    const auto width = static_cast<float>(random.real(0.4, 1.0));
    return {w.x1 + gap, w.z0 + 0.05f, w.x1 + gap + width, w.z1 + 0.05f};
}

TEST(LimitsOfOpenings, OpeningsApartAreRight) {
    limits::expect_limit("turned walls, openings apart", judge(10.0, apart), {0, 0});
}

TEST(LimitsOfOpenings, TheSameOpeningTwiceLeavesDoubledReveals) {
    limits::expect_limit("turned walls, the same opening twice", judge(10.0, same), {100, 2000});
}

TEST(LimitsOfOpenings, AnOpeningInsideThatSharesASideLeavesDoubledReveals) {
    limits::expect_limit("turned walls, a second opening inside that shares a side",
                         judge(10.0, nested), {99, 1992});
}

TEST(LimitsOfOpenings, AnOpeningAroundThatSharesASideLeavesDoubledReveals) {
    limits::expect_limit("turned walls, a second opening around that shares a side",
                         judge(10.0, around), {100, 2000});
}

TEST(LimitsOfOpenings, OverlappingOpeningsOnOneSillMayBeWrong) {
    limits::expect_limit("turned walls, overlapping openings on one sill", judge(10.0, on_the_sill),
                         {70, 1106});
}

TEST(LimitsOfOpenings, OpeningsSideBySideAreRight) {
    limits::expect_limit("turned walls, openings side by side", judge(10.0, beside), {0, 0});
}

TEST(LimitsOfOpenings, OpeningsSideBySideFarFromTheOriginAreRight) {
    limits::expect_limit("turned walls up to 1,000 units away, openings side by side",
                         judge(1000.0, beside), {0, 0});
}

} // namespace
