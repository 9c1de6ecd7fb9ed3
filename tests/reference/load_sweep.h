#ifndef OX_TESTS_REFERENCE_LOAD_SWEEP_H
#define OX_TESTS_REFERENCE_LOAD_SWEEP_H

#include <string>
#include <vector>

#include <ox/geometry/ox_2dvector.h>

namespace reference {

struct plain_beam {
    ox::ox_2dvector start;
    ox::ox_2dvector end;
    unsigned int color = 0;
    float weight = 0.f; ///< the area collected
};

/// Plain version of `ox_loadshare::compute_weights`, in the slab's frame, for finite numbers: on
/// every line each edge and each beam is looked at.
struct load_sweep {
    std::vector<std::vector<ox::ox_2dvector>> contours;
    std::vector<plain_beam> beams;
    bool keep_log = false;
    std::string log;
    bool paint = false;
    int width = 0;
    int height = 0;
    std::vector<unsigned int> image;

    /// `step` is at least 0.001, and above half the spacing of the floats farthest out.
    void compute_weights(float step);

private:
    void share_line(float y);
    std::vector<float> slab_crossings(float y) const;
    void give(std::size_t beam, float y, float x, float left, float right);
    int pixel(float coordinate, float first, int count) const;

    float step = 0.f;
    float min_x = 0.f;
    float min_y = 0.f;
    float scale = 0.f;
    unsigned int colors_used = 0;
};

} // namespace reference

#endif
