// The sweep: on each line the stretches of slab, the beams that cross it, and their shares.

#include <ox/structure/ox_loadshare.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include <ox/internal/log_line.h>
#include <ox/internal/sweep_window.h>
#include <ox/structure/internal/ox_loadshare_state.h>
#include <ox/structure/internal/slab_crossings.h>
#include <ox/structure/internal/tolerances.h>

namespace ox {

using namespace internal;

namespace {

constexpr float infinity = std::numeric_limits<float>::infinity();

using beam_crossing = sweep_window::interval;
using beam_crossings = std::vector<beam_crossing>;

/// A beam: its first end, and the way from there to the other.
struct beam_line {
    float x;
    float y;
    float width;
    float height;
    float weight; ///< what the beam collected
};

float next_above(float y) {
    return std::nextafter(y, infinity);
}

float next_below(float y) {
    return std::nextafter(y, -infinity);
}

double printed(float number) {
    return static_cast<double>(number);
}

class sweep {
public:
    sweep(ox_loadshare_state& loads, float line_step)
        : load(loads), step(line_step), painted(loads.image.exists()), outline(loads.contours) {
        for (const oxp_beam& beam : load.beams) {
            const ox_3dvector along = beam.end - beam.start;
            lines.push_back({beam.start.x, beam.start.y, along.x, along.y, 0.0f});
            const auto ends = std::minmax(beam.start.y, beam.end.y);
            beams.add(next_above(ends.first), next_below(ends.second));
        }
        beams.sort();
    }

    void run() {
        const float first = load.bounds.origin.y;
        const float end = first + load.bounds.size.y;
        float last = -infinity;
        for (float y = first; y < end && y > last; y = y + step) {
            share_line(y);
            last = y;
        }
        for (int k = 0; k < load.beams.size(); ++k) {
            load.beams[k].weight = lines[static_cast<std::size_t>(k)].weight;
        }
    }

private:
    void share_line(float y) {
        if (load.log) {
            log_line("### y = %f", printed(y));
        }
        const std::vector<float>& spans = outline.find(y); // two ends of each stretch of slab
        if (spans.empty() || spans.size() % 2 != 0) {
            return;
        }
        for (std::size_t i = 0; load.log && i < spans.size(); i += 2) {
            log_line("slab : %f -> %f", printed(spans[i]), printed(spans[i + 1]));
        }
        share(y, spans, find_beam_crossings(y));
    }

    /// The beams that cross the line, by ascending x. One whose crossing overflows comes last, at
    /// infinity, where it meets no slab.
    const beam_crossings& find_beam_crossings(float y) {
        beam_crossings& crossings = beams.advance_to(y, y);
        for (beam_crossing& crossing : crossings) {
            const beam_line& b = lines[static_cast<std::size_t>(crossing.index)];
            const float x = b.x + b.width * (y - b.y) / b.height;
            crossing.at = std::isfinite(x) ? x : infinity;
        }
        beams.order_active();
        for (std::size_t i = 0; load.log && i < crossings.size(); ++i) {
            if (crossings[i].at < infinity) {
                log_line("beam %d : %f", crossings[i].index, printed(crossings[i].at));
            }
        }
        return crossings;
    }

    void share(float y, const std::vector<float>& spans, const beam_crossings& crossings) {
        std::size_t span = 0;
        float left = spans[0];
        for (std::size_t i = 0; i < crossings.size(); ++i) {
            const float x = crossings[i].at;
            if (left > x) {
                continue;
            }
            while (x > spans[span + 1]) {
                leave(left, spans[span + 1]);
                span += 2;
                if (span == spans.size()) {
                    return;
                }
                left = spans[span];
            }
            const float next_x = i + 1 < crossings.size() ? crossings[i + 1].at : infinity;
            const float right = next_x <= spans[span + 1] ? (x + next_x) / 2.0f : spans[span + 1];
            give(crossings[i], y, left, right);
            left = right;
        }
        leave(left, spans[span + 1]);
        for (span += 2; span < spans.size(); span += 2) {
            leave(spans[span], spans[span + 1]);
        }
    }

    /// Counts a stretch that no beam takes.
    void leave(float left, float right) {
        load.uncarried_area +=
            (static_cast<double>(right) - static_cast<double>(left)) * static_cast<double>(step);
    }

    void give(const beam_crossing& crossing, float y, float left, float right) {
        const float area = (right - left) * step;
        lines[static_cast<std::size_t>(crossing.index)].weight += area;
        if (load.log) {
            log_line("beam contrib %d : %f -> %f : %f", crossing.index, printed(left),
                     printed(right), printed(area));
        }
        if (painted) {
            oxp_beam& beam = load.beams[crossing.index];
            if (beam.color == 0) {
                beam.color = share_color(colors_used++);
            }
            load.image.paint(y, left, right, crossing.at, beam.color);
        }
    }

    ox_loadshare_state& load;
    float step;
    bool painted; ///< there is an image
    unsigned int colors_used = 0;
    slab_crossings outline;
    std::vector<beam_line> lines; ///< of the beams
    sweep_window beams;           ///< between their ends: a line through an end does not cross
};

/// The step between lines: at least the minimum, and enough to advance from any line of the slab.
/// Half the spacing of the floats is too little: sums halfway between two floats go to the one with
/// an even mantissa, so such a step stands still on every other float.
float advancing_step(float asked, const ox_box& bounds) {
    const float step = asked > smallest_sweep_step ? asked : smallest_sweep_step;
    const float far =
        std::max(std::fabs(bounds.origin.y), std::fabs(bounds.origin.y + bounds.size.y));
    const float spacing = next_above(far) - far;
    return step > spacing / 2.0f ? step : spacing;
}

bool is_finite(const ox_box& box) {
    return std::isfinite(box.origin.x + box.size.x) && std::isfinite(box.origin.y + box.size.y) &&
           std::isfinite(box.size.x) && std::isfinite(box.size.y);
}

} // namespace

void ox_loadshare::compute_weights(float step) {
    for (oxp_beam& beam : state->beams) {
        beam.weight = 0.0f;
    }
    state->uncarried_area = 0.0;
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
