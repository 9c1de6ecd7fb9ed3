#include <bench/peers/glu.h>

#include <cmath>
#include <deque>

#if defined(_WIN32)
#include <windows.h>
#endif

#include <GL/glu.h>

#if !defined(CALLBACK)
#define CALLBACK
#endif

namespace peers {
namespace {

using wide_vertex = std::array<double, 3>;

struct triangles {
    std::vector<std::array<float, 3>> vertices;
    std::vector<unsigned int> indices;
    std::deque<wide_vertex> combined; // never moved
    GLenum type = 0;
    unsigned int base = 0; // of the current primitive
};

triangles& target_of(void* data) {
    return *static_cast<triangles*>(data);
}

void CALLBACK on_begin(GLenum type, void* data) {
    target_of(data).type = type;
    target_of(data).base = static_cast<unsigned int>(target_of(data).vertices.size());
}

void CALLBACK on_vertex(void* vertex, void* data) {
    const double* const v = static_cast<const double*>(vertex);
    triangles& target = target_of(data);
    const unsigned int last = static_cast<unsigned int>(target.vertices.size());
    target.vertices.push_back(
        {static_cast<float>(v[0]), static_cast<float>(v[1]), static_cast<float>(v[2])});
    if (target.type == GL_TRIANGLES) {
        target.indices.push_back(last);
    } else if (last >= target.base + 2) {
        const bool is_fan = target.type == GL_TRIANGLE_FAN;
        target.indices.insert(target.indices.end(),
                              {is_fan ? target.base : last - 2, last - 1, last});
    }
}

void CALLBACK on_end(void*) {}

void CALLBACK on_combine(GLdouble coordinates[3], void* [4], GLfloat[4], void** out, void* data) {
    std::deque<wide_vertex>& combined = target_of(data).combined;
    combined.push_back({coordinates[0], coordinates[1], coordinates[2]});
    *out = combined.back().data();
}

using glu_callback = void(CALLBACK*)();

void tessellate(std::vector<wide_contour>& contours, triangles& made) {
    GLUtesselator* const tess = gluNewTess();
    gluTessCallback(tess, GLU_TESS_VERTEX_DATA, reinterpret_cast<glu_callback>(on_vertex));
    gluTessCallback(tess, GLU_TESS_BEGIN_DATA, reinterpret_cast<glu_callback>(on_begin));
    gluTessCallback(tess, GLU_TESS_END_DATA, reinterpret_cast<glu_callback>(on_end));
    gluTessCallback(tess, GLU_TESS_COMBINE_DATA, reinterpret_cast<glu_callback>(on_combine));
    gluTessProperty(tess, GLU_TESS_WINDING_RULE, GLU_TESS_WINDING_ODD);
    gluTessNormal(tess, 0.0, 0.0, 1.0);
    gluTessBeginPolygon(tess, &made);
    for (wide_contour& contour : contours) {
        gluTessBeginContour(tess);
        for (wide_vertex& v : contour) {
            gluTessVertex(tess, v.data(), v.data());
        }
        gluTessEndContour(tess);
    }
    gluTessEndPolygon(tess);
    gluDeleteTess(tess);
}

double flat_area(const std::array<float, 3>& a, const std::array<float, 3>& b,
                 const std::array<float, 3>& c) {
    const double ux = static_cast<double>(b[0]) - static_cast<double>(a[0]);
    const double uy = static_cast<double>(b[1]) - static_cast<double>(a[1]);
    const double vx = static_cast<double>(c[0]) - static_cast<double>(a[0]);
    const double vy = static_cast<double>(c[1]) - static_cast<double>(a[1]);
    return 0.5 * std::abs(ux * vy - uy * vx);
}

struct tessellation {
    std::vector<wide_contour> contours; // of its own: the tessellator takes no const vertices
    triangles made;
};

std::vector<bench::fact> facts_of(const tessellation& done) {
    const std::vector<unsigned int>& indices = done.made.indices;
    double area = 0.0;
    for (std::size_t i = 0; i + 2 < indices.size(); i += 3) {
        area += flat_area(done.made.vertices[indices[i]], done.made.vertices[indices[i + 1]],
                          done.made.vertices[indices[i + 2]]);
    }
    return {{"triangles", static_cast<double>(indices.size() / 3), 0.0}, {"area", area, 1e-9}};
}

} // namespace

bench::contestant glu_tessellation(std::shared_ptr<const std::vector<wide_contour>> contours) {
    return bench::make_contestant(
        "raw GLU",
        [=] {
            return tessellation{*contours, {}};
        },
        [](tessellation& t) { tessellate(t.contours, t.made); }, facts_of);
}

} // namespace peers
