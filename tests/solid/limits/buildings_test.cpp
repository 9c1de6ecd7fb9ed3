// Limits of the face-by-face booleans and sections with surveyed buildings: their faces are uneven
// by up to two centimetres. Solids are made of them in two ways: each face by itself through a
// polygon, which flattens it, and each face in triangles, which are flat.

#include <cmath>
#include <string>
#include <vector>

#include <tests/solid/limits/limits_map.h>
#include <tests/support/buildings.h>
#include <tests/support/measures.h>
#include <tests/support/random_shapes.h>

namespace {

using limits::engine;
using limits::operation;
using limits::verdicts;
using ox::ox_3dvector;
using ox::ox_solid;
using support::building;
using support::point;
using support::survey_tolerance;

enum class import { flattened, triangulated };

/// A closed building: as it is imported for the booleans, as `ox_csg` gets it, and in triangles.
struct surveyed_solid {
    ox_solid imported;
    ox_solid exact;
    ox_solid triangles;
    double area;
    ox_3dvector centre;
    ox_3dvector size;
};

class LimitsOfBuildings : public ::testing::TestWithParam<import> {
protected:
    void SetUp() override {
        for (const building& surveyed : support::read_surveyed_buildings()) {
            add(surveyed);
        }
        ASSERT_GT(solids.size(), 100u);
    }

    std::string way() const {
        return GetParam() == import::flattened ? "buildings as given, "
                                               : "buildings in triangles, ";
    }

    /// The count that is pinned for the way of import.
    int of_way(int flattened, int triangulated) const {
        return GetParam() == import::flattened ? flattened : triangulated;
    }

    void expect_limit(const std::string& what, const verdicts& counts, int wrong) const {
        limits::expect_limit(way() + what, counts, {wrong, wrong});
    }

    std::vector<surveyed_solid> solids;

private:
    void add(const building& surveyed) {
        surveyed_solid made;
        made.exact = support::exact_solid(surveyed);
        if (made.exact.get_open_edges(survey_tolerance).size() > 0) {
            return;
        }
        made.triangles = support::triangulated_solid(surveyed);
        made.imported =
            GetParam() == import::flattened ? support::flattened_solid(surveyed) : made.triangles;
        made.area = made.exact.get_surface_area();
        const ox::ox_box box = made.exact.get_bounding_box();
        made.centre = box.origin + box.size * 0.5f;
        made.size = box.size;
        solids.push_back(made);
    }
};

/// The operand of an engine: `ox_csg` takes uneven faces as they are.
const ox_solid& operand(engine by, const surveyed_solid& solid) {
    return by == engine::csg ? solid.exact : solid.imported;
}

/// The volume of the operand, to each engine as it understands uneven faces.
double volume_of(engine by, const surveyed_solid& solid) {
    return limits::combine(by, operand(by, solid), operation::unites, ox_solid(), survey_tolerance)
        .get_volume();
}

/// True if difference and intersection do not make up the building.
bool breaks_the_law(engine by, const surveyed_solid& solid, const ox_solid& tool) {
    const ox_solid& whole = operand(by, solid);
    const ox_solid rest = limits::combine(by, whole, operation::substracts, tool, survey_tolerance);
    const ox_solid common =
        limits::combine(by, whole, operation::intersects, tool, survey_tolerance);
    return limits::is_wrong(rest, volume_of(by, solid) - common.get_volume(), solid.area);
}

template <typename Breaks>
verdicts judge(const std::vector<surveyed_solid>& solids, Breaks breaks) {
    verdicts counts;
    for (const surveyed_solid& solid : solids) {
        ++counts.cases;
        for (const engine by : {engine::face_by_face, engine::csg}) {
            counts.add(by, breaks(by, solid));
        }
    }
    return counts;
}

/// A brick of this share of the building's box, `lift` heights above its centre.
ox_solid brick_at(const surveyed_solid& solid, const support::frame& axes, float share,
                  float lift) {
    const ox_3dvector size = solid.size * share;
    const ox_3dvector middle = solid.centre + ox_3dvector(0.0f, 0.0f, solid.size.z * lift);
    ox_solid brick;
    brick.brick(middle - (axes.x * size.x + axes.y * size.y + axes.z * size.z) * 0.5f,
                axes.x * size.x, axes.y * size.y, axes.z * size.z);
    return brick;
}

/// The part of a solid behind a plane.
ox_solid half(engine by, const surveyed_solid& solid, const ox_3dvector& at,
              const ox_3dvector& normal) {
    if (by == engine::csg) {
        ox::ox_csg csg(survey_tolerance);
        csg.unites(solid.exact);
        csg.clips(at, normal);
        csg.compute();
        return csg.get_solid();
    }
    ox_solid clipped = solid.imported;
    clipped.clip(at, normal);
    return clipped;
}

bool breaks_the_sum_of_halves(engine by, const surveyed_solid& solid) {
    ox_3dvector normal(0.3f, 0.2f, 1.0f);
    normal.normalize();
    double sum = 0.0;
    for (const ox_3dvector& away : {normal, -normal}) {
        sum += half(by, solid, solid.centre, away).get_volume();
    }
    return !(std::fabs(sum - volume_of(by, solid)) <= limits::skin * solid.area);
}

/// The area in which a level plane cuts the triangles of a closed solid: they are sliced in double
/// precision.
double slice_area(const ox_solid& triangles, float level) {
    const ox::ox_list<ox_3dvector>& vertices = triangles.get_vertices();
    double doubled = 0.0;
    for (int t = 0; t + 2 < vertices.size(); t += 3) {
        point ends[2];
        for (int i = 0; i < 3; ++i) {
            const ox_3dvector& a = vertices[t + i];
            const ox_3dvector& b = vertices[t + (i + 1) % 3];
            if ((a.z < level) == (b.z < level)) {
                continue;
            }
            const point from = support::to_point(a);
            const point way = support::to_point(b) - from;
            const double share = (static_cast<double>(level) - from.z) / way.z;
            ends[a.z < level ? 0 : 1] = {from.x + share * way.x, from.y + share * way.y, 0.0};
        }
        doubled += support::cross(ends[0], ends[1]).z;
    }
    return std::fabs(doubled) / 2.0;
}

double section_area(ox_solid solid, const ox_3dvector& at) {
    double area = 0.0;
    for (ox::ox_polygon* piece : solid.intersect_by_plane(at, ox_3dvector(0.0f, 0.0f, 1.0f))) {
        area += static_cast<double>(piece->get_area());
        delete piece;
    }
    return area;
}

/// True if one of five level sections is off by more than a hundredth.
bool has_a_wrong_section(const surveyed_solid& solid) {
    for (const float part : {-0.4f, -0.2f, 0.0f, 0.2f, 0.4f}) {
        const ox_3dvector at = solid.centre + ox_3dvector(0.0f, 0.0f, solid.size.z * part);
        const double right = slice_area(solid.triangles, at.z);
        if (!(std::fabs(section_area(solid.imported, at) - right) <= 0.01 * right)) {
            return true;
        }
    }
    return false;
}

TEST_P(LimitsOfBuildings, SomeSectionsAreWrong) {
    verdicts counts;
    counts.concerns_csg = false;
    for (const surveyed_solid& solid : solids) {
        ++counts.cases;
        counts.add(engine::face_by_face, has_a_wrong_section(solid));
    }
    expect_limit("five level sections", counts, of_way(66, 0));
}

TEST_P(LimitsOfBuildings, SomeHalvesDoNotMakeUpTheWhole) {
    expect_limit("clipped halves", judge(solids, breaks_the_sum_of_halves), of_way(54, 15));
}

TEST_P(LimitsOfBuildings, ABrickInGeneralPositionMayBreakTheLaws) {
    support::generator random(8);
    const support::frame axes = support::random_frame(random);
    expect_limit("minus a brick inside",
                 judge(solids,
                       [&axes](engine by, const surveyed_solid& solid) {
                           return breaks_the_law(by, solid, brick_at(solid, axes, 0.4f, 0.0f));
                       }),
                 of_way(100, 1));
}

TEST_P(LimitsOfBuildings, ADormerMayBreakTheLaws) {
    const support::frame axes = {ox_3dvector(0.8f, 0.6f, 0.0f), ox_3dvector(-0.6f, 0.8f, 0.0f),
                                 ox_3dvector(0.0f, 0.0f, 1.0f)};
    expect_limit("minus a dormer",
                 judge(solids,
                       [&axes](engine by, const surveyed_solid& solid) {
                           return breaks_the_law(by, solid, brick_at(solid, axes, 0.3f, 0.4f));
                       }),
                 of_way(83, 1));
}

TEST_P(LimitsOfBuildings, ABrickThatCutsLikeAPlaneMayBreakTheLaws) {
    expect_limit("halves cut by a brick",
                 judge(solids,
                       [](engine by, const surveyed_solid& solid) {
                           const support::frame axes = {ox_3dvector(0.8f, 0.6f, 0.0f),
                                                        ox_3dvector(-0.576f, 0.768f, 0.28f),
                                                        ox_3dvector(0.168f, -0.224f, 0.96f)};
                           return breaks_the_law(by, solid, brick_at(solid, axes, 4.0f, 2.0f));
                       }),
                 of_way(18, 1));
}

INSTANTIATE_TEST_SUITE_P(Imported, LimitsOfBuildings,
                         ::testing::Values(import::flattened, import::triangulated),
                         [](const ::testing::TestParamInfo<import>& parameter) {
                             return parameter.param == import::flattened ? "FaceByFace"
                                                                         : "InTriangles";
                         });

} // namespace
