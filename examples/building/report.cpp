#include <examples/building/report.h>

#include <examples/building/measures.h>
#include <examples/support/utf8.h>

#include <cstdio>

namespace building {

namespace {

void print_row(const std::string& name, const measures& m, double seconds) {
    std::printf("%s %7d %10d %12.3f %12.4f %9.3f\n", ox_examples::padded(name, 22).c_str(), m.faces,
                m.triangles, m.area, m.volume, seconds);
}

} // namespace

bool report(const std::string& name, std::vector<element>& elements) {
    measures total;
    double expected_volume = 0;
    double seconds = 0;
    bool sound = true;
    std::printf("%-22s %7s %10s %12s %12s %9s\n", "element", "faces", "triangles", "area", "volume",
                "seconds");
    for (element& e : elements) {
        const measures m = measure(e.solid);
        print_row(e.name, m, e.seconds);
        if (!is_sound(m, e.expected_volume)) {
            std::printf("  ^ off: the formulas give %.6f, the surface is open by %.6f\n",
                        e.expected_volume, m.gap);
            sound = false;
        }
        total += m;
        expected_volume += e.expected_volume;
        seconds += e.seconds;
    }
    print_row(name, total, seconds);
    std::printf("\nvolume of the triangles   %.6f\n", total.volume);
    std::printf("volume of the description %.6f\n", expected_volume);
    std::printf("ratio                     %.9f\n", total.volume / expected_volume);
    return sound && is_sound(total, expected_volume);
}

} // namespace building
