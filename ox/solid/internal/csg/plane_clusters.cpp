#include <algorithm>
#include <cmath>
#include <numeric>

#include <ox/solid/internal/csg/scene.h>

namespace ox::internal::csg {

namespace {

/// Cosine between the normals of faces that may be of one plane: a small face that stands across a
/// plane lies within the tolerance of it too.
constexpr double parallel_cosine = 0.7;

/// Grows the clusters of a scene, the largest faces first.
class cluster_search {
public:
    cluster_search(scene& all, double reach);
    void run();

private:
    void grow_from(int first);
    bool belongs(const scene_face& face, const scene_face& first) const;

    scene& faces;
    double tolerance;
    std::vector<grid_box> boxes;
    box_tree tree;
};

std::vector<grid_box> grown_boxes(const scene& faces, double margin) {
    std::vector<grid_box> boxes;
    for (const scene_face& face : faces.faces) {
        boxes.push_back(box_of_face(faces, face));
        boxes.back().grow(margin);
    }
    return boxes;
}

cluster_search::cluster_search(scene& all, double reach)
    : faces(all), tolerance(reach), boxes(grown_boxes(all, reach)), tree(boxes) {
    for (scene_face& face : faces.faces) {
        face.cluster = -1;
    }
}

void cluster_search::run() {
    std::vector<int> order(faces.faces.size());
    std::iota(order.begin(), order.end(), 0);
    const auto area = [this](int i) { return faces.faces[static_cast<std::size_t>(i)].plane.area; };
    std::stable_sort(order.begin(), order.end(),
                     [&area](int a, int b) { return area(a) > area(b); });
    for (const int first : order) {
        if (faces.faces[static_cast<std::size_t>(first)].cluster < 0) {
            grow_from(first);
        }
    }
}

bool cluster_search::belongs(const scene_face& face, const scene_face& first) const {
    return std::fabs(dot(face.plane.normal, first.plane.normal)) > parallel_cosine &&
           face.unevenness <= tolerance &&
           deviation_from(first.plane, faces.points, face.boundary) <= tolerance;
}

void cluster_search::grow_from(int first) {
    scene_face& beginning = faces.faces[static_cast<std::size_t>(first)];
    beginning.cluster = first;
    if (beginning.unevenness > tolerance || beginning.plane.area == 0.0) {
        return;
    }
    std::vector<int> members = {first};
    for (std::size_t i = 0; i < members.size(); ++i) {
        tree.visit_meeting(boxes[static_cast<std::size_t>(members[i])], [&](int index) {
            scene_face& face = faces.faces[static_cast<std::size_t>(index)];
            if (face.cluster < 0 && belongs(face, beginning)) {
                face.cluster = first;
                members.push_back(index);
            }
        });
    }
}

} // namespace

void cluster_planes(scene& faces, const working_grid& grid) {
    cluster_search(faces, std::max(grid.get_tolerance(), 1.0)).run();
}

} // namespace ox::internal::csg
