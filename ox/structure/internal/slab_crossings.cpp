#include <ox/structure/internal/slab_crossings.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace ox::internal {

namespace {

/// One contour and one line, edge by edge.
class contour_line {
public:
    contour_line(const ox_list<ox_3dvector>& points, float line_y)
        : contour(points), n(points.size()), y(line_y) {}

    /// Finds the crossing that the edge from point i stands for; false for none.
    bool find_crossing(int i, float& x) const {
        const ox_3dvector& a = contour[i];
        const ox_3dvector& b = contour[next(i)];
        if ((y >= a.y && y > b.y) || (a.y >= y && b.y > y)) {
            return false;
        }
        if (a.y == y) {
            return b.y == y && find_crossing_along(i, x);
        }
        if (b.y == y) {
            x = b.x;
            return lies_across(a.y, contour[next(next(i))].y);
        }
        x = a.x + (y - a.y) / (b.y - a.y) * (b.x - a.x);
        return true;
    }

private:
    int next(int i) const { return i + 1 < n ? i + 1 : 0; }
    int previous(int i) const { return i > 0 ? i - 1 : n - 1; }

    bool lies_across(float before, float after) const {
        return (before < y && after > y) || (before > y && after < y);
    }

    /// The crossing of a run of points on the line whose last edge starts at i.
    bool find_crossing_along(int i, float& x) const {
        const int after = next(next(i));
        if (contour[after].y == y) {
            return false;
        }
        int first = i;
        int before = previous(i);
        for (int steps = 1; steps < n && contour[before].y == y; ++steps) {
            first = before;
            before = previous(before);
        }
        if (!lies_across(contour[before].y, contour[after].y)) {
            return false;
        }
        x = contour[before].y < y ? contour[first].x : contour[next(i)].x;
        return true;
    }

    const ox_list<ox_3dvector>& contour;
    int n;
    float y;
};

} // namespace

slab_crossings::slab_crossings(const ox_list<ox_list<ox_3dvector>>& contours) {
    for (const ox_list<ox_3dvector>& contour : contours) {
        for (int i = 0; i < contour.size(); ++i) {
            const float y = contour[i].y;
            const float next_y = contour[i + 1 < contour.size() ? i + 1 : 0].y;
            edges.push_back({&contour, i});
            window.add(std::min(y, next_y), std::max(y, next_y));
        }
    }
    window.sort();
}

const std::vector<float>& slab_crossings::find(float y) {
    std::size_t count = 0;
    std::vector<sweep_window::interval>& active = window.advance_to(y, y);
    for (sweep_window::interval& i : active) {
        const edge& e = edges[static_cast<std::size_t>(i.index)];
        const bool crossed = contour_line(*e.contour, y).find_crossing(e.start, i.at);
        count += crossed ? 1 : 0;
        if (!crossed || std::isnan(i.at)) {
            i.at = std::numeric_limits<float>::infinity(); // behind all crossings
        }
    }
    window.order_active();
    found.clear();
    for (std::size_t i = 0; i < count; ++i) {
        found.push_back(active[i].at);
    }
    return found;
}

} // namespace ox::internal
