#include <ox/polygon/internal/clipping/contour_lists.h>

#include <utility>

namespace ox::internal {

contour_lists::contour_lists(std::size_t contour_count, std::size_t vertex_count)
    : orientations(static_cast<int>(contour_count)), parents(static_cast<int>(contour_count)),
      vertices(static_cast<int>(vertex_count)), sizes(static_cast<int>(contour_count)) {}

contour_lists::contour_lists(std::size_t vertex_count, ox_list<ox_3dvector>&& vertex_memory,
                             ox_list<unsigned int>&& size_memory)
    : orientations(1), parents(1), vertices(std::move(vertex_memory)),
      sizes(std::move(size_memory)) {
    vertices.set_size(static_cast<int>(vertex_count));
}

void contour_lists::begin_contour(std::size_t size, bool hole, int parent) {
    sizes[contours] = static_cast<unsigned int>(size);
    orientations[contours] = !hole;
    parents[contours] = parent;
    ++contours;
}

void contour_lists::append(const plane_frame& plane, const monotone_contour& contour, bool hole,
                           int parent) {
    const ClipperLib::IntPoint* corners = contour.corners();
    const std::size_t last = contour.corner_count() - 1;
    begin_contour(last + 1, hole, parent);
    for (std::size_t i = 0; i < last; ++i) {
        append(plane, corners[hole ? last - 1 - i : i]);
    }
    append(plane, corners[last]);
}

void contour_lists::move_to(ox_polygon_data& polygon) {
    polygon.contour_vertices = std::move(vertices);
    polygon.contour_sizes = std::move(sizes);
    polygon.contour_orientations = std::move(orientations);
    polygon.contour_parents = std::move(parents);
    polygon.forget_derived();
    polygon.drop_region_unless_finite();
}

} // namespace ox::internal
