#include <ox/structure/internal/slab_crossings.h>

namespace ox {

namespace {

/// One contour and one line, edge by edge.
class contour_line {
public:
    contour_line(const ox_list<ox_3dvector>& points, float line_y)
        : contour(points), n(points.size()), y(line_y) {}

    /// Finds the crossing that the edge from point i stands for; false for none.
    bool find_crossing(int i, float& x) const {
        const ox_3dvector& a = contour[i];
        const ox_3dvector& b = contour[(i + 1) % n];
        if ((y >= a.y && y > b.y) || (a.y >= y && b.y > y)) {
            return false;
        }
        if (a.y == y) {
            return b.y == y && find_crossing_along(i, x);
        }
        if (b.y == y) {
            x = b.x;
            return lies_across(a.y, contour[(i + 2) % n].y);
        }
        x = a.x + (y - a.y) / (b.y - a.y) * (b.x - a.x);
        return true;
    }

private:
    bool lies_across(float before, float after) const {
        return (before < y && after > y) || (before > y && after < y);
    }

    /// The crossing of a run of points on the line whose last edge starts at i.
    bool find_crossing_along(int i, float& x) const {
        const int after = (i + 2) % n;
        if (contour[after].y == y) {
            return false;
        }
        int first = i;
        int before = (i + n - 1) % n;
        for (int steps = 1; steps < n && contour[before].y == y; ++steps) {
            first = before;
            before = (before + n - 1) % n;
        }
        if (!lies_across(contour[before].y, contour[after].y)) {
            return false;
        }
        x = contour[before].y < y ? contour[first].x : contour[(i + 1) % n].x;
        return true;
    }

    const ox_list<ox_3dvector>& contour;
    int n;
    float y;
};

} // namespace

void append_crossings(const ox_list<ox_3dvector>& contour, float y, std::vector<float>& crossings) {
    const contour_line line(contour, y);
    for (int i = 0; i < contour.size(); ++i) {
        float x = 0.f;
        if (line.find_crossing(i, x)) {
            crossings.push_back(x);
        }
    }
}

} // namespace ox
