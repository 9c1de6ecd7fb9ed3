#include <algorithm>
#include <cmath>
#include <numeric>
#include <vector>

#include <ox/solid/internal/csg/clear_faces.h>
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
class cluster_search final : private plane_candidates {
public:
    cluster_search(scene& all, double reach);
    bool run(const progress_report& report);

private:
    const face_boundary& boundary_of(int face) const override { return at(face).boundary; }
    void find_neighbours(int face, std::vector<int>& found) const override;
    double allowed_deviation(int face, const std::array<double, 3>& normal) const override;
    bool is_reversed(int face, const std::array<double, 3>& normal) const override;
    bool may_become(const fitted_plane&) const override { return true; }
    void join(int face) override { at(face).cluster = growing; }

    void grow_from(int first);
    bool is_apart(int face) const;
    scene_face& at(int face) const { return faces.faces[static_cast<std::size_t>(face)]; }

    scene& faces;
    double tolerance;
    box_neighbours neighbours;
    plane_growth growth;
    int growing = -1; // the cluster's number
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
    : faces(all), tolerance(reach), neighbours(grown_boxes(all, reach)),
      growth(*this, all.points, reach, 0) {
    for (int face = 0; face < static_cast<int>(faces.faces.size()); ++face) {
        at(face).cluster = -1;
        at(face).is_apart = is_apart(face);
    }
    mark_clear_faces(faces, neighbours);
}

/// True if no face of another operand has a box that meets the face's.
bool cluster_search::is_apart(int face) const {
    return std::all_of(neighbours.begin_of(face), neighbours.end_of(face),
                       [&](int other) { return at(other).operand == at(face).operand; });
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

void cluster_search::find_neighbours(int face, std::vector<int>& found) const {
    for (const int* other = neighbours.begin_of(face); other != neighbours.end_of(face); ++other) {
        if (at(*other).cluster < 0) {
            found.push_back(*other);
        }
    }
}

double cluster_search::allowed_deviation(int face, const std::array<double, 3>& normal) const {
    const bool may_join = at(face).cluster < 0 && at(face).unevenness <= tolerance &&
                          std::fabs(dot(at(face).plane.normal, normal)) > parallel_cosine;
    return may_join ? tolerance : -1.0;
}

bool cluster_search::is_reversed(int face, const std::array<double, 3>& normal) const {
    return dot(at(face).plane.normal, normal) < 0.0;
}

void cluster_search::grow_from(int first) {
    growing = first;
    join(first);
    if (at(first).unevenness <= tolerance && at(first).plane.area != 0.0) {
        fitted_plane plane = at(first).plane;
        growth.run(first, plane);
    }
}

} // namespace

bool cluster_planes(scene& faces, const working_grid& grid, const progress_report& report) {
    return cluster_search(faces, std::max(grid.get_tolerance(), 1.0)).run(report);
}

} // namespace ox::internal::csg
