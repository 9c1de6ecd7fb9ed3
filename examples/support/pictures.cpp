#include <examples/support/pictures.h>

#include <examples/support/offscreen_context.h>
#include <examples/support/png_file.h>

#include <cstdio>

namespace ox_examples {

void pictures::add(const std::string& name, const std::function<image()>& draw) {
    if (left_out) {
        return;
    }
    try {
        const image drawn = draw();
        write_png(folder.add(name), drawn);
    } catch (const no_driver& error) {
        std::fprintf(stderr, "no pictures: %s\n", error.what());
        left_out = true;
    }
}

} // namespace ox_examples
