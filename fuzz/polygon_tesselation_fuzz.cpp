// Divides polygons into triangles, before and after a change of the plane.

#include <fuzz/shapes.h>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::byte_reader bytes(data, size);
    ox::ox_polygon polygon = fuzz::polygon_of(bytes);
    fuzz::require_sound(polygon);
    polygon.set_normal(bytes.vector());
    fuzz::require_sound(polygon);
    polygon.set_point(bytes.vector());
    fuzz::require_sound(polygon);
    ox::ox_matrix matrix;
    matrix.translation(bytes.vector());
    matrix[static_cast<unsigned int>(bytes.below(16))] = bytes.coordinate();
    polygon.matrix_transform(matrix);
    fuzz::require_sound(polygon);
    return 0;
}
