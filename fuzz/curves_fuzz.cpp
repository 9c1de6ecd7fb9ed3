// Evaluates Bezier curves, B-splines and cubic splines of any points and parameters.

#include <fuzz/byte_reader.h>
#include <fuzz/require.h>
#include <ox/geometry/ox_bezier.h>
#include <ox/geometry/ox_bspline.h>
#include <ox/geometry/ox_cubic_spline.h>

namespace {

using fuzz::byte_reader;

void interpolate(byte_reader& bytes) {
    ox::ox_list<ox::ox_2dvector> points;
    float x = bytes.coordinate();
    for (int i = bytes.below(40); i > 0; --i) {
        const int step = bytes.byte();
        x = step < 240 ? x + static_cast<float>(step) * 0.125f : bytes.coordinate();
        points.push_right(ox::ox_2dvector(x, bytes.coordinate()));
    }
    ox::ox_cubic_spline spline(points);
    for (int i = 0; i < 4; ++i) {
        spline.compute(bytes.coordinate());
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    byte_reader bytes(data, size);
    ox::ox_bezier bezier(static_cast<int>(bytes.byte()) - 1);
    bezier.compute(bytes.coordinate() * 0.03125f);
    const int degree = bytes.below(12) - 1;
    const int intervals = static_cast<int>(bytes.byte()) - 1;
    ox::ox_bspline spline(degree, intervals);
    const float* const weights = spline.compute(bytes.coordinate() * 0.03125f);
    fuzz::require(degree < 0 || degree >= intervals || weights != nullptr);
    interpolate(bytes);
    return 0;
}
