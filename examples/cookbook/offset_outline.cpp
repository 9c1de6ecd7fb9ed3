// The outside of a building from the inside of its walls: the outline, moved by their thickness.
#include <ox/polygon/ox_polygon.h>

#include <cstdio>

int main() {
    const float thickness = 0.3f; // metres
    ox::ox_polygon inside;
    inside.add_contour(
        ox::ox_make_list<ox::ox_3dvector>({{0, 0, 0}, {8, 0, 0}, {8, 6, 0}, {0, 6, 0}}));

    ox::ox_polygon outside = inside; // a deep copy
    outside.offset(thickness, ox::ox_polygon::join_miter);
    std::printf("inside  %.2f m2, outside %.2f m2\n", static_cast<double>(inside.get_area()),
                static_cast<double>(outside.get_area()));

    ox::ox_polygon wall = outside; // what lies between them
    wall.substracts(inside);
    std::printf("wall    %.2f m2 in %d contours\n", static_cast<double>(wall.get_area()),
                wall.get_contour_sizes().size());

    ox::ox_polygon path = outside; // round corners, for whoever walks around the house
    path.offset(1.0f, ox::ox_polygon::join_round);
    std::printf("path    %.2f m long\n", static_cast<double>(path.get_perimeter()));

    inside.offset(-4.0f, ox::ox_polygon::join_miter); // more than the room has
    std::printf("shrunk by 4 m: %d contours are left\n", inside.get_contour_sizes().size());
}
