// The sweep: on each line the stretches of slab, the beams that cross it, and their shares.

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <limits>
#include <ox/core/ox_log.h>
#include <ox/structure/internal/oxp_loadshare.h>
#include <ox/structure/internal/slab_crossings.h>
#include <ox/structure/ox_loadshare.h>
#include <vector>

namespace ox {

namespace {

/// Model units: keeps the number of lines finite.
constexpr float smallest_step = 0.001f;

struct beam_crossing {
    float x;
    int beam;
};

template <typename... values>
void log_line(const char* format, values... arguments) {
    char line[256];
    std::snprintf(line, sizeof line, format, arguments...);
    ox_log(line);
}

double printed(float number) {
    return static_cast<double>(number);
}

class sweep {
public:
    sweep(oxp_loadshare& loads, float line_step) : load(loads), step(line_step) {}

    void run() {
        const float first = load.bounds.origin.y;
        const float end = first + load.bounds.size.y;
        for (float y = first; end > y; y = y + step) {
            share_line(y);
        }
    }

private:
    void share_line(float y) {
        if (load.log) {
            log_line("### y = %f", printed(y));
        }
        find_spans(y);
        if (spans.empty()) {
            return;
        }
        find_beam_crossings(y);
        share(y);
    }

    /// Fills `spans` with the ends of the stretches of slab, two for each.
    void find_spans(float y) {
        spans.clear();
        for (const ox_list<ox_3dvector>& contour : load.contours) {
            append_crossings(contour, y, spans);
        }
        if (spans.size() % 2 != 0) {
            spans.clear();
        }
        std::sort(spans.begin(), spans.end(), precedes);
        for (std::size_t i = 0; load.log && i < spans.size(); i += 2) {
            log_line("slab : %f -> %f", printed(spans[i]), printed(spans[i + 1]));
        }
    }

    /// Ascending, with what overflowed to NaN at the end.
    static bool precedes(float a, float b) { return a < b || (std::isnan(b) && !std::isnan(a)); }

    void find_beam_crossings(float y) {
        crossings.clear();
        for (int k = 0; k < load.beams.size(); ++k) {
            const ox_3dvector& a = load.beams[k].start;
            const ox_3dvector& b = load.beams[k].end;
            if ((y >= a.y && y >= b.y) || (a.y >= y && b.y >= y)) {
                continue;
            }
            const float x = a.x + (b.x - a.x) * (y - a.y) / (b.y - a.y);
            if (std::isfinite(x)) {
                crossings.push_back(beam_crossing{x, k});
            }
        }
        std::stable_sort(crossings.begin(), crossings.end(),
                         [](const beam_crossing& a, const beam_crossing& b) { return a.x < b.x; });
        for (std::size_t i = 0; load.log && i < crossings.size(); ++i) {
            log_line("beam %d : %f", crossings[i].beam, printed(crossings[i].x));
        }
    }

    void share(float y) {
        std::size_t span = 0;
        float left = spans[0];
        for (std::size_t i = 0; i < crossings.size(); ++i) {
            const float x = crossings[i].x;
            if (left > x) {
                continue;
            }
            while (x > spans[span + 1]) {
                span += 2;
                if (span == spans.size()) {
                    return;
                }
                left = spans[span];
            }
            const float right = end_of_share(i, spans[span + 1]);
            give(crossings[i], y, left, right);
            left = right;
        }
    }

    /// Half-way to the next beam of the same stretch, or the end of the stretch.
    float end_of_share(std::size_t i, float end_of_span) const {
        if (i + 1 < crossings.size() && crossings[i + 1].x <= end_of_span) {
            return (crossings[i].x + crossings[i + 1].x) / 2.f;
        }
        return end_of_span;
    }

    void give(const beam_crossing& crossing, float y, float left, float right) {
        oxp_beam& beam = load.beams[crossing.beam];
        const float area = (right - left) * step;
        beam.weight += area;
        if (load.log) {
            log_line("beam contrib %d : %f -> %f : %f", crossing.beam, printed(left),
                     printed(right), printed(area));
        }
        if (load.image.exists()) {
            if (beam.color == 0) {
                beam.color = share_color(colors_used++);
            }
            load.image.paint(y, left, right, crossing.x, beam.color);
        }
    }

    oxp_loadshare& load;
    float step;
    unsigned int colors_used = 0;
    std::vector<float> spans;
    std::vector<beam_crossing> crossings;
};

/// The step between lines: at least the minimum, and enough to advance from either end of the slab.
float advancing_step(float asked, const ox_box& bounds) {
    const float step = asked > smallest_step ? asked : smallest_step;
    const float far =
        std::max(std::fabs(bounds.origin.y), std::fabs(bounds.origin.y + bounds.size.y));
    if (far + step > far && step - far > -far) {
        return step;
    }
    return std::nextafter(far, std::numeric_limits<float>::infinity()) - far;
}

bool is_finite(const ox_box& box) {
    return std::isfinite(box.origin.x + box.size.x) && std::isfinite(box.origin.y + box.size.y) &&
           std::isfinite(box.size.x) && std::isfinite(box.size.y);
}

} // namespace

void ox_loadshare::compute_weights(float step) {
    for (oxp_beam& beam : state->beams) {
        beam.weight = 0.f;
    }
    state->image.clear();
    if (state->bounds.is_empty() || !is_finite(state->bounds)) {
        return;
    }
    const float used_step = advancing_step(step, state->bounds);
    if (state->paint && state->image.start(state->bounds, used_step)) {
        for (oxp_beam& beam : state->beams) {
            beam.color = 0;
        }
    }
    sweep(*state, used_step).run();
}

} // namespace ox
