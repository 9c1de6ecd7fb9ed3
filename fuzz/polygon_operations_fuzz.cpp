// Drives two polygons through the operations that the bytes name, in any order.

#include <fuzz/shapes.h>

namespace {

using fuzz::byte_reader;
using ox::ox_3dvector;
using ox::ox_list;
using ox::ox_polygon;

void delete_pieces(const ox_list<ox_polygon*>& pieces, const ox_polygon& source) {
    for (ox_polygon* piece : pieces) {
        if (piece != &source) {
            piece->get_area();
            delete piece;
        }
    }
}

void cut(byte_reader& bytes, ox_polygon& polygon) {
    const ox_3dvector point = bytes.vector();
    const ox_3dvector normal = bytes.vector();
    polygon.intersect_by_plane(point, normal);
    delete_pieces(polygon.cut_by_plane(point, normal, true), polygon);
}

void transform(byte_reader& bytes, ox_polygon& polygon) {
    ox::ox_matrix matrix;
    matrix.translation(bytes.vector());
    matrix[bytes.byte() % 16u] = bytes.coordinate();
    polygon.matrix_transform(matrix);
}

/// The search takes seconds in a frame that a matrix has left askew.
void find_center(ox_polygon polygon) {
    polygon.set_normal(polygon.get_normal());
    polygon.get_best_center();
}

void query(byte_reader& bytes, ox_polygon& polygon) {
    polygon.get_area();
    polygon.get_perimeter();
    polygon.contains(bytes.vector());
    polygon.is_convex(static_cast<int>(bytes.byte()) - 1);
    polygon.may_intersect(polygon.get_bounding_box());
}

void apply_next(byte_reader& bytes, ox_polygon& polygon, ox_polygon& other) {
    switch (bytes.byte() % 16) {
    case 0:
        polygon.unites(other);
        break;
    case 1:
        polygon.substracts(other);
        break;
    case 2:
        polygon.intersects(other);
        break;
    case 3:
        fuzz::offset(bytes, polygon);
        break;
    case 4:
        cut(bytes, polygon);
        break;
    case 5:
        delete_pieces(polygon.split_to_polygons(), polygon);
        break;
    case 6:
        polygon.reverse();
        break;
    case 7:
        polygon.set_normal(bytes.vector());
        break;
    case 8:
        polygon.set_point(bytes.vector());
        break;
    case 9:
        transform(bytes, polygon);
        break;
    case 10:
        query(bytes, polygon);
        break;
    case 11:
        find_center(polygon);
        break;
    case 12:
        polygon.clear();
        break;
    case 13:
        polygon = other;
        break;
    case 14:
        other.add_contour(bytes.contour());
        break;
    default:
        polygon.add_contour(bytes.contour());
        break;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    byte_reader bytes(data, size);
    ox_polygon polygon;
    ox_polygon other;
    for (int step = 0; step < 40 && bytes.has_more(); ++step) {
        apply_next(bytes, polygon, other);
    }
    polygon.get_area();
    other.get_area();
    return 0;
}
