#include <examples/curves/description.h>
#include <examples/curves/drawing.h>
#include <examples/curves/tracing.h>

#include <examples/support/command_line.h>
#include <examples/support/output_folder.h>
#include <examples/support/pictures.h>
#include <examples/support/program.h>

#include <cstdio>

namespace {

/// Prints eleven points of each curve, from its begin to its end.
void report(const curves::description& d) {
    constexpr int nb_steps = 10;
    const curves::traced_curves traced = curves::trace(d.points, nb_steps);
    std::printf("%-4s %21s %21s %21s\n", "t", "Bezier", "B-spline", "damped spline");
    for (std::size_t i = 0; i <= nb_steps; ++i) {
        std::printf("%-4.1f", static_cast<double>(i) / nb_steps);
        for (const auto* curve : {&traced.bezier, &traced.bspline, &traced.spline}) {
            std::printf(" %11.4f %9.4f", (*curve)[i].x, (*curve)[i].y);
        }
        std::printf("\n");
    }
}

ox_examples::exit_status run(const ox_examples::single_input& wanted) {
    const curves::description d = curves::read_description(wanted.file);
    ox_examples::output_folder folder(wanted.folder, d.name);
    ox_examples::pictures pictures(folder);
    pictures.add(d.name + ".png", [&] { return curves::draw_curves(d); });
    folder.publish();
    report(d);
    return pictures.complete() ? ox_examples::all_well : ox_examples::failed;
}

} // namespace

int main(int argc, char** argv) {
    ox_examples::single_input wanted;
    return ox_examples::run_program(
        {"ox_curves", "Draws three curves of the same points."}, argc, argv,
        [&](CLI::App& line) { ox_examples::add_single_input(line, wanted); },
        [&] { return run(wanted); });
}
