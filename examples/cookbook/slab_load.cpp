// The weight of a floor slab shared among its beams, and what none of them carries.
#include <ox/structure/ox_loadshare.h>

#include <cstdio>

int main() {
    ox::ox_loadshare slab; // the sweep lines run along x, so beams run along y
    slab.set_slab_geometry(ox::ox_3dvector(0, 0, 1), ox::ox_3dvector(1, 0, 0));
    slab.set_slab_weight(5.0f); // kN/m2
    slab.add_slab_contour(
        ox::ox_make_list<ox::ox_3dvector>({{0, 0, 0}, {10, 0, 0}, {10, 6, 0}, {0, 6, 0}}));
    slab.add_slab_contour( // the stair well: a contour within another is a hole
        ox::ox_make_list<ox::ox_3dvector>({{7, 1, 0}, {9, 1, 0}, {9, 3, 0}, {7, 3, 0}}));

    for (const float x : {0.0f, 4.0f, 10.0f}) { // they end a metre before the slab does
        slab.add_beam(ox::ox_3dvector(x, 0, 0), ox::ox_3dvector(x, 5, 0));
    }
    slab.compute_weights(0.01f); // sweep lines 1 cm apart

    double carried = 0;
    for (int beam = 0; beam < 3; ++beam) {
        carried += static_cast<double>(slab.get_weight(beam));
        std::printf("beam %d: %6.1f kN\n", beam, static_cast<double>(slab.get_weight(beam)));
    }
    const double uncarried = static_cast<double>(slab.get_uncarried_weight());
    std::printf("together %.1f kN, carried by none %.1f kN, the slab weighs 280 kN\n", carried,
                uncarried);
}
