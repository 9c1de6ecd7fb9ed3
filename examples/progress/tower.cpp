#include <examples/progress/tower.h>

namespace progress_example {

namespace {

/// Metres, but for the number of bays.
constexpr int nb_bays = 6; // along each side
constexpr float bay = 6.0f;
constexpr float joint = 0.02f;
constexpr float storey_height = 3.0f;
constexpr float facade_thickness = 0.3f;
constexpr float inner_thickness = 0.2f;
constexpr float side = static_cast<float>(nb_bays) * bay;

/// How far a cutting block sticks out of the panel on both sides.
constexpr float reach = 0.25f;

constexpr int nb_window_rows = 3;

/// Where the tower stands, in all three coordinates: off the round numbers, at which the welder's
/// cells meet. It keeps corners apart that rounding has put on either side of such a place.
constexpr float site = 0.1137f;

enum class direction { east, north };

/// A panel of one bay from `corner`.
panel plain_panel(const ox::ox_3dvector& corner, direction along, float thickness) {
    const float length = bay - joint;
    const float height = storey_height - joint;
    const ox::ox_3dvector size = along == direction::east
                                     ? ox::ox_3dvector(length, thickness, height)
                                     : ox::ox_3dvector(thickness, length, height);
    return {{corner + ox::ox_3dvector(site, site, site), size}, {}};
}

/// Adds an opening `at` metres along the panel and `sill` metres above its lower edge.
void add_opening(panel& p, direction along, float at, float sill, float width, float height) {
    const ox::ox_3dvector& corner = p.plate.origin;
    if (along == direction::east) {
        p.openings.push_back({{corner.x + at, corner.y - reach, corner.z + sill},
                              {width, p.plate.size.y + 2.0f * reach, height}});
    } else {
        p.openings.push_back({{corner.x - reach, corner.y + at, corner.z + sill},
                              {p.plate.size.x + 2.0f * reach, width, height}});
    }
}

/// The windows of a façade stand in rows and columns that step aside more and more: of three
/// corners in one line the tessellation makes triangles without area, which can leave the mesh
/// open.
panel facade_panel(const ox::ox_3dvector& corner, direction along, int nb_columns) {
    panel p = plain_panel(corner, along, facade_thickness);
    const float spacing = bay / static_cast<float>(nb_columns);
    for (int row = 0; row < nb_window_rows; ++row) {
        for (int column = 0; column < nb_columns; ++column) {
            const float aside = 0.03f * static_cast<float>(row * row);
            const float above = 0.008f * static_cast<float>(column * column);
            const float at = (static_cast<float>(column) + 0.3f) * spacing + aside;
            const float sill = 0.3f + 0.85f * static_cast<float>(row) + above;
            add_opening(p, along, at, sill, 0.4f * spacing, 0.6f);
        }
    }
    return p;
}

panel inner_panel(const ox::ox_3dvector& corner) {
    panel p = plain_panel(corner, direction::north, inner_thickness);
    add_opening(p, direction::north, 1.0f, -reach, 1.0f, 2.1f + reach);
    return p;
}

/// The four façades of a storey in one bay each way.
void add_facades(std::vector<panel>& panels, int storey, int place) {
    const float z = static_cast<float>(storey) * storey_height;
    const float across = static_cast<float>(place) * bay;
    const float inside = facade_thickness + joint; // between the outer faces of two façades
    const int nb_columns = 3 + (storey + place) % 4;
    panels.push_back(facade_panel({across, 0, z}, direction::east, nb_columns));
    panels.push_back(facade_panel({across, inside + side, z}, direction::east, nb_columns));
    panels.push_back(facade_panel({0, inside + across, z}, direction::north, nb_columns));
    panels.push_back(
        facade_panel({side - inside, inside + across, z}, direction::north, nb_columns));
}

void add_inner_walls(std::vector<panel>& panels, int storey, int place) {
    const float z = static_cast<float>(storey) * storey_height;
    const float y = facade_thickness + joint + static_cast<float>(place) * bay;
    for (int axis = 1; axis < nb_bays; ++axis) {
        panels.push_back(inner_panel({static_cast<float>(axis) * bay, y, z}));
    }
}

ox::ox_solid solid_of(const block& b) {
    ox::ox_solid solid;
    solid.brick(b.origin, b.size.x, b.size.y, b.size.z);
    return solid;
}

} // namespace

std::vector<panel> plan_tower(int nb_storeys) {
    std::vector<panel> panels;
    for (int storey = 0; storey < nb_storeys; ++storey) {
        for (int place = 0; place < nb_bays; ++place) {
            add_facades(panels, storey, place);
            add_inner_walls(panels, storey, place);
        }
    }
    return panels;
}

ox::ox_solid cut_panel(const panel& p) {
    ox::ox_solid solid = solid_of(p.plate);
    for (const block& opening : p.openings) {
        ox::ox_solid cutter = solid_of(opening);
        solid.substracts(cutter);
    }
    return solid;
}

} // namespace progress_example
