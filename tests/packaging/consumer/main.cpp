#include <ox/ox_utilities.h>

// A unit cube with its upper half clipped away has half its volume left.
int main() {
    ox::ox_solid cube;
    cube.brick(ox::ox_3dvector(0, 0, 0), 1, 1, 1);
    cube.clip(ox::ox_3dvector(0, 0, 0.5f), ox::ox_3dvector(0, 0, 1));
    const ox::ox_box& box = cube.get_bounding_box();
    return cube.get_faces().size() == 6 && box.size.z == 0.5f ? 0 : 1;
}
