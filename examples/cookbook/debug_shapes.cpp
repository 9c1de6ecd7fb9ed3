// What an algorithm saw, kept as a tree of texts and shapes to be drawn later.
#include <ox/display/ox_debug.h>
#include <ox/polygon/ox_polygon.h>

#include <cstdio>

namespace {

void print(const ox::ox_debug& node, int depth) {
    std::printf("%*s%s: %s\n", 2 * depth, "", node.title.c_str(), node.text.c_str());
    for (const ox::ox_debug* child : node.children) {
        print(*child, depth + 1);
    }
}

} // namespace

int main() {
    ox::ox_polygon room;
    room.add_contour(
        ox::ox_make_list<ox::ox_3dvector>({{0, 0, 0}, {4, 0, 0}, {4, 3, 0}, {0, 3, 0}}));

    ox::ox_debug root;
    root.title = "room";
    root.text = std::to_string(room.get_contour_vertices().size()) + " vertices";

    ox::ox_debug* outline = new ox::ox_debug; // the root deletes it
    outline->title = "outline";
    const ox::ox_list<ox::ox_3dvector>& v = room.get_contour_vertices();
    for (int i = 0; i < v.size(); ++i) {
        outline->shapes.add_line(v[i], v[(i + 1) % v.size()], ox::ox_color("#2060c0"), 2);
    }
    outline->text = "drawn by shapes.draw_opengl(), where a context is current";
    root.children.push_right(outline);

    ox::ox_debug* center = new ox::ox_debug;
    center->title = "label";
    center->text = "a red point of 7 pixels";
    center->shapes.add_point(room.get_best_center(), ox::ox_color(1, 0, 0), 7);
    root.children.push_right(center);

    print(root, 0);
}
