// Life of a polygon: construction, copying, clearing and the count of living polygons.

#include <atomic>
#include <memory>
#include <utility>

#include <ox/internal/polygon_access.h>
#include <ox/polygon/internal/ox_polygon_data.h>
#include <ox/polygon/ox_polygon.h>

namespace ox {
namespace {

/// Polygons are made by all threads that cut solids of their own.
std::atomic<int> living_polygons{0};

} // namespace

ox_polygon_data* ox_polygon_data::copy() {
    compute_contours();
    std::unique_ptr<ox_polygon_data> made(new ox_polygon_data(*this));
    made->counted = true;
    made->bounding_box.clear();
    if (!tesselation_computed) {
        made->tesselation_vertices.clear();
        made->tesselation_triangles.clear();
    }
    return made.release();
}

void ox_polygon_data::tell_change() noexcept {
    watch.tell();
    containment.forget();
}

void ox_polygon_data::clear() {
    tell_change();
    pending_vertices.clear();
    pending_sizes.clear();
    clear_contours();
    tesselation_vertices.clear();
    tesselation_triangles.clear();
    area = 0.0f;
    bounding_box.clear();
    plane_defined = false;
    contours_computed = true;
    tesselation_computed = true;
}

ox_polygon::ox_polygon() : data(new ox_polygon_data) {
    ++living_polygons;
}

ox_polygon::ox_polygon(const ox_3dvector& point, const ox_3dvector& normal) : ox_polygon() {
    data->set_plane(point, normal);
}

ox_polygon::ox_polygon(const ox_polygon& source) : data(source.data->copy()) {
    ++living_polygons;
}

ox_polygon& ox_polygon::operator=(const ox_polygon& source) {
    if (this != &source) {
        ox_polygon_data* copied = source.data->copy();
        copied->counted = data->counted;
        delete data;
        data = copied;
    }
    return *this;
}

ox_polygon::ox_polygon(ox_polygon&& source) : ox_polygon() {
    swap(source);
}

ox_polygon& ox_polygon::operator=(ox_polygon&& source) noexcept {
    swap(source);
    return *this;
}

void ox_polygon::swap(ox_polygon& other) noexcept {
    data->watch.tell();
    other.data->watch.tell();
    std::swap(data, other.data);
}

ox_polygon::~ox_polygon() {
    if (data->counted) {
        --living_polygons;
    }
    delete data;
}

void ox_polygon::clear() {
    data->clear();
}

int ox_polygon::get_instanced() {
    return living_polygons;
}

double ox_polygon::get_compute_contour_time() {
    return 0.0;
}

namespace internal {

void polygon_access::set_counted(ox_polygon& polygon, bool counted) noexcept {
    if (polygon.data->counted != counted) {
        polygon.data->counted = counted;
        living_polygons += counted ? 1 : -1;
    }
}

void polygon_access::watch(ox_polygon& polygon, bool* changed) noexcept {
    polygon.data->watch.set(changed);
}

void polygon_access::forget_best_center(ox_polygon& polygon) noexcept {
    polygon.data->best_center_computed = false;
    polygon.data->best_center = ox_3dvector();
}

} // namespace internal

} // namespace ox
