#include <examples/building/drawing.h>
#include <examples/town/remodelling.h>
#include <examples/town/survey.h>

#include <examples/support/command_line.h>
#include <examples/support/output_folder.h>
#include <examples/support/pictures.h>
#include <examples/support/program.h>

#include <cmath>
#include <cstdio>
#include <string>

namespace {

/// Metres between the buildings of the picture.
constexpr float plot = 18.0f;

/// Buildings in a row of the picture, and in all of it.
constexpr int row_length = 4;
constexpr int most_drawn = 12;

/// The solid moved to its plot of the picture.
building::element on_plot(const ox::ox_solid& solid, int number) {
    const ox::ox_3dvector place(plot * static_cast<float>(number % row_length),
                                plot * static_cast<float>(number / row_length), 0.0f);
    ox::ox_list<ox::ox_3dvector> vertices = solid.get_vertices();
    for (ox::ox_3dvector& vertex : vertices) {
        vertex = vertex + place;
    }
    building::element drawn;
    drawn.solid = solid;
    drawn.solid.set_vertices(vertices);
    return drawn;
}

void print_problem(const std::string& name, const ox::ox_csg_problem& problem) {
    std::printf("%s is open from (%.3f, %.3f, %.3f) to (%.3f, %.3f, %.3f)\n", name.c_str(),
                static_cast<double>(problem.from.x), static_cast<double>(problem.from.y),
                static_cast<double>(problem.from.z), static_cast<double>(problem.to.x),
                static_cast<double>(problem.to.y), static_cast<double>(problem.to.z));
}

ox_examples::exit_status run(const ox_examples::single_input& wanted) {
    std::vector<town::surveyed> survey = town::read_survey(wanted.file);
    ox_examples::output_folder folder(wanted.folder, "town");
    std::vector<building::element> drawn;
    int closed = 0;
    int sound = 0;
    for (town::surveyed& surveyed : survey) {
        ox::ox_csg csg;
        if (!town::remodel(surveyed.solid, csg)) {
            print_problem(surveyed.name, csg.get_problem(0));
            continue;
        }
        const ox::ox_solid result = csg.get_solid();
        ++closed;
        sound += result.get_open_edges(0.0f).size() == 0 && result.get_volume() > 0.0 ? 1 : 0;
        std::printf("%s: %.2f m3 became %.2f m3\n", surveyed.name.c_str(),
                    surveyed.solid.get_volume(), result.get_volume());
        if (closed <= most_drawn) {
            drawn.push_back(on_plot(result, closed - 1));
        }
    }
    std::printf("%d of %d closed buildings were remodelled to closed ones, %d are open\n", sound,
                closed, static_cast<int>(survey.size()) - closed);
    ox_examples::pictures pictures(folder);
    pictures.add("town.png", [&] { return building::draw_view(drawn); });
    folder.publish();
    if (sound != closed) {
        return ox_examples::off;
    }
    return pictures.complete() ? ox_examples::all_well : ox_examples::failed;
}

} // namespace

int main(int argc, char** argv) {
    ox_examples::single_input wanted;
    return ox_examples::run_program(
        {"ox_town", "Adds dormers to surveyed buildings, digs cellars and cuts roofs."}, argc, argv,
        [&](CLI::App& line) { ox_examples::add_single_input(line, wanted); },
        [&] { return run(wanted); });
}
