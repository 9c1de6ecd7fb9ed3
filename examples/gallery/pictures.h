#ifndef OX_EXAMPLES_GALLERY_PICTURES_H
#define OX_EXAMPLES_GALLERY_PICTURES_H

#include <string>

namespace gallery {

/// Where pictures go: folders that exist, of the manual's figures, of the gallery, and of a PNG
/// file of each diagram, for whoever wants to look at them without a browser (empty for none).
struct folders {
    std::string figures;
    std::string gallery;
    std::string previews;

    std::string preview(const std::string& name) const {
        return previews.empty() ? previews : previews + "/" + name;
    }
};

// The pictures of each source file.

void draw_polygon_ideas(const folders& to);
void draw_mesh_ideas(const folders& to);
void draw_plans(const folders& to, const std::string& lodge);
void draw_charts(const folders& to, const std::string& benchmarks);
void draw_views(const folders& to, const std::string& house, const std::string& lodge,
                const std::string& survey);

} // namespace gallery

#endif
