#include <bench/peers/clipper.h>

#include <numeric>

namespace peers {
namespace {

using ClipperLib::Path;
using ClipperLib::Paths;

constexpr char clipper_name[] = "raw Clipper";

double area_of(const Paths& region) {
    return std::accumulate(region.begin(), region.end(), 0.0, [](double sum, const Path& path) {
        return sum + ClipperLib::Area(path);
    });
}

} // namespace

Path rectangle_path(ClipperLib::cInt x, ClipperLib::cInt y, ClipperLib::cInt width,
                    ClipperLib::cInt height) {
    return {{x, y}, {x + width, y}, {x + width, y + height}, {x, y + height}};
}

bench::contestant clipper_differences(const Path& outline, const Paths& tools, int repeats,
                                      double unit, const std::string& fact_name) {
    return bench::make_contestant(
        clipper_name, [=] { return Paths(); },
        [=](Paths& region) {
            for (int i = 0; i < repeats; ++i) {
                region = {outline};
                for (const Path& tool : tools) {
                    ClipperLib::Clipper clipper;
                    clipper.AddPaths(region, ClipperLib::ptSubject, true);
                    clipper.AddPath(tool, ClipperLib::ptClip, true);
                    clipper.Execute(ClipperLib::ctDifference, region, ClipperLib::pftEvenOdd,
                                    ClipperLib::pftEvenOdd);
                }
            }
        },
        [=](const Paths& region) {
            return std::vector<bench::fact>{
                {fact_name, repeats * area_of(region) * unit * unit, 0.0}};
        });
}

bench::contestant clipper_even_odd_union(const Paths& paths, double unit) {
    return bench::make_contestant(
        clipper_name, [] { return std::make_unique<ClipperLib::PolyTree>(); },
        [=](const std::unique_ptr<ClipperLib::PolyTree>& tree) {
            ClipperLib::Clipper clipper;
            clipper.AddPaths(paths, ClipperLib::ptSubject, true);
            clipper.Execute(ClipperLib::ctUnion, *tree, ClipperLib::pftEvenOdd,
                            ClipperLib::pftEvenOdd);
        },
        [=](const std::unique_ptr<ClipperLib::PolyTree>& tree) {
            Paths region;
            ClipperLib::PolyTreeToPaths(*tree, region);
            return std::vector<bench::fact>{{"contours", static_cast<double>(region.size()), 0.0},
                                            {"area", area_of(region) * unit * unit, 0.0}};
        });
}

} // namespace peers
