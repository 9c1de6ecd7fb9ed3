// Floor plans: a house cut at two heights, each section drawn into an SVG file.
#include <ox/polygon/ox_polygon_pieces.h>
#include <ox/solid/ox_csg.h>

#include <cstdio>

namespace {

/// One path for each piece of the section, at 50 pixels a metre; holes are left out by even-odd.
void write_svg(const char* path, const ox::ox_polygon_pieces& pieces) {
    std::FILE* file = std::fopen(path, "w");
    std::fprintf(file, "<svg xmlns='http://www.w3.org/2000/svg' viewBox='-25 -25 450 350'>\n");
    for (ox::ox_polygon* piece : pieces) {
        std::fprintf(file, "<path fill-rule='evenodd' fill='#444' d='");
        int vertex = 0;
        for (const unsigned int size : piece->get_contour_sizes()) {
            for (unsigned int i = 0; i < size; ++i, ++vertex) {
                const ox::ox_3dvector& v = piece->get_contour_vertices()[vertex];
                std::fprintf(file, "%c%.1f %.1f", i == 0 ? 'M' : 'L', static_cast<double>(50 * v.x),
                             static_cast<double>(300 - 50 * v.y));
            }
            std::fprintf(file, "Z");
        }
        std::fprintf(file, "'/>\n");
    }
    std::fprintf(file, "</svg>\n");
    std::fclose(file);
}

} // namespace

int main() {
    ox::ox_solid block, rooms, door;
    block.brick(ox::ox_3dvector(0, 0, 0), 8.0f, 6.0f, 2.8f);
    rooms.brick(ox::ox_3dvector(0.3f, 0.3f, 0.2f), 7.4f, 5.4f, 2.4f);
    door.brick(ox::ox_3dvector(3.5f, 0, 0.2f), 1.0f, 0.3f, 2.0f);
    ox::ox_csg csg;
    csg.unites(block);
    csg.substracts(rooms);
    csg.substracts(door);
    csg.compute();
    ox::ox_solid house = csg.get_solid();
    const ox::ox_polygon nothing; // no polygon of its own is among the pieces
    for (const float height : {1.2f, 2.4f}) {
        const ox::ox_polygon_pieces pieces(
            nothing,
            house.intersect_by_plane(ox::ox_3dvector(0, 0, height), ox::ox_3dvector(0, 0, 1)));
        double area = 0;
        for (ox::ox_polygon* piece : pieces) {
            area += static_cast<double>(piece->get_area());
        }
        std::printf("at %.1f m: %.2f m2 in %d pieces\n", static_cast<double>(height), area,
                    pieces.size());
        write_svg(height < 2 ? "plan_low.svg" : "plan_high.svg", pieces);
    }
}
