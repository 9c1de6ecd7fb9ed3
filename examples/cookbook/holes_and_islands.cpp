// A lake with an island and a pond on it: contours within contours bound by turns.
#include <ox/polygon/ox_polygon.h>

#include <cstdio>

namespace {

ox::ox_list<ox::ox_3dvector> square(float from, float to) {
    return ox::ox_make_list<ox::ox_3dvector>(
        {{from, from, 0}, {to, from, 0}, {to, to, 0}, {from, to, 0}});
}

} // namespace

int main() {
    ox::ox_polygon water;
    water.add_contour(square(0, 10)); // the lake: the first contour gives the plane
    water.add_contour(square(2, 8));  // the island, a hole in the water
    water.add_contour(square(4, 6));  // the pond on the island

    std::printf("water: %.0f m2 in %d pieces\n", static_cast<double>(water.get_area()),
                water.count_outer_contours());
    for (int i = 0; i < water.get_contour_sizes().size(); ++i) {
        std::printf("contour %d: %u vertices, %s, inside contour %d\n", i,
                    water.get_contour_sizes()[i],
                    water.get_contour_orientations()[i] ? "outline" : "hole",
                    water.get_contour_parents()[i]);
    }
    std::printf("(5, 5) is in the water: %s\n", water.contains({5, 5, 0}) ? "yes" : "no");
    std::printf("(3, 3) is in the water: %s\n", water.contains({3, 3, 0}) ? "yes" : "no");
}
