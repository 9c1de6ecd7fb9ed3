#include <algorithm>
#include <cmath>
#include <cstdarg>
#include <cstdio>

#include <ox/geometry/ox_box.h>
#include <tests/reference/load_sweep.h>

namespace reference {

namespace {

using contour = std::vector<ox::ox_2dvector>;

struct crossing {
    float x;
    std::size_t beam;
};

bool on_one_side(float a, float b, float y) {
    return (a < y && b < y) || (a > y && b > y);
}

/// The rule for an edge that lies on the line.
bool cross_along(const contour& v, std::size_t i, float y, float& x) {
    const std::size_t n = v.size();
    const float after = v[(i + 2) % n].y;
    if (after == y) {
        return false;
    }
    float earlier = v[i].y;
    std::size_t first = i;
    for (std::size_t back = 1; back < n; ++back) {
        const std::size_t k = (i + n - back) % n;
        if (v[k].y != y) {
            earlier = v[k].y;
            break;
        }
        first = k;
    }
    if (on_one_side(earlier, after, y) || earlier == y) {
        return false;
    }
    x = earlier < y ? v[first].x : v[(i + 1) % n].x;
    return true;
}

bool cross(const contour& v, std::size_t i, float y, float& x) {
    const std::size_t n = v.size();
    const ox::ox_2dvector a = v[i];
    const ox::ox_2dvector b = v[(i + 1) % n];
    if ((y >= a.y && y > b.y) || (a.y >= y && b.y > y)) {
        return false;
    }
    if (a.y == y) {
        return b.y == y && cross_along(v, i, y, x);
    }
    if (b.y == y) {
        x = b.x;
        const float after = v[(i + 2) % n].y;
        return after != y && !on_one_side(a.y, after, y);
    }
    const float t = (y - a.y) / (b.y - a.y);
    x = a.x + t * (b.x - a.x);
    return true;
}

const unsigned int palette[12] = {0xFF0000FF, 0xFF00FF00, 0xFFFF0000, 0xFFFFFF00,
                                  0xFFFF00FF, 0xFF00FFFF, 0xFFFFFF64, 0xFFFF64FF,
                                  0xFF6464FF, 0xFF6464FF, 0xFF64FF64, 0xFFFF6464};

void print(std::string& text, const char* format, ...) {
    char line[512];
    va_list values;
    va_start(values, format);
    std::vsnprintf(line, sizeof line, format, values);
    va_end(values);
    text += line;
}

double wide(float f) {
    return static_cast<double>(f);
}

} // namespace

std::vector<float> load_sweep::slab_crossings(float y) const {
    std::vector<float> found;
    for (const contour& c : contours) {
        for (std::size_t i = 0; i < c.size(); ++i) {
            float x = 0.f;
            if (cross(c, i, y, x)) {
                found.push_back(x);
            }
        }
    }
    std::stable_sort(found.begin(), found.end());
    return found;
}

void load_sweep::compute_weights(float asked_step) {
    ox::ox_box bounds;
    for (const contour& c : contours) {
        for (const ox::ox_2dvector& p : c) {
            bounds.enlarge(ox::ox_3dvector(p.x, p.y, 0.f));
        }
    }
    step = asked_step > 0.001f ? asked_step : 0.001f;
    min_x = bounds.origin.x;
    min_y = bounds.origin.y;
    const float far = std::max(std::fabs(min_y), std::fabs(min_y + bounds.size.y));
    const float spacing = std::nextafter(far, INFINITY) - far;
    if (2 * step <= spacing) {
        step = spacing; // half a spacing does not advance from an even mantissa
    }
    scale = 1.f / step;
    colors_used = 0;
    log.clear();
    for (plain_beam& beam : beams) {
        beam.weight = 0.f;
        beam.color = paint ? 0 : beam.color;
    }
    if (bounds.is_empty()) {
        return;
    }
    if (paint) {
        width = static_cast<int>(bounds.size.x / step) + 1;
        height = static_cast<int>(bounds.size.y / step) + 1;
        image.assign(static_cast<std::size_t>(width) * static_cast<std::size_t>(height),
                     0xFFFFFFFF);
    }
    float last = -INFINITY;
    for (float y = min_y; min_y + bounds.size.y > y && y != last; y = y + step) {
        share_line(y);
        last = y;
    }
}

void load_sweep::share_line(float y) {
    if (keep_log) {
        print(log, "### y = %f\n", wide(y));
    }
    const std::vector<float> spans = slab_crossings(y);
    if (spans.empty() || spans.size() % 2 == 1) {
        return;
    }
    for (std::size_t i = 0; keep_log && i < spans.size(); i += 2) {
        print(log, "slab : %f -> %f\n", wide(spans[i]), wide(spans[i + 1]));
    }
    std::vector<crossing> crossings;
    for (std::size_t k = 0; k < beams.size(); ++k) {
        const ox::ox_2dvector a = beams[k].start;
        const ox::ox_2dvector b = beams[k].end;
        if ((y >= a.y && y >= b.y) || (a.y >= y && b.y >= y)) {
            continue;
        }
        crossings.push_back({a.x + (b.x - a.x) * (y - a.y) / (b.y - a.y), k});
    }
    std::stable_sort(crossings.begin(), crossings.end(),
                     [](const crossing& a, const crossing& b) { return a.x < b.x; });
    for (std::size_t i = 0; keep_log && i < crossings.size(); ++i) {
        print(log, "beam %d : %f\n", static_cast<int>(crossings[i].beam), wide(crossings[i].x));
    }
    float left = spans[0];
    std::size_t s = 0;
    for (std::size_t i = 0; i < crossings.size(); ++i) {
        const crossing& c = crossings[i];
        if (left > c.x) {
            continue;
        }
        while (c.x > spans[2 * s + 1]) {
            ++s;
            if (2 * s == spans.size()) {
                return;
            }
            left = spans[2 * s];
        }
        float right = spans[2 * s + 1];
        if (i + 1 < crossings.size() && crossings[i + 1].x <= right) {
            right = (c.x + crossings[i + 1].x) / 2.f;
        }
        give(c.beam, y, c.x, left, right);
        left = right;
    }
}

void load_sweep::give(std::size_t k, float y, float x, float left, float right) {
    plain_beam& beam = beams[k];
    beam.weight += (right - left) * step;
    if (keep_log) {
        print(log, "beam contrib %d : %f -> %f : %f\n", static_cast<int>(k), wide(left),
              wide(right), wide((right - left) * step));
    }
    if (!paint) {
        return;
    }
    if (beam.color == 0) {
        beam.color = palette[colors_used % 12];
        ++colors_used;
    }
    unsigned int* const row = image.data() + static_cast<std::ptrdiff_t>(pixel(y, min_y, height)) *
                                                 static_cast<std::ptrdiff_t>(width);
    for (int c = pixel(left, min_x, width); c <= pixel(right, min_x, width); ++c) {
        row[c] = beam.color;
    }
    row[pixel(x, min_x, width)] = 0;
}

int load_sweep::pixel(float coordinate, float first, int count) const {
    const int place = static_cast<int>((coordinate - first) * scale + 0.5f);
    return std::max(0, std::min(place, count - 1));
}

} // namespace reference
