// A program for debuggers to stop in the middle of a boolean, with an object of every kind that
// has a printer.
#include <ox/ox_utilities.h>

int main() {
    ox::ox_list<int> numbers;
    for (const int number : {2, 3, 5}) {
        numbers.push_right(number);
    }
    const ox::ox_list<int> no_numbers;
    ox::ox_hash<int, float> weights;
    weights.set(2, 0.5f);
    weights.set(1, 0.25f);
    [[maybe_unused]] const ox::ox_2dvector pixel(3.0f, 4.5f);
    [[maybe_unused]] const ox::ox_polar place(1.0f, 0.5f, 0.25f);
    ox::ox_box box;
    [[maybe_unused]] const ox::ox_box nothing;
    box.enlarge(ox::ox_3dvector(1.0f, 2.0f, 3.0f));
    box.enlarge(ox::ox_3dvector(2.0f, 4.0f, 6.0f));
    [[maybe_unused]] const ox::ox_color brick_red(0.5f, 0.25f, 0.125f);
    ox::ox_matrix moved;
    moved.translate(ox::ox_3dvector(7.0f, 8.0f, 9.0f));
    ox::ox_triangle_set triangles(3, 1);

    ox::ox_csv table;
    table.read_string("length;width\n1;2\n3;4\n");

    ox::ox_solid room;
    room.brick(ox::ox_3dvector(0, 0, 0), 4.0f, 3.0f, 2.5f);
    ox::ox_solid window;
    window.brick(ox::ox_3dvector(1.5f, -0.25f, 0.875f), 1.0f, 1.0f, 1.25f);
    ox::ox_polygon floor(ox::ox_3dvector(0, 0, 0), ox::ox_3dvector(0, 0, 1));
    ox::ox_list<ox::ox_3dvector> corners;
    for (const ox::ox_3dvector& corner :
         {ox::ox_3dvector(0, 0, 0), ox::ox_3dvector(4, 0, 0), ox::ox_3dvector(4, 3, 0)}) {
        corners.push_right(corner);
    }
    floor.add_contour(corners);
    floor.get_area();
    ox::ox_csg combination;
    combination.unites(room);
    combination.substracts(window);
    room.substracts(window);
    return static_cast<int>(triangles.get_nb_triangles()) + numbers.size() - 4;
}
