#include "sphere.h"

#include <cmath>
#include <map>

namespace bench {
namespace {

using ox::ox_3dvector;
using ox::ox_solid;
using position = std::array<double, 3>;

double dot(const position& a, const position& b) {
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

// Coordinates as the library stores them, so that both sides get the same ones.
position on_sphere(const position& direction, const position& centre) {
    const double scale = sphere_radius / std::sqrt(dot(direction, direction));
    position p;
    for (std::size_t i = 0; i < 3; ++i) {
        p[i] = static_cast<double>(static_cast<float>(centre[i] + scale * direction[i]));
    }
    return p;
}

// The regular icosahedron, its faces outward.
peers::triangle_mesh icosahedron() {
    const double g = (1.0 + std::sqrt(5.0)) / 2.0;
    return {{{-1, g, 0},
             {1, g, 0},
             {-1, -g, 0},
             {1, -g, 0},
             {0, -1, g},
             {0, 1, g},
             {0, -1, -g},
             {0, 1, -g},
             {g, 0, -1},
             {g, 0, 1},
             {-g, 0, -1},
             {-g, 0, 1}},
            {{0, 11, 5},  {0, 5, 1},  {0, 1, 7},  {0, 7, 10}, {0, 10, 11}, {1, 5, 9}, {5, 11, 4},
             {11, 10, 2}, {10, 7, 6}, {7, 1, 8},  {3, 9, 4},  {3, 4, 2},   {3, 2, 6}, {3, 6, 8},
             {3, 8, 9},   {4, 9, 5},  {2, 4, 11}, {6, 2, 10}, {8, 6, 7},   {9, 8, 1}}};
}

/// Divides the faces of an icosahedron `frequency` times along each side and moves all points to
/// the sphere; a point that faces share is one point.
class geodesic_sphere {
public:
    geodesic_sphere(int frequency, const position& sphere_centre)
        : n(frequency), centre(sphere_centre) {
        for (const std::array<std::size_t, 3>& face : base.triangles) {
            divide(face);
        }
    }

    peers::triangle_mesh mesh;

private:
    void divide(const std::array<std::size_t, 3>& face) {
        for (int j = 0; j < n; ++j) {
            for (int i = 0; i < n - j; ++i) {
                mesh.triangles.push_back(
                    {point(face, i, j), point(face, i + 1, j), point(face, i, j + 1)});
                if (i + j + 1 < n) {
                    mesh.triangles.push_back(
                        {point(face, i + 1, j), point(face, i + 1, j + 1), point(face, i, j + 1)});
                }
            }
        }
    }

    // Weights of the corners are whole numbers: sorted by corner they name the point on all faces.
    std::size_t point(const std::array<std::size_t, 3>& face, int i, int j) {
        std::map<std::size_t, int> weights;
        const std::array<int, 3> parts = {n - i - j, i, j};
        position sum = {0.0, 0.0, 0.0};
        for (std::size_t corner = 0; corner < 3; ++corner) {
            if (parts[corner] != 0) {
                weights[face[corner]] = parts[corner];
            }
        }
        for (const auto& [corner, weight] : weights) {
            for (std::size_t axis = 0; axis < 3; ++axis) {
                sum[axis] += weight * base.points[corner][axis];
            }
        }
        const auto [entry, is_new] = known.emplace(weights, mesh.points.size());
        if (is_new) {
            mesh.points.push_back(on_sphere(sum, centre));
        }
        return entry->second;
    }

    const peers::triangle_mesh base = icosahedron();
    const int n;
    const position centre;
    std::map<std::map<std::size_t, int>, std::size_t> known;
};

} // namespace

peers::triangle_mesh sphere_mesh(long faces, const std::array<double, 3>& centre) {
    const double frequency = std::sqrt(static_cast<double>(faces) / 20.0);
    return geodesic_sphere(static_cast<int>(std::lround(frequency)), centre).mesh;
}

ox::ox_solid to_solid(const peers::triangle_mesh& mesh) {
    ox::ox_list<ox_3dvector> vertices;
    for (const position& p : mesh.points) {
        vertices.push_right(ox_3dvector(static_cast<float>(p[0]), static_cast<float>(p[1]),
                                        static_cast<float>(p[2])));
    }
    ox::ox_list<unsigned int> contours;
    ox::ox_list<int> sizes;
    for (const std::array<std::size_t, 3>& triangle : mesh.triangles) {
        for (const std::size_t corner : triangle) {
            contours.push_right(static_cast<unsigned int>(corner));
        }
        sizes.push_right(3);
    }
    ox_solid solid;
    solid.set_vertices(vertices);
    solid.set_contours(contours);
    solid.set_contour_sizes(sizes);
    return solid;
}

} // namespace bench
