// A gable: a block clipped by the two planes of its roof.
#include <ox/solid/ox_csg.h>

#include <cstdio>

int main() {
    ox::ox_solid block; // metres: 8 wide, 10 long, as high as the ridge
    block.brick(ox::ox_3dvector(0, 0, 0), 8.0f, 10.0f, 6.0f);

    // The ridge runs along y at x = 4; the eaves are 3 m high. Normals point to what is cut away.
    const ox::ox_3dvector ridge(4, 0, 6);
    ox::ox_csg csg;
    csg.unites(block);
    csg.clips(ridge, ox::ox_3dvector(-3, 0, 4)); // need not be of unit length
    csg.clips(ridge, ox::ox_3dvector(3, 0, 4));
    if (!csg.compute()) {
        return 1;
    }
    ox::ox_solid house = csg.get_solid();
    std::printf("%.1f m3 of %.1f, %d faces\n", house.get_volume(), block.get_volume(),
                house.get_faces().size());
    for (ox::ox_polygon* face : house.get_faces()) {
        const ox::ox_3dvector& n = face->get_normal();
        if (n.z > 0.1f && n.z < 0.9f) {
            std::printf("roof: %.1f m2, normal (%.1f, %.1f, %.1f)\n",
                        static_cast<double>(face->get_area()), static_cast<double>(n.x),
                        static_cast<double>(n.y), static_cast<double>(n.z));
        }
    }
}
