#include <cmath>

#include <bench/support/outline.h>
#include <ox/polygon/ox_polygon.h>
#include <tests/reference/distributions.h>

#include "workloads.h"

namespace bench {
namespace {

using ox::ox_3dvector;
using ox::ox_polygon;

constexpr int nb_corners = 1000;
constexpr double outer_radius = 10.0;
constexpr double smooth_radius = 9.0;
constexpr double jagged_radius = 3.0;
constexpr int seed = 7;
constexpr double seconds_a_random_point = 30e-9;

/// A region with the points scattered over it, as the library or the plain version keeps them.
template <class points_type>
struct scattering {
    ox_polygon polygon;
    points_type points;
};

template <class points_type>
std::vector<fact> facts_of(scattering<points_type>& done) {
    double count = 0.0, sum_x = 0.0, sum_y = 0.0;
    for (const ox_3dvector& p : done.points) {
        count += 1.0;
        sum_x += static_cast<double>(p.x);
        sum_y += static_cast<double>(p.y);
    }
    return {{"points", count, 0.0}, {"sum of x", sum_x, 0.0}, {"sum of y", sum_y, 0.0}};
}

// The triangles are there before the clock starts, on both sides.
template <class points_type, class scatter_points>
contestant scatter_by(const char* name, double inner_radius, const scatter_points& scatter) {
    using state = scattering<points_type>;
    const auto region = std::make_shared<ox_polygon>();
    region->add_contour(random_outline(nb_corners, inner_radius, outer_radius));
    region->get_area();
    return make_contestant(
        name,
        [=] {
            return state{*region, {}};
        },
        [=](state& s) { s.points = scatter(s.polygon); }, facts_of<points_type>);
}

using point_list = ox::ox_list<ox_3dvector>;
using point_vector = std::vector<ox_3dvector>;

contest scatter_regularly(long count, double inner_radius) {
    const auto step = [=](ox_polygon& polygon) {
        return static_cast<float>(
            std::sqrt(static_cast<double>(polygon.get_area()) / static_cast<double>(count)));
    };
    contest rules;
    rules.ours = scatter_by<point_list>("ox_polygon", inner_radius, [=](ox_polygon& polygon) {
        return polygon.regular_distribution(step(polygon));
    });
    rules.peers = {
        scatter_by<point_vector>("plain version", inner_radius, [=](ox_polygon& polygon) {
            return reference::regular_distribution(polygon, step(polygon));
        })};
    rules.goal = 1.0 / 30.0;
    return rules;
}

contest scatter_randomly(long count, double inner_radius) {
    const int n = static_cast<int>(count);
    contest rules;
    rules.ours = scatter_by<point_list>("ox_polygon", inner_radius, [=](ox_polygon& polygon) {
        return polygon.random_distribution(n, seed);
    });
    rules.peers = {
        scatter_by<point_vector>("plain version", inner_radius, [=](ox_polygon& polygon) {
            return reference::random_distribution(polygon, n, seed);
        })};
    rules.seconds_goal = seconds_a_random_point * static_cast<double>(count);
    return rules;
}

workload scattering_workload(const char* name, contest (*scatter)(long, double), double radius) {
    return workload{name,
                    "points",
                    {10000, 100000, 1000000},
                    {1000, 3000, 10000},
                    [=](long count) { return scatter(count, radius); }}
        .judged_from(1000000);
}

} // namespace

std::vector<workload> distribution_workloads() {
    return {
        scattering_workload("regular points, smooth outline of 1,000", scatter_regularly,
                            smooth_radius),
        scattering_workload("regular points, jagged outline of 1,000", scatter_regularly,
                            jagged_radius),
        scattering_workload("random points, jagged outline of 1,000", scatter_randomly,
                            jagged_radius),
    };
}

} // namespace bench
