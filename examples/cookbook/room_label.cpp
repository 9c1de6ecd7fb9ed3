// The outline of a room: its area, its perimeter, and where to write its name.
#include <ox/polygon/ox_polygon.h>

#include <cstdio>

int main() {
    // An L-shaped room in metres, counter-clockwise seen from above.
    ox::ox_polygon room;
    room.add_contour(ox::ox_make_list<ox::ox_3dvector>(
        {{0, 0, 0}, {6, 0, 0}, {6, 2.5f, 0}, {3.5f, 2.5f, 0}, {3.5f, 5, 0}, {0, 5, 0}}));

    std::printf("area      %6.2f m2\n", static_cast<double>(room.get_area()));
    std::printf("perimeter %6.2f m\n", static_cast<double>(room.get_perimeter()));

    // Well inside the room, whatever its shape: the middle of its bounds may lie outside.
    const ox::ox_3dvector label = room.get_best_center();
    std::printf("label at  (%.2f, %.2f), %s the room\n", static_cast<double>(label.x),
                static_cast<double>(label.y), room.contains(label) ? "inside" : "outside");
}
