#ifndef OX_TESTS_SUPPORT_PRINTING_H
#define OX_TESTS_SUPPORT_PRINTING_H

#include <iomanip>
#include <sstream>
#include <string>

#include <ox/polygon/ox_polygon.h>
#include <ox/solid/ox_solid.h>

namespace support {

/// Writes coordinates with all their digits, so that a failure can be typed in again.
inline std::string to_text(const ox::ox_3dvector& v) {
    std::ostringstream text;
    text << std::setprecision(9) << '(' << v.x << ", " << v.y << ", " << v.z << ')';
    return text.str();
}

/// One line per contour: outer boundary or hole, its parent, its points.
inline std::string to_text(ox::ox_polygon& polygon) {
    const ox::ox_list<ox::ox_3dvector>& vertices = polygon.get_contour_vertices();
    const ox::ox_list<unsigned int>& sizes = polygon.get_contour_sizes();
    std::ostringstream text;
    text << "plane " << to_text(polygon.get_point()) << ' ' << to_text(polygon.get_normal())
         << '\n';
    int next = 0;
    for (int c = 0; c < sizes.size(); ++c) {
        text << (polygon.get_contour_orientations()[c] ? "  outer" : "  hole") << " of "
             << polygon.get_contour_parents()[c] << ':';
        for (unsigned int i = 0; i < sizes[c]; ++i) {
            text << ' ' << to_text(vertices[next++]);
        }
        text << '\n';
    }
    return text.str();
}

/// The faces of a solid, one after the other.
inline std::string to_text(ox::ox_solid& solid) {
    std::string text;
    const ox::ox_list<ox::ox_polygon*>& faces = solid.get_faces();
    for (int f = 0; f < faces.size(); ++f) {
        text += to_text(*faces[f]);
    }
    return text;
}

} // namespace support

#endif
