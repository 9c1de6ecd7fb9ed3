#include <ox/polygon/ox_polygon_projection.h>

#include <algorithm>

#include <ox/internal/contour_view.h>
#include <ox/polygon/internal/search/crossing_count.h>

namespace ox {

using namespace internal;

struct ox_polygon_projection_data {
    ox_polygon* polygon = nullptr; ///< not owned
    ox_3dvector origin;
    ox_3dvector dx;
    ox_3dvector dy;
    ox_3dvector normal;
    ox_2dvector size;
    ox_list<ox_2dvector> points;
    ox_list<unsigned int> sizes; ///< of the contours, in step with `points` whatever happens
};

namespace {

ox_2dvector coordinates(const ox_3dvector& v, const ox_polygon_projection_data& frame) {
    return ox_2dvector(ox_dot(v, frame.dx), ox_dot(v, frame.dy));
}

/// Lays origin and size over the vertices.
void measure(ox_polygon_projection_data& frame, const ox_list<ox_3dvector>& vertices,
             const ox_3dvector& point, float margin) {
    ox_2dvector low;
    ox_2dvector high;
    for (int i = 0; i < vertices.size(); ++i) {
        const ox_2dvector q = coordinates(vertices[i] - point, frame);
        low = i == 0 ? q : ox_2dvector(std::min(low.x, q.x), std::min(low.y, q.y));
        high = i == 0 ? q : ox_2dvector(std::max(high.x, q.x), std::max(high.y, q.y));
    }
    frame.size = ox_2dvector(high.x - low.x + 2.0f * margin, high.y - low.y + 2.0f * margin);
    low -= ox_2dvector(margin, margin);
    frame.origin = point + low.x * frame.dx + low.y * frame.dy;
}

/// The nearest edge found so far on a ray.
class ray_search {
public:
    ray_search(const ox_2dvector& ray_start, const ox_2dvector& ray_direction)
        : start(ray_start), direction(ray_direction),
          offset(ray_direction.x * ray_start.y - ray_direction.y * ray_start.x) {}

    void try_edge(const ox_2dvector& a, const ox_2dvector& b, int index) {
        const float fa = side(a);
        const float fb = side(b);
        if ((fa > 0.0f && fb > 0.0f) || (fa < 0.0f && fb < 0.0f) || fa == fb) {
            return;
        }
        const float t = -fa / (fb - fa);
        const ox_2dvector point = a + (b - a) * t;
        const float s = ox_dot(point - start, direction);
        if (s >= 0.0f && (first < 0 || s < best)) {
            first = index;
            best = s;
            hit = point;
            edge = b - a;
        }
    }

    int first = -1; ///< the index of the edge's first vertex, -1 for none
    float best = 0.0f;
    ox_2dvector hit;
    ox_2dvector edge;

private:
    /// Zero on the line of the ray.
    float side(const ox_2dvector& q) const {
        return direction.x * q.y - direction.y * q.x - offset;
    }

    ox_2dvector start;
    ox_2dvector direction;
    float offset;
};

} // namespace

ox_polygon_projection::ox_polygon_projection(ox_polygon* polygon, float margin)
    : data(std::make_shared<ox_polygon_projection_data>()) {
    ox_polygon_projection_data& frame = *data;
    if (polygon == nullptr) {
        measure(frame, ox_list<ox_3dvector>(), ox_3dvector(), margin);
        return;
    }
    frame.polygon = polygon;
    frame.normal = polygon->get_normal();
    ox_3dvector axis = frame.normal;
    axis.build_axis(frame.dx, frame.dy);
    const ox_list<ox_3dvector>& vertices = polygon->get_contour_vertices();
    measure(frame, vertices, polygon->get_point(), margin);
    frame.sizes = polygon->get_contour_sizes();
    for (const ox_3dvector& vertex : vertices) {
        frame.points.push_right(coordinates(vertex - frame.origin, frame));
    }
}

ox_polygon_projection::ox_polygon_projection(const ox_polygon_projection& other) = default;

ox_polygon_projection&
ox_polygon_projection::operator=(const ox_polygon_projection& other) = default;

ox_polygon_projection::~ox_polygon_projection() = default;

ox_polygon* ox_polygon_projection::get_polygon() const {
    return data->polygon;
}

const ox_3dvector& ox_polygon_projection::get_origin() const {
    return data->origin;
}

const ox_3dvector& ox_polygon_projection::get_dx() const {
    return data->dx;
}

const ox_3dvector& ox_polygon_projection::get_dy() const {
    return data->dy;
}

const ox_3dvector& ox_polygon_projection::get_normal() const {
    return data->normal;
}

const ox_2dvector& ox_polygon_projection::get_size() const {
    return data->size;
}

ox_2dvector ox_polygon_projection::world_to_polygon(const ox_3dvector& p) const {
    return coordinates(p - data->origin, *data);
}

ox_2dvector ox_polygon_projection::world_vector_to_polygon(const ox_3dvector& v) const {
    return coordinates(v, *data);
}

ox_3dvector ox_polygon_projection::polygon_to_world(float u, float v) const {
    return data->origin + u * data->dx + v * data->dy;
}

ox_3dvector ox_polygon_projection::polygon_to_world(const ox_2dvector& q) const {
    return polygon_to_world(q.x, q.y);
}

ox_3dvector ox_polygon_projection::polygon_vector_to_world(float u, float v) const {
    return u * data->dx + v * data->dy;
}

ox_3dvector ox_polygon_projection::polygon_vector_to_world(const ox_2dvector& q) const {
    return polygon_vector_to_world(q.x, q.y);
}

bool ox_polygon_projection::contains(float u, float v) const {
    const auto vertex = [this](int i) { return data->points[i]; };
    return contours_contain(data->sizes, vertex, u, v);
}

bool ox_polygon_projection::contains(const ox_2dvector& q) const {
    return contains(q.x, q.y);
}

int ox_polygon_projection::raytrace(const ox_2dvector& start, const ox_2dvector& direction,
                                    ox_2dvector& hit, ox_2dvector& edge, float& distance) const {
    ray_search search(start, direction);
    for (const contour_view contour : contour_views(data->sizes)) {
        for (int i = contour.first; i < contour.end; ++i) {
            search.try_edge(data->points[i], data->points[contour.after(i)], i);
        }
    }
    if (search.first >= 0) {
        hit = search.hit;
        edge = search.edge;
        edge.normalize();
        distance = search.best;
    }
    return search.first;
}

} // namespace ox
