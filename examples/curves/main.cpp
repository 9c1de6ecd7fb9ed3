#include <examples/curves/description.h>
#include <examples/curves/drawing.h>
#include <examples/curves/tracing.h>

#include <examples/support/output_folder.h>
#include <examples/support/png_file.h>
#include <examples/support/program.h>
#include <examples/support/single_input.h>

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

void run(const ox_examples::single_input& wanted) {
    const curves::description d = curves::read_description(wanted.file);
    ox_examples::output_folder folder(wanted.folder, d.name);
    ox_examples::write_png(folder.add(d.name + ".png"), curves::draw_curves(d));
    folder.publish();
    report(d);
}

} // namespace

int main(int argc, char** argv) {
    return ox_examples::run_program("ox_curves DESCRIPTION [--out DIR]", [&] {
        run(ox_examples::parse_single_input(argc, argv));
        return ox_examples::all_well;
    });
}
