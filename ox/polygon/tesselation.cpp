// Triangles of the region, made by the GLU tessellator with the odd winding rule, and their area.
//
//  1. One contour of three vertices is its own triangle.
//  2. Otherwise the tessellator emits triangles, strips and fans; each primitive brings its own
//     vertices.
//  3. Areas are added, and triangles that run clockwise about the normal are turned over.

#include <cmath>
#include <cstddef>
#include <exception>
#include <memory>
#include <utility>
#include <vector>

#if defined(_WIN32)
#include <windows.h>
#endif

#include <GL/glu.h>

#include <ox/polygon/internal/ox_polygon_data.h>
#include <ox/polygon/ox_polygon.h>

#if !defined(CALLBACK)
#define CALLBACK
#endif

namespace ox {
namespace {

constexpr unsigned int no_primitive = static_cast<unsigned int>(-1);

using tessellator = std::unique_ptr<GLUtesselator, decltype(&gluDeleteTess)>;

// What one tessellation collects. The callbacks run inside C code, which no exception may cross:
// a failed allocation is kept here, and everything after it is skipped.
struct tesselation_collector {
    unsigned int primitive_type = no_primitive;
    unsigned int base_index = 0; // vertices already moved to the polygon
    ox_list<ox_3dvector> primitive_vertices;
    ox_list<unsigned int> primitive_indices;
    ox_list<double*> combined_vertices; // made where contours cross
    ox_polygon_data& polygon;
    std::exception_ptr failure;

    explicit tesselation_collector(ox_polygon_data& tesselated) : polygon(tesselated) {}

    tesselation_collector(const tesselation_collector&) = delete;
    tesselation_collector& operator=(const tesselation_collector&) = delete;

    ~tesselation_collector() {
        for (double* vertex : combined_vertices) {
            delete[] vertex;
        }
    }

    void begin(unsigned int type) {
        primitive_vertices.clear();
        primitive_indices.clear();
        primitive_type = type;
    }

    void append_triangle(unsigned int a, unsigned int b, unsigned int c) {
        primitive_indices.push_right(base_index + a);
        primitive_indices.push_right(base_index + b);
        primitive_indices.push_right(base_index + c);
    }

    void add_vertex(const double* v) {
        primitive_vertices.push_right(ox_3dvector(
            static_cast<float>(v[0]), static_cast<float>(v[1]), static_cast<float>(v[2])));
        const unsigned int k = static_cast<unsigned int>(primitive_vertices.size());
        if (primitive_type == GL_TRIANGLES) {
            primitive_indices.push_right(base_index + k - 1);
        } else if (primitive_type == GL_TRIANGLE_STRIP && k >= 3) {
            append_triangle(k - 3, k - 2, k - 1);
        } else if (primitive_type == GL_TRIANGLE_FAN && k >= 3) {
            append_triangle(0, k - 2, k - 1);
        }
    }

    void end() {
        for (const ox_3dvector& v : primitive_vertices) {
            polygon.tesselation_vertices.push_right(v);
        }
        for (const unsigned int index : primitive_indices) {
            polygon.tesselation_triangles.push_right(index);
        }
        base_index += static_cast<unsigned int>(primitive_vertices.size());
    }

    double* combine(const double* coordinates) {
        std::unique_ptr<double[]> made(
            new double[3]{coordinates[0], coordinates[1], coordinates[2]});
        combined_vertices.push_right(made.get());
        return made.release();
    }
};

template <typename Step>
void collect(void* collector, Step step) {
    tesselation_collector& target = *static_cast<tesselation_collector*>(collector);
    if (target.failure) {
        return;
    }
    try {
        step(target);
    } catch (...) {
        target.failure = std::current_exception();
    }
}

void CALLBACK on_begin(GLenum type, void* collector) {
    collect(collector, [type](tesselation_collector& c) { c.begin(type); });
}

void CALLBACK on_vertex(void* vertex, void* collector) {
    collect(collector, [vertex](tesselation_collector& c) {
        c.add_vertex(static_cast<const double*>(vertex));
    });
}

void CALLBACK on_end(void* collector) {
    collect(collector, [](tesselation_collector& c) { c.end(); });
}

void CALLBACK on_combine(GLdouble coordinates[3], void* /*neighbours*/[4], GLfloat /*weights*/[4],
                         void** out, void* collector) {
    *out = nullptr; // ends the tessellation unless a vertex could be made
    collect(collector,
            [coordinates, out](tesselation_collector& c) { *out = c.combine(coordinates); });
}

void CALLBACK on_error(GLenum /*error*/, void* /*collector*/) {}

using glu_callback = void(CALLBACK*)();

void set_callbacks(GLUtesselator* tess) {
    gluTessCallback(tess, GLU_TESS_VERTEX_DATA, reinterpret_cast<glu_callback>(on_vertex));
    gluTessCallback(tess, GLU_TESS_BEGIN_DATA, reinterpret_cast<glu_callback>(on_begin));
    gluTessCallback(tess, GLU_TESS_END_DATA, reinterpret_cast<glu_callback>(on_end));
    gluTessCallback(tess, GLU_TESS_ERROR_DATA, reinterpret_cast<glu_callback>(on_error));
    gluTessCallback(tess, GLU_TESS_COMBINE_DATA, reinterpret_cast<glu_callback>(on_combine));
}

std::vector<double> widened(const ox_list<ox_3dvector>& vertices) {
    std::vector<double> coordinates;
    coordinates.reserve(static_cast<std::size_t>(vertices.size()) * 3);
    for (const ox_3dvector& v : vertices) {
        coordinates.insert(coordinates.end(), {static_cast<double>(v.x), static_cast<double>(v.y),
                                               static_cast<double>(v.z)});
    }
    return coordinates;
}

void feed_contours(GLUtesselator* tess, const ox_list<unsigned int>& sizes, double* vertex) {
    for (const unsigned int size : sizes) {
        gluTessBeginContour(tess);
        for (unsigned int i = 0; i < size; ++i) {
            gluTessVertex(tess, vertex, vertex);
            vertex += 3;
        }
        gluTessEndContour(tess);
    }
}

void run_tessellator(ox_polygon_data& polygon) {
    tesselation_collector collector(polygon);
    std::vector<double> coordinates = widened(polygon.contour_vertices);
    {
        const tessellator owner(gluNewTess(), gluDeleteTess);
        GLUtesselator* tess = owner.get();
        if (tess == nullptr) {
            return;
        }
        set_callbacks(tess);
        gluTessProperty(tess, GLU_TESS_WINDING_RULE, GLU_TESS_WINDING_ODD);
        gluTessNormal(tess, static_cast<double>(polygon.normal.x),
                      static_cast<double>(polygon.normal.y), static_cast<double>(polygon.normal.z));
        gluTessBeginPolygon(tess, &collector);
        feed_contours(tess, polygon.contour_sizes, coordinates.data());
        gluTessEndPolygon(tess);
    }
    if (collector.failure) {
        std::rethrow_exception(collector.failure);
    }
}

void take_single_triangle(ox_polygon_data& polygon) {
    polygon.tesselation_vertices = polygon.contour_vertices;
    for (unsigned int i = 0; i < 3; ++i) {
        polygon.tesselation_triangles.push_right(i);
    }
}

bool runs_clockwise(const ox_3dvector& a, const ox_3dvector& b, const ox_3dvector& c,
                    const ox_3dvector& normal) {
    return ox_dot(ox_cross(a, b) + ox_cross(b, c) + ox_cross(c, a), normal) < 0.0f;
}

void sum_area_and_mend_winding(ox_polygon_data& polygon) {
    ox_list<unsigned int>& triangles = polygon.tesselation_triangles;
    for (int i = 0; i + 2 < triangles.size(); i += 3) {
        const ox_3dvector& a = polygon.tesselation_vertices[static_cast<int>(triangles[i])];
        const ox_3dvector& b = polygon.tesselation_vertices[static_cast<int>(triangles[i + 1])];
        const ox_3dvector& c = polygon.tesselation_vertices[static_cast<int>(triangles[i + 2])];
        polygon.area += ox_polygon::compute_triangle_area(a, b, c);
        if (runs_clockwise(a, b, c, polygon.normal)) {
            std::swap(triangles[i + 1], triangles[i + 2]);
        }
    }
}

} // namespace

void ox_polygon_data::compute_tesselation() {
    compute_contours();
    if (tesselation_computed) {
        return;
    }
    tesselation_vertices.clear();
    tesselation_triangles.clear();
    area = 0.0f;
    if (contour_sizes.size() == 1 && contour_sizes[0] == 3) {
        take_single_triangle(*this);
    } else if (contour_sizes.size() > 0) {
        run_tessellator(*this);
    }
    sum_area_and_mend_winding(*this);
    tesselation_computed = true;
}

const ox_list<ox_3dvector>& ox_polygon::get_tesselation_vertices() {
    data->compute_tesselation();
    return data->tesselation_vertices;
}

const ox_list<unsigned int>& ox_polygon::get_tesselation_triangles() {
    data->compute_tesselation();
    return data->tesselation_triangles;
}

float ox_polygon::get_area() {
    data->compute_tesselation();
    return data->area;
}

float ox_polygon::compute_triangle_area(const ox_3dvector& a, const ox_3dvector& b,
                                        const ox_3dvector& c) {
    const float ab = a.distance_to(b);
    const float bc = b.distance_to(c);
    const float ca = c.distance_to(a);
    const float s = (ab + bc + ca) * 0.5f;
    if (!(s > ab && s > bc && s > ca)) {
        return 0.0f;
    }
    const float square = s * (s - ab) * (s - bc) * (s - ca);
    return static_cast<float>(std::sqrt(static_cast<double>(square)));
}

} // namespace ox
