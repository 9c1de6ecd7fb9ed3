// The calls of the GLU tessellator, and the callbacks that gather what it emits.

#include <ox/polygon/internal/triangles/tessellator.h>

#include <cstddef>
#include <exception>
#include <memory>
#include <new>

#include <ox/internal/opengl_headers.h>

namespace ox::internal {
namespace {

using tessellator = std::unique_ptr<GLUtesselator, decltype(&gluDeleteTess)>;

/// The callbacks run inside C code, which no exception may cross: a failed allocation is kept here,
/// and everything after it is skipped.
struct answer_collector {
    tessellator_answer& answer;
    GLenum primitive = 0;
    std::size_t first = 0; // vertex of the current primitive
    std::exception_ptr failure;

    explicit answer_collector(tessellator_answer& collected) : answer(collected) {}

    void begin(GLenum type) {
        primitive = type;
        first = answer.vertices.size();
    }

    void append_triangle(std::size_t a, std::size_t b, std::size_t c) {
        for (const std::size_t index : {a, b, c}) {
            answer.triangles.push_back(static_cast<unsigned int>(index));
        }
    }

    void add_vertex(const double* v) {
        const std::size_t last = answer.vertices.size();
        answer.vertices.push_back(v);
        if (primitive == GL_TRIANGLES) {
            answer.triangles.push_back(static_cast<unsigned int>(last));
        } else if (last < first + 2) {
            return;
        } else if (primitive == GL_TRIANGLE_STRIP) {
            append_triangle(last - 2, last - 1, last);
        } else if (primitive == GL_TRIANGLE_FAN) {
            append_triangle(first, last - 1, last);
        }
    }

    double* combine(const double* coordinates) {
        answer.made.push_back({coordinates[0], coordinates[1], coordinates[2]});
        return answer.made.back().data();
    }
};

template <typename Step>
void collect(void* collector, Step step) {
    answer_collector& target = *static_cast<answer_collector*>(collector);
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
    static_cast<answer_collector*>(collector)->begin(type);
}

void CALLBACK on_vertex(void* vertex, void* collector) {
    collect(collector,
            [vertex](answer_collector& c) { c.add_vertex(static_cast<const double*>(vertex)); });
}

void CALLBACK on_end(void* /*collector*/) {}

void CALLBACK on_combine(GLdouble coordinates[3], void* /*neighbours*/[4], GLfloat /*weights*/[4],
                         void** out, void* collector) {
    *out = nullptr; // ends the tessellation unless a vertex could be made
    collect(collector, [coordinates, out](answer_collector& c) { *out = c.combine(coordinates); });
}

/// Of all errors only this one says that the answer is not what the contours make it.
void CALLBACK on_error(GLenum error, void* collector) {
    if (error == GLU_OUT_OF_MEMORY) {
        collect(collector, [](answer_collector&) { throw std::bad_alloc(); });
    }
}

using glu_callback = void(CALLBACK*)();

void set_callbacks(GLUtesselator* tess) {
    gluTessCallback(tess, GLU_TESS_VERTEX_DATA, reinterpret_cast<glu_callback>(on_vertex));
    gluTessCallback(tess, GLU_TESS_BEGIN_DATA, reinterpret_cast<glu_callback>(on_begin));
    gluTessCallback(tess, GLU_TESS_END_DATA, reinterpret_cast<glu_callback>(on_end));
    gluTessCallback(tess, GLU_TESS_ERROR_DATA, reinterpret_cast<glu_callback>(on_error));
    gluTessCallback(tess, GLU_TESS_COMBINE_DATA, reinterpret_cast<glu_callback>(on_combine));
}

/// Stops at a failed allocation: what the tessellator has then is not fit to go on with.
void feed_contours(GLUtesselator* tess, const ox_list<unsigned int>& sizes, double* vertex,
                   const answer_collector& collector) {
    for (const unsigned int size : sizes) {
        gluTessBeginContour(tess);
        for (unsigned int i = 0; i < size; ++i) {
            gluTessVertex(tess, vertex, vertex);
            if (collector.failure) {
                return;
            }
            vertex += 3;
        }
        gluTessEndContour(tess);
    }
}

void tessellate(GLUtesselator* tess, std::vector<double>& coordinates,
                const ox_list<unsigned int>& sizes, const ox_3dvector& normal,
                answer_collector& collector) {
    set_callbacks(tess);
    gluTessProperty(tess, GLU_TESS_WINDING_RULE, GLU_TESS_WINDING_ODD);
    gluTessNormal(tess, static_cast<double>(normal.x), static_cast<double>(normal.y),
                  static_cast<double>(normal.z));
    gluTessBeginPolygon(tess, &collector);
    feed_contours(tess, sizes, coordinates.data(), collector);
    if (!collector.failure) {
        gluTessEndPolygon(tess);
    }
}

} // namespace

void run_tessellator(std::vector<double>& coordinates, const ox_list<unsigned int>& sizes,
                     const ox_3dvector& normal, tessellator_answer& answer) {
    answer_collector collector(answer);
    answer.vertices.reserve(coordinates.size());
    answer.triangles.reserve(coordinates.size());
    const tessellator owner(gluNewTess(), gluDeleteTess);
    if (!owner) {
        throw std::bad_alloc();
    }
    tessellate(owner.get(), coordinates, sizes, normal, collector);
    if (collector.failure) {
        std::rethrow_exception(collector.failure);
    }
}

} // namespace ox::internal
