#ifndef OX_TESTS_SOLID_LIMITS_LIMITS_MAP_H
#define OX_TESTS_SOLID_LIMITS_LIMITS_MAP_H

#include <cmath>
#include <cstdio>
#include <string>

#include <gtest/gtest.h>

#include <ox/solid/ox_solid.h>
#include <tests/solid/csg/judged_results.h>

namespace limits {

using csg_test::operation;
using ox::ox_solid;

/// Who combines two solids: the booleans of `ox_solid`, one face after the other, or `ox_csg`.
enum class engine { face_by_face, csg };

/// A volume is wrong where it is off by more than this times the surface of all operands (model
/// units): a skin of a millimetre over everything, where a unit is a metre. Every smaller error is
/// rounding; what a lost or doubled face makes is larger.
constexpr double skin = 0.001;

/// What `a` becomes by `with` and `b`; empty where `ox_csg` refuses an operand.
inline ox_solid combine(engine by, const ox_solid& a, operation with, const ox_solid& b,
                        float tolerance = 0.001f) {
    if (by == engine::csg) {
        ox::ox_csg csg(tolerance);
        csg.unites(a);
        csg_test::apply(csg, with, b);
        csg.compute();
        return csg.get_solid();
    }
    ox_solid result = a;
    ox_solid other = b;
    switch (with) {
    case operation::unites:
        result.unites(other);
        break;
    case operation::substracts:
        result.substracts(other);
        break;
    case operation::intersects:
        result.intersects(other);
        break;
    }
    return result;
}

/// True if the volume is off by more than the skin over this area.
inline bool is_wrong(const ox_solid& result, double right_volume, double area) {
    return !(std::fabs(result.get_volume() - right_volume) <= skin * area);
}

/// How many cases of one class came out wrong.
struct verdicts {
    int cases = 0;
    int wrong_face_by_face = 0;
    int wrong_csg = 0;
    bool concerns_csg = true; ///< false for what `ox_csg` has no counterpart of

    void add(engine by, bool wrong) {
        (by == engine::csg ? wrong_csg : wrong_face_by_face) += wrong ? 1 : 0;
    }
};

/// The number of wrong cases that is pinned: of the usual ones, and of all with `OX_CHECK=1`.
struct pinned {
    int usual;
    int all;
};

/// Prints the row of the map: class, cases, wrong face by face and by `ox_csg`. Expects the pinned
/// numbers: a change of one is a change of behaviour.
inline void expect_limit(const std::string& title, const verdicts& counts, pinned face_by_face,
                         pinned csg = {0, 0}) {
    const std::string by_csg = counts.concerns_csg ? std::to_string(counts.wrong_csg) : "-";
    std::printf("| %s | %d | %d (%.1f %%) | %s |\n", title.c_str(), counts.cases,
                counts.wrong_face_by_face, 100.0 * counts.wrong_face_by_face / counts.cases,
                by_csg.c_str());
    EXPECT_EQ(counts.wrong_face_by_face, support::all_or(face_by_face.all, face_by_face.usual))
        << title;
    EXPECT_EQ(counts.wrong_csg, support::all_or(csg.all, csg.usual)) << title;
}

} // namespace limits

#endif
