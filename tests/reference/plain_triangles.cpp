#include <array>
#include <cmath>
#include <deque>
#include <utility>

#include <GL/glu.h>

#include <tests/reference/plain_region.h>

#if !defined(CALLBACK)
#define CALLBACK
#endif

namespace reference {
namespace {

using ox::ox_3dvector;
using ox::ox_cross;
using ox::ox_dot;
using wide_vertex = std::array<double, 3>;

// What the tessellator said, written down primitive by primitive.
struct primitive {
    GLenum type = 0;
    std::vector<ox_3dvector> vertices;
};

struct record {
    std::vector<primitive> primitives;
    std::deque<wide_vertex> vertices; // of contours and crossings; never moved
};

void CALLBACK on_begin(GLenum type, void* data) {
    static_cast<record*>(data)->primitives.push_back(primitive{type, {}});
}

void CALLBACK on_vertex(void* vertex, void* data) {
    const double* v = static_cast<const double*>(vertex);
    static_cast<record*>(data)->primitives.back().vertices.push_back(
        ox_3dvector(static_cast<float>(v[0]), static_cast<float>(v[1]), static_cast<float>(v[2])));
}

void CALLBACK on_end(void*) {}

void CALLBACK on_error(GLenum, void*) {}

void CALLBACK on_combine(GLdouble coordinates[3], void* [4], GLfloat[4], void** out, void* data) {
    std::deque<wide_vertex>& vertices = static_cast<record*>(data)->vertices;
    vertices.push_back({coordinates[0], coordinates[1], coordinates[2]});
    *out = vertices.back().data();
}

using glu_callback = void(CALLBACK*)();

void run(const plain_region& region, record& said) {
    GLUtesselator* tess = gluNewTess();
    gluTessCallback(tess, GLU_TESS_VERTEX_DATA, reinterpret_cast<glu_callback>(on_vertex));
    gluTessCallback(tess, GLU_TESS_BEGIN_DATA, reinterpret_cast<glu_callback>(on_begin));
    gluTessCallback(tess, GLU_TESS_END_DATA, reinterpret_cast<glu_callback>(on_end));
    gluTessCallback(tess, GLU_TESS_ERROR_DATA, reinterpret_cast<glu_callback>(on_error));
    gluTessCallback(tess, GLU_TESS_COMBINE_DATA, reinterpret_cast<glu_callback>(on_combine));
    gluTessProperty(tess, GLU_TESS_WINDING_RULE, GLU_TESS_WINDING_ODD);
    const ox_3dvector& n = region.normal;
    gluTessNormal(tess, static_cast<double>(n.x), static_cast<double>(n.y),
                  static_cast<double>(n.z));
    gluTessBeginPolygon(tess, &said);
    for (const plain_contour& c : region.contours) {
        gluTessBeginContour(tess);
        for (const ox_3dvector& v : c.vertices) {
            said.vertices.push_back(
                {static_cast<double>(v.x), static_cast<double>(v.y), static_cast<double>(v.z)});
            gluTessVertex(tess, said.vertices.back().data(), said.vertices.back().data());
        }
        gluTessEndContour(tess);
    }
    gluTessEndPolygon(tess);
    gluDeleteTess(tess);
}

void append(plain_triangles& result, const primitive& added) {
    const unsigned int base = static_cast<unsigned int>(result.vertices.size());
    const unsigned int n = static_cast<unsigned int>(added.vertices.size());
    for (unsigned int i = 0; i < n; ++i) {
        const unsigned int last = base + i;
        result.vertices.push_back(added.vertices[i]);
        if (added.type == GL_TRIANGLES) {
            result.indices.push_back(last);
        } else if (i >= 2) {
            const bool fan = added.type == GL_TRIANGLE_FAN;
            result.indices.insert(result.indices.end(), {fan ? base : last - 2, last - 1, last});
        }
    }
}

float heron(const ox_3dvector& a, const ox_3dvector& b, const ox_3dvector& c) {
    const float ab = (a - b).size();
    const float bc = (b - c).size();
    const float ca = (c - a).size();
    const float s = (ab + bc + ca) * 0.5f;
    if (s > ab && s > bc && s > ca) {
        const float square = s * (s - ab) * (s - bc) * (s - ca);
        return static_cast<float>(std::sqrt(static_cast<double>(square)));
    }
    return 0.0f;
}

void mend_winding(plain_triangles& result, const ox_3dvector& normal) {
    for (std::size_t i = 0; i + 2 < result.indices.size(); i += 3) {
        const ox_3dvector a = result.vertices[result.indices[i]];
        const ox_3dvector b = result.vertices[result.indices[i + 1]];
        const ox_3dvector c = result.vertices[result.indices[i + 2]];
        result.area += heron(a, b, c);
        if (ox_dot(ox_cross(a, b) + ox_cross(b, c) + ox_cross(c, a), normal) < 0.0f) {
            std::swap(result.indices[i + 1], result.indices[i + 2]);
        }
    }
}

} // namespace

plain_triangles tessellate(const plain_region& region) {
    plain_triangles result;
    if (region.contours.size() == 1 && region.contours[0].vertices.size() == 3) {
        result.vertices = region.contours[0].vertices;
        result.indices = {0, 1, 2};
    } else if (!region.contours.empty()) {
        record said;
        run(region, said);
        for (const primitive& p : said.primitives) {
            append(result, p);
        }
    }
    mend_winding(result, region.normal);
    return result;
}

} // namespace reference
