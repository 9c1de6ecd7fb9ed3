#include <examples/slab/sharing.h>

#include <examples/slab/shapes.h>

#include <ox/structure/ox_loadshare.h>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <stdexcept>

namespace slab {

namespace {

/// Lines across the longer side of the slab. Each line may miss its share by one step, so loads are
/// exact to about a thousandth.
constexpr double nb_lines = 1500;

/// Metres. The sweep takes no smaller step.
constexpr double smallest_step = 0.001;

constexpr unsigned int white = 0xFFFFFFFFu;

double dot(const plan_point& a, const plan_point& b) {
    return a.x * b.x + a.y * b.y;
}

double step_for(const description& d) {
    ox::ox_polygon shape = polygon_of(d);
    const ox::ox_3dvector size = shape.get_bounding_box().size;
    return std::max(smallest_step, double{std::max(size.x, size.y)} / nb_lines);
}

/// An empty picture in the frame of a span of the slab.
share_map frame_of(const description& d, const span& s, double step) {
    share_map map;
    const double length = std::hypot(s.direction.x, s.direction.y);
    map.along = {s.direction.x / length, s.direction.y / length};
    map.across = {-map.along.y, map.along.x};
    map.left = dot(d.outline.points[0], map.along);
    map.bottom = dot(d.outline.points[0], map.across);
    for (const plan_point& p : d.outline.points) {
        map.left = std::min(map.left, dot(p, map.along));
        map.bottom = std::min(map.bottom, dot(p, map.across));
    }
    map.step = step;
    return map;
}

void take_picture(ox::ox_loadshare& shares, share_map& map) {
    const unsigned int* const pixels = shares.get_image_log(map.width, map.height);
    if (pixels == nullptr) {
        throw std::runtime_error("no memory for the picture of the shares");
    }
    const auto nb_pixels = static_cast<std::ptrdiff_t>(map.width) * map.height;
    map.pixels.assign(pixels, pixels + nb_pixels);
}

span_loads share_out(const description& d, const span& s, double step) {
    ox::ox_loadshare shares;
    shares.set_slab_geometry(ox::ox_3dvector(0, 0, 1), flat(s.direction));
    shares.set_slab_weight(static_cast<float>(d.weight * s.share));
    shares.add_slab_contour(flat(d.outline.points));
    for (const contour& hole : d.holes) {
        shares.add_slab_contour(flat(hole.points));
    }
    for (const beam& b : d.beams) {
        shares.add_beam(flat(b.from), flat(b.to));
    }
    shares.set_image_log(true);
    shares.compute_weights(static_cast<float>(step));

    span_loads result;
    result.map = frame_of(d, s, step);
    take_picture(shares, result.map);
    for (int i = 0; i < static_cast<int>(d.beams.size()); ++i) {
        result.loads.push_back(double{shares.get_weight(i)});
    }
    return result;
}

} // namespace

unsigned int share_map::colour_at(const plan_point& p) const {
    const double column = std::round((dot(p, along) - left) / step);
    const double row = std::round((dot(p, across) - bottom) / step);
    if (!(column >= 0 && column < width && row >= 0 && row < height)) {
        return white;
    }
    return pixels[static_cast<std::size_t>(row) * static_cast<std::size_t>(width) +
                  static_cast<std::size_t>(column)];
}

double sharing::total() const {
    return std::accumulate(loads.begin(), loads.end(), 0.0);
}

sharing share_out(const description& d) {
    const double step = step_for(d);
    sharing result;
    result.area = double{polygon_of(d).get_area()};
    result.loads.assign(d.beams.size(), 0.0);
    for (const span& s : d.spans) {
        result.spans.push_back(share_out(d, s, step));
        for (std::size_t i = 0; i < d.beams.size(); ++i) {
            result.loads[i] += result.spans.back().loads[i];
        }
    }
    return result;
}

} // namespace slab
