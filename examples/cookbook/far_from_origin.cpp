// A building in national coordinates, worked on near the origin.
#include <ox/solid/ox_csg.h>

#include <cmath>
#include <cstdio>

namespace {

struct survey_point {
    double x, y, z; // metres, national grid
};

double volume_of_block(const survey_point& corner, const survey_point& origin) {
    const auto local = [](double coordinate, double from) {
        return static_cast<float>(coordinate - from); // the difference in double, then rounded
    };
    ox::ox_solid block, niche;
    block.brick({local(corner.x, origin.x), local(corner.y, origin.y), local(corner.z, origin.z)},
                10.123f, 8.456f, 3.0f);
    niche.brick(
        {local(corner.x + 1.234, origin.x), local(corner.y, origin.y), local(corner.z, origin.z)},
        1.111f, 0.777f, 3.0f);
    ox::ox_csg csg;
    csg.unites(block);
    csg.substracts(niche);
    return csg.compute() ? csg.get_solid().get_volume() : 0; // 0: csg.get_problem(0) tells why
}

} // namespace

int main() {
    const survey_point corner = {652469.02, 6862035.26, 35.5};
    const survey_point site = {652000, 6862000, 0}; // a round point nearby, kept in double
    const survey_point nowhere = {0, 0, 0};
    const double exact = (10.123 * 8.456 - 1.111 * 0.777) * 3.0;

    std::printf("exact                     %.3f m3\n", exact);
    std::printf("about a point of the site %.3f m3\n", volume_of_block(corner, site));
    std::printf("in national coordinates   %.3f m3\n", volume_of_block(corner, nowhere));
    const float spacing = std::nextafter(6862035.0f, 1e9f) - 6862035.0f;
    std::printf("floats there are %.1f m apart\n", static_cast<double>(spacing));
}
