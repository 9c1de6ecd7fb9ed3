#include <examples/view/arguments.h>

#include <examples/support/command_line.h>

#include <CLI/CLI.hpp>

namespace view {

namespace {

/// Accepts pixel coordinates from 0 to `size`.
CLI::Validator pixel(int size) {
    return ox_examples::number_between(0, size, "pixel from 0 to " + std::to_string(size));
}

} // namespace

void declare(CLI::App& line, arguments& wanted) {
    line.add_option("DESCRIPTION", wanted.description, "the building")->required()->type_name("");
    line.add_option("--pick", wanted.pick, "the pixel of the first picture that is picked")
        ->type_name("X Y")
        ->check(pixel(picture_width).application_index(0))
        ->check(pixel(picture_height).application_index(1))
        ->capture_default_str();
    ox_examples::add_output_folder(line, wanted.folder,
                                   "receives the pictures (the working folder)");
}

} // namespace view
