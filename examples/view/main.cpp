#include <examples/view/arguments.h>
#include <examples/view/drawing.h>
#include <examples/view/picking.h>
#include <examples/view/snapping.h>
#include <examples/view/tour.h>

#include <examples/building/drawing.h>
#include <examples/support/output_folder.h>
#include <examples/support/pictures.h>
#include <examples/support/program.h>
#include <examples/support/progress.h>

#include <cmath>
#include <cstdio>
#include <stdexcept>

namespace {

using building::element;

/// To tenths of a millimetre, and never as -0.
double rounded(float coordinate) {
    return std::round(double{coordinate} * 1e4) / 1e4 + 0.0;
}

void print(const char* what, const ox::ox_3dvector& v) {
    std::printf("%-10s %9.4f %9.4f %9.4f", what, rounded(v.x), rounded(v.y), rounded(v.z));
}

/// Picks the point of the building that the pixel shows.
ox::ox_3dvector pick(std::vector<element>& elements, ox::ox_camera& camera,
                     const view::arguments& wanted) {
    const ox::ox_3dvector ray = camera.get_ray_direction(wanted.pick.first, wanted.pick.second);
    const auto found = view::first_hit(elements, camera.get_position(), ray);
    if (!found) {
        throw std::runtime_error("the ray through the pixel misses the building");
    }
    print("eye", camera.get_position());
    std::printf("\n");
    print("ray", ray);
    std::printf("   through pixel %g %g\n", double{wanted.pick.first}, double{wanted.pick.second});
    print("picked", found->point);
    std::printf("   %s\n", found->name.c_str());
    return found->point;
}

view::marks snap(std::vector<element>& elements, const ox::ox_3dvector& picked) {
    view::marks m = {picked, picked, view::snap_to_faces(elements, picked)};
    for (const view::snap_step& step : m.steps) {
        m.snapped = step.position;
        print("plane", step.normal);
        std::printf("   %s, freedom %d\n", step.name.c_str(), step.freedom);
    }
    print("snapped", m.snapped);
    std::printf("   %.4f from the picked point\n", rounded((m.snapped - picked).size()));
    return m;
}

void add_picture(ox_examples::pictures& pictures, std::vector<element>& elements, view::station& s,
                 const view::marks& m) {
    float x = 0;
    float y = 0;
    s.camera.get_projection(m.snapped, x, y);
    const bool visible = view::is_visible(elements, s.camera.get_position(), m.snapped);
    std::printf("%-10s snapped point at pixel %.1f %.1f, %s\n", s.name.c_str(), double{x},
                double{y}, visible ? "visible" : "hidden");
    pictures.add(s.name + ".png", [&] { return view::draw_station(elements, s, m); });
}

std::vector<element> assemble(const building::description& d) {
    ox_examples::progress steps(building::count_steps(d));
    return building::assemble(d, steps);
}

ox_examples::exit_status run(const view::arguments& wanted) {
    const building::description d = building::read_description(wanted.description);
    std::vector<element> elements = assemble(d);
    ox::ox_camera camera = view::first_camera(building::bounding_box(elements));
    const view::marks m = snap(elements, pick(elements, camera, wanted));

    ox_examples::output_folder folder(wanted.folder, d.name);
    ox_examples::pictures pictures(folder);
    for (view::station& s : view::tour(camera, m.snapped)) {
        add_picture(pictures, elements, s, m);
    }
    folder.publish();
    return pictures.complete() ? ox_examples::all_well : ox_examples::failed;
}

} // namespace

int main(int argc, char** argv) {
    view::arguments wanted;
    return ox_examples::run_program(
        {"ox_view", "Takes a camera around a building, and picks and snaps a point."}, argc, argv,
        [&](CLI::App& line) { view::declare(line, wanted); }, [&] { return run(wanted); });
}
