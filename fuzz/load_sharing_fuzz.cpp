// Shares the load of slabs of any outline among beams that lie anyhow, and compares the loads with
// those of a sweep that looks at each edge and each beam on every line.

#include <algorithm>
#include <cmath>

#include <fuzz/byte_reader.h>
#include <fuzz/require.h>
#include <ox/core/ox_log.h>
#include <ox/geometry/ox_box.h>
#include <ox/structure/ox_loadshare.h>
#include <tests/reference/load_sweep.h>

namespace {

using fuzz::byte_reader;
using ox::ox_2dvector;
using ox::ox_3dvector;
using ox::ox_loadshare;

/// Coordinates of at most this magnitude leave the plain sweep's lines apart.
constexpr float farthest = 100.0f;

/// A slab and its plain twin, in the frame of the world's axes.
struct twins {
    ox_loadshare slab;
    reference::load_sweep plain;
    ox::ox_box bounds;
    bool are_comparable = true;

    ox_2dvector seen(const ox_3dvector& p) {
        are_comparable = are_comparable && std::fabs(p.x) < farthest && std::fabs(p.y) < farthest &&
                         std::fabs(p.z) < farthest;
        return ox_2dvector(p.x, p.y);
    }

    void add_contour(const ox::ox_list<ox_3dvector>& contour) {
        std::vector<ox_2dvector> points;
        for (const ox_3dvector& p : contour) {
            bounds.enlarge(p);
            points.push_back(seen(p));
        }
        slab.add_slab_contour(contour);
        if (!points.empty()) {
            plain.contours.push_back(points);
        }
    }

    void add_beam(const ox_3dvector& start, const ox_3dvector& end) {
        fuzz::require(slab.add_beam(start, end) == static_cast<int>(plain.beams.size()));
        plain.beams.push_back(reference::plain_beam{seen(start), seen(end)});
    }

    void require_same_loads(float step) {
        plain.compute_weights(step);
        for (std::size_t i = 0; i < plain.beams.size(); ++i) {
            fuzz::require(slab.get_weight(static_cast<int>(i)) == plain.beams[i].weight);
        }
    }
};

void compute(byte_reader& bytes, twins& both) {
    const float extent = both.bounds.size.size();
    const float step = std::max({bytes.coordinate(), extent / 300.0f, 0.01f});
    if (extent < 1e6f * step) {
        both.slab.set_image_log(extent < 1e3f * step);
        both.slab.compute_weights(step);
        if (both.are_comparable) {
            both.require_same_loads(step);
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    ox_log_set(false);
    byte_reader bytes(data, size);
    twins both;
    if (bytes.below(4) == 0) {
        const ox_3dvector normal = bytes.vector();
        both.slab.set_slab_geometry(normal, bytes.vector());
        both.are_comparable = false;
    }
    for (int contours = bytes.below(4); contours > 0; --contours) {
        both.add_contour(bytes.contour());
    }
    const int beams = bytes.below(8);
    for (int i = 0; i < beams; ++i) {
        const ox_3dvector start = bytes.vector();
        both.add_beam(start, bytes.vector());
    }
    compute(bytes, both);
    fuzz::require(both.slab.get_weight(beams) == -1.0f);
    return 0;
}
