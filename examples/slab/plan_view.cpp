#include <examples/slab/plan_view.h>

#include <algorithm>

namespace slab {

namespace {

constexpr double margin = 40; // pixels

} // namespace

plan_view::plan_view(const plan_contour& outline, const ox_examples::pixel_point& top_left,
                     double width, double height)
    : picture_centre{top_left.x + width / 2, top_left.y + height / 2} {
    plan_point low = outline[0];
    plan_point high = outline[0];
    for (const plan_point& p : outline) {
        low = {std::min(low.x, p.x), std::min(low.y, p.y)};
        high = {std::max(high.x, p.x), std::max(high.y, p.y)};
    }
    plan_centre = {(low.x + high.x) / 2, (low.y + high.y) / 2};
    scale =
        std::min((width - 2 * margin) / (high.x - low.x), (height - 2 * margin) / (high.y - low.y));
}

ox_examples::pixel_point plan_view::place(const plan_point& p) const {
    return {picture_centre.x + (p.x - plan_centre.x) * scale,
            picture_centre.y - (p.y - plan_centre.y) * scale};
}

std::vector<ox_examples::pixel_point> plan_view::place(const plan_contour& contour) const {
    std::vector<ox_examples::pixel_point> result;
    for (const plan_point& p : contour) {
        result.push_back(place(p));
    }
    return result;
}

} // namespace slab
