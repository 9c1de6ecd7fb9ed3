#include <algorithm>
#include <cmath>
#include <numeric>
#include <vector>

#include <ox/solid/internal/csg/plane_growth.h>
#include <ox/solid/internal/csg/scene.h>

namespace ox::internal::csg {

namespace {

/// Cosine between the normals of faces that may be of one plane: a small face that stands across a
/// plane lies within the tolerance of it too.
constexpr double parallel_cosine = 0.7;

/// Faces between two reports.
constexpr std::size_t report_interval = 256;

/// Grows the clusters of a scene, the largest faces first.
class cluster_search {
public:
    cluster_search(scene& all, double reach);
    bool run(const progress_report& report);

private:
    plane_candidates make_candidates();
    void grow_from(int first);
    double allowed_deviation(int face, const std::array<double, 3>& normal) const;
    scene_face& at(int face) const { return faces.faces[static_cast<std::size_t>(face)]; }

    scene& faces;
    double tolerance;
    std::vector<grid_box> boxes;
    box_tree tree;
    int beginning = -1; ///< the first face of the cluster that grows
    plane_growth growth;
};

std::vector<grid_box> grown_boxes(const scene& faces, double margin) {
    std::vector<grid_box> boxes;
    boxes.reserve(faces.faces.size());
    for (const scene_face& face : faces.faces) {
        boxes.push_back(box_of_face(faces, face));
        boxes.back().grow(margin);
    }
    return boxes;
}

cluster_search::cluster_search(scene& all, double reach)
    : faces(all), tolerance(reach), boxes(grown_boxes(all, reach)), tree(boxes),
      growth(make_candidates(), reach) {
    for (scene_face& face : faces.faces) {
        face.cluster = -1;
    }
}

/// False where `report` ended the work.
bool cluster_search::run(const progress_report& report) {
    std::vector<int> order(faces.faces.size());
    std::iota(order.begin(), order.end(), 0);
    const auto area = [this](int i) { return faces.faces[static_cast<std::size_t>(i)].plane.area; };
    std::stable_sort(order.begin(), order.end(),
                     [&area](int a, int b) { return area(a) > area(b); });
    for (std::size_t i = 0; i < order.size(); ++i) {
        if (at(order[i]).cluster < 0) {
            grow_from(order[i]);
        }
        if (i % report_interval == 0 &&
            !report(static_cast<double>(i) / static_cast<double>(order.size()))) {
            return false;
        }
    }
    return true;
}

double cluster_search::allowed_deviation(int face, const std::array<double, 3>& normal) const {
    const bool is_parallel = std::fabs(dot(at(face).plane.normal, normal)) > parallel_cosine;
    return is_parallel && at(face).unevenness <= tolerance ? tolerance : -1.0;
}

plane_candidates cluster_search::make_candidates() {
    plane_candidates candidates;
    candidates.points = &faces.points;
    candidates.boundary_of = [this](int face) -> const face_boundary& { return at(face).boundary; };
    candidates.find_neighbours = [this](int face, std::vector<int>& found) {
        tree.visit_meeting(boxes[static_cast<std::size_t>(face)], [&](int other) {
            if (at(other).cluster < 0) {
                found.push_back(other);
            }
        });
    };
    candidates.allowed_deviation = [this](int face, const std::array<double, 3>& normal) {
        return at(face).cluster < 0 ? allowed_deviation(face, normal) : -1.0;
    };
    candidates.is_reversed = [this](int face, const std::array<double, 3>& normal) {
        return dot(at(face).plane.normal, normal) < 0.0;
    };
    candidates.join = [this](int face) { at(face).cluster = beginning; };
    return candidates;
}

void cluster_search::grow_from(int first) {
    at(first).cluster = first;
    if (at(first).unevenness <= tolerance && at(first).plane.area != 0.0) {
        beginning = first;
        growth.collect(first, at(first).plane);
    }
}

} // namespace

bool cluster_planes(scene& faces, const working_grid& grid, const progress_report& report) {
    return cluster_search(faces, std::max(grid.get_tolerance(), 1.0)).run(report);
}

} // namespace ox::internal::csg
