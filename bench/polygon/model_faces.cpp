#include <algorithm>
#include <cmath>
#include <random>

#include <ox/polygon/ox_polygon.h>
#include <tests/reference/plain_region.h>

#include "workloads.h"

namespace bench {
namespace {

using ox::ox_3dvector;
using ox::ox_list;
using ox::ox_polygon;

/// A repeatable source of faces as models have them: half of them rectangles and half L-shapes,
/// upright, level or sloping, run through either way.
class face_source {
public:
    reference::contour next() {
        const bool is_l_shape = dice() % 2 == 0;
        const float width = between(0.5f, 10.0f);
        const float height = between(0.5f, 4.0f);
        const float notch_x = width * between(0.2f, 0.8f);
        const float notch_y = height * between(0.2f, 0.8f);
        reference::contour corners = {{0.0f, 0.0f, 0.0f}, {width, 0.0f, 0.0f}};
        if (is_l_shape) {
            corners.insert(
                corners.end(),
                {{width, notch_y, 0.0f}, {notch_x, notch_y, 0.0f}, {notch_x, height, 0.0f}});
        } else {
            corners.push_back({width, height, 0.0f});
        }
        corners.push_back({0.0f, height, 0.0f});
        place(corners);
        if (dice() % 2 == 0) {
            std::reverse(corners.begin(), corners.end());
        }
        return corners;
    }

private:
    float between(float low, float high) {
        return low + (high - low) * static_cast<float>(dice() % 100000u) / 100000.0f;
    }

    // Moves a face from the xy plane to a wall (upright, in eight directions), a slab or a roof.
    void place(reference::contour& corners) {
        const ox_3dvector origin(between(0.0f, 100.0f), between(0.0f, 60.0f), between(0.0f, 30.0f));
        const float turn = 0.785398163f * static_cast<float>(dice() % 8u);
        const float slopes[] = {0.0f, 1.570796327f, between(0.1f, 1.4f)};
        const float slope = slopes[dice() % 3u];
        const ox_3dvector dx(std::cos(turn), std::sin(turn), 0.0f);
        const ox_3dvector dy(-std::sin(turn) * std::cos(slope), std::cos(turn) * std::cos(slope),
                             std::sin(slope));
        for (ox_3dvector& v : corners) {
            v = origin + v.x * dx + v.y * dy;
        }
    }

    std::mt19937 dice{7};
};

std::vector<reference::contour> make_faces(long count) {
    face_source source;
    std::vector<reference::contour> faces;
    for (long i = 0; i < count; ++i) {
        faces.push_back(source.next());
    }
    return faces;
}

std::vector<ox_list<ox_3dvector>> to_lists(const std::vector<reference::contour>& faces) {
    std::vector<ox_list<ox_3dvector>> lists;
    for (const reference::contour& face : faces) {
        ox_list<ox_3dvector> list;
        for (const ox_3dvector& v : face) {
            list.push_right(v);
        }
        lists.push_back(list);
    }
    return lists;
}

using model = std::vector<std::unique_ptr<ox_polygon>>;

contestant ours_for(const std::vector<reference::contour>& faces) {
    const auto lists = std::make_shared<const std::vector<ox_list<ox_3dvector>>>(to_lists(faces));
    return make_contestant(
        "ox_polygon", [] { return model(); },
        [=](model& made) {
            made.reserve(lists->size());
            for (const ox_list<ox_3dvector>& list : *lists) {
                made.push_back(std::make_unique<ox_polygon>());
                made.back()->add_contour(list);
                made.back()->get_tesselation_triangles();
            }
        },
        [](model& made) {
            double vertices = 0.0, triangles = 0.0, area = 0.0;
            for (const std::unique_ptr<ox_polygon>& face : made) {
                vertices += face->get_contour_vertices().size();
                triangles += face->get_tesselation_triangles().size() / 3.0;
                area += static_cast<double>(face->get_area());
            }
            return std::vector<fact>{
                {"vertices", vertices, 0.0}, {"triangles", triangles, 0.0}, {"area", area, 0.0}};
        });
}

struct plain_face {
    reference::plain_region region;
    reference::plain_triangles triangles;
};

contestant plain_version(const std::vector<reference::contour>& faces) {
    const auto kept = std::make_shared<const std::vector<reference::contour>>(faces);
    return make_contestant(
        "plain version", [] { return std::vector<plain_face>(); },
        [=](std::vector<plain_face>& made) {
            made.reserve(kept->size());
            for (const reference::contour& face : *kept) {
                made.emplace_back();
                made.back().region.merge({face});
                made.back().triangles = reference::tessellate(made.back().region);
            }
        },
        [](const std::vector<plain_face>& made) {
            double vertices = 0.0, triangles = 0.0, area = 0.0;
            for (const plain_face& face : made) {
                for (const reference::plain_contour& contour : face.region.contours) {
                    vertices += static_cast<double>(contour.vertices.size());
                }
                triangles += static_cast<double>(face.triangles.indices.size() / 3);
                area += static_cast<double>(face.triangles.area);
            }
            return std::vector<fact>{
                {"vertices", vertices, 0.0}, {"triangles", triangles, 0.0}, {"area", area, 0.0}};
        });
}

contest make_model(long count) {
    const std::vector<reference::contour> faces = make_faces(count);
    contest rules;
    rules.ours = ours_for(faces);
    rules.peers = {plain_version(faces)};
    rules.goal = 0.2;
    return rules;
}

} // namespace

workload faces_of_a_model() {
    return workload{"faces of a model, from lists to triangles",
                    "faces",
                    {1000, 10000, 100000},
                    {300, 1000, 3000},
                    make_model}
        .judged_from(100000);
}

} // namespace bench
