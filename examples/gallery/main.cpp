// ox_gallery: draws the pictures of docs/.

#include <examples/gallery/pictures.h>

#include <cstdio>
#include <exception>
#include <filesystem>
#include <string>

namespace {

void draw(const std::string& project, const std::string& out, const std::string& previews) {
    const gallery::folders to{out + "/manual/figures", out + "/gallery", previews};
    std::filesystem::create_directories(to.figures);
    std::filesystem::create_directories(to.gallery);
    if (!previews.empty()) {
        std::filesystem::create_directories(previews);
    }
    const std::string descriptions = project + "/examples/building/descriptions/";
    gallery::draw_polygon_ideas(to);
    gallery::draw_mesh_ideas(to);
    gallery::draw_plans(to, descriptions + "lodge.txt");
    gallery::draw_charts(to, project + "/docs/benchmarks.md");
    gallery::draw_views(to, descriptions + "house.txt", descriptions + "lodge.txt",
                        project + "/tests/data/buildings.txt");
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::puts("usage: ox_gallery PROJECT_FOLDER OUTPUT_FOLDER [FOLDER_OF_PREVIEWS]");
        return 2;
    }
    try {
        draw(argv[1], argv[2], argc > 3 ? argv[3] : "");
        return 0;
    } catch (const std::exception& problem) {
        std::fprintf(stderr, "ox_gallery: %s\n", problem.what());
        return 1;
    }
}
