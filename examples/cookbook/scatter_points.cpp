// Points over a lawn: a regular grid, a random scatter, and the cells of a raster that fit.
#include <ox/polygon/ox_polygon.h>

#include <cstdio>

int main() {
    ox::ox_polygon lawn; // a triangle, in metres
    lawn.add_contour(ox::ox_make_list<ox::ox_3dvector>({{0, 0, 0}, {12, 0, 0}, {0, 9, 0}}));

    const ox::ox_list<ox::ox_3dvector> sprinklers = lawn.regular_distribution(3.0f);
    std::printf("%d sprinklers, 3 m apart\n", sprinklers.size());

    const ox::ox_list<ox::ox_3dvector> daisies = lawn.random_distribution(1000, 42); // a seed
    int near = 0;
    for (const ox::ox_3dvector& p : daisies) {
        near += p.x < 6.0f ? 1 : 0;
    }
    std::printf("%d of %d daisies west of x = 6 (3/4 of the area)\n", near, daisies.size());

    // Slabs of 1 x 1 m whose centres stay 0.4 m clear of the edges.
    bool slabs[12 * 9];
    const int count = lawn.fill_regular_grid(slabs, {0, 0, 0}, {1, 0, 0}, {0, 1, 0}, 12, 9, 0.4f);
    std::printf("%d slabs\n", count);
    for (int row = 8; row >= 0; --row) {
        for (int column = 0; column < 12; ++column) {
            std::putchar(slabs[row * 12 + column] ? '#' : '.');
        }
        std::putchar('\n');
    }
}
