// Welds and refines triangle sets.

#include <fuzz/shapes.h>
#include <ox/core/ox_log.h>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    ox_log_set(false);
    fuzz::byte_reader bytes(data, size);
    ox::ox_triangle_set set = fuzz::triangle_set_of(bytes);
    for (int step = 0; step < 2; ++step) {
        const unsigned int triangles = set.get_nb_triangles();
        const float position_tolerance = bytes.coordinate();
        set.optimize(position_tolerance, bytes.coordinate());
        fuzz::require(set.get_nb_triangles() == triangles);
        set.subdivide();
        fuzz::require(set.get_nb_triangles() == triangles ||
                      set.get_nb_triangles() == 4 * triangles);
    }
    const ox::ox_triangle_set shared = set;
    set.allocate(set.get_nb_vertices(), static_cast<unsigned int>(bytes.below(8)));
    fuzz::require(shared.get_vertices() == set.get_vertices());
    return 0;
}
