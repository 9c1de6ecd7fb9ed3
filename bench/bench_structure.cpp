// The sharing of a slab's load beside its plain version.

#include <bench/support/outline.h>
#include <bench/support/program.h>
#include <ox/structure/ox_loadshare.h>
#include <tests/reference/load_sweep.h>

namespace {

using ox::ox_3dvector;

constexpr int nb_points = 10000;
constexpr int nb_beams = 200;
constexpr long nb_lines = 200; ///< shared by many beams
constexpr double inner_radius = 9.9;
constexpr double outer_radius = 10.0;

struct beam_ends {
    ox_3dvector start;
    ox_3dvector end;
};

/// Beams over the whole slab, or over a tenth of it.
std::vector<beam_ends> random_beams(bool over_whole_slab) {
    ox::ox_random random(12);
    std::vector<beam_ends> beams;
    for (int k = 0; k < nb_beams; ++k) {
        const float x = 20.0f * random.dice_0_1() - 10.0f;
        const float lean = random.dice_0_1() - 0.5f;
        const float y = over_whole_slab ? -11.0f : 20.0f * random.dice_0_1() - 11.0f;
        const float length = over_whole_slab ? 22.0f : 2.0f;
        beams.push_back({ox_3dvector(x, y, 0.0f), ox_3dvector(x + lean, y + length, 0.0f)});
    }
    return beams;
}

/// Beams across the slab that run from any side of it to any other, so that they cross each other.
std::vector<beam_ends> crossing_beams(long count) {
    ox::ox_random random(12);
    std::vector<beam_ends> beams;
    for (long k = 0; k < count; ++k) {
        const float start = 20.0f * random.dice_0_1() - 10.0f;
        const float end = 20.0f * random.dice_0_1() - 10.0f;
        beams.push_back({ox_3dvector(start, -11.0f, 0.0f), ox_3dvector(end, 11.0f, 0.0f)});
    }
    return beams;
}

ox::ox_loadshare make_slab(const std::vector<beam_ends>& beams) {
    ox::ox_loadshare slab;
    slab.add_slab_contour(bench::random_outline(nb_points, inner_radius, outer_radius));
    for (const beam_ends& beam : beams) {
        slab.add_beam(beam.start, beam.end);
    }
    return slab;
}

reference::load_sweep make_plain_slab(const std::vector<beam_ends>& beams) {
    reference::load_sweep slab;
    slab.contours.emplace_back();
    for (const ox_3dvector& p : bench::random_outline(nb_points, inner_radius, outer_radius)) {
        slab.contours.back().push_back(ox::ox_2dvector(p.x, p.y));
    }
    for (const beam_ends& beam : beams) {
        slab.beams.emplace_back();
        slab.beams.back().start = ox::ox_2dvector(beam.start.x, beam.start.y);
        slab.beams.back().end = ox::ox_2dvector(beam.end.x, beam.end.y);
    }
    return slab;
}

bench::contest share_load(long lines, const std::vector<beam_ends>& beams) {
    const int count = static_cast<int>(beams.size());
    const float step = static_cast<float>(2.0 * outer_radius / static_cast<double>(lines));
    bench::contest rules;
    rules.ours = bench::make_contestant(
        "ox_loadshare", [=] { return make_slab(beams); },
        [=](ox::ox_loadshare& slab) { slab.compute_weights(step); },
        [=](ox::ox_loadshare& slab) {
            double sum = 0.0;
            for (int i = 0; i < count; ++i) {
                sum += static_cast<double>(slab.get_weight(i));
            }
            return std::vector<bench::fact>{{"load of all beams", sum, 0.0}};
        });
    rules.peers = {bench::make_contestant(
        "plain version", [=] { return make_plain_slab(beams); },
        [=](reference::load_sweep& slab) { slab.compute_weights(step); },
        [](const reference::load_sweep& slab) {
            double sum = 0.0;
            for (const reference::plain_beam& beam : slab.beams) {
                sum += static_cast<double>(beam.weight);
            }
            return std::vector<bench::fact>{{"load of all beams", sum, 0.0}};
        })};
    rules.goal = 1.0 / 30.0;
    return rules;
}

bench::workload sharing_workload(const char* name, bool over_whole_slab) {
    return bench::workload{
        name,
        "lines",
        {2000, 6000, 20000},
        {200, 600, 2000},
        [=](long lines) { return share_load(lines, random_beams(over_whole_slab)); }}
        .judged_from(20000);
}

bench::workload many_beams_workload() {
    return bench::workload{"load of a slab shared by many beams that cross each other",
                           "beams",
                           {2500, 5000, 10000, 20000},
                           {600, 1200, 2500},
                           [](long beams) {
                               bench::contest rules = share_load(nb_lines, crossing_beams(beams));
                               rules.goal = 1.0; // both sort nearly all crossings
                               return rules;
                           }}
        .growing_at_most(1.5);
}

} // namespace

int main(int argc, char** argv) {
    return bench::run_program(argc, argv,
                              {sharing_workload("load of a slab shared by short beams", false),
                               sharing_workload("load of a slab shared by beams across it", true),
                               many_beams_workload()});
}
