#ifndef OX_TESTS_BITS_RESULT_DIGEST_H
#define OX_TESTS_BITS_RESULT_DIGEST_H

#include <cstdint>
#include <cstring>

#include <ox/polygon/ox_polygon.h>
#include <ox/solid/ox_solid.h>

namespace bits {

/// The hash (64-bit FNV-1a) of the bits of everything added to it.
class result_digest {
public:
    void add(std::uint32_t word) {
        for (int shift = 0; shift < 32; shift += 8) {
            hash ^= (word >> shift) & 0xFFu;
            hash *= 1099511628211u;
        }
    }

    void add(int value) { add(static_cast<std::uint32_t>(value)); }
    void add(bool value) { add(std::uint32_t{value ? 1u : 0u}); }

    /// The sign of a NaN is no result: processors differ in it.
    void add(float value) {
        std::uint32_t word = 0x7FC00000u;
        if (value == value) {
            std::memcpy(&word, &value, sizeof word);
        }
        add(word);
    }

    void add(const ox::ox_3dvector& v) {
        add(v.x);
        add(v.y);
        add(v.z);
    }

    template <typename T>
    void add(const ox::ox_list<T>& list) {
        add(list.size());
        for (int i = 0; i < list.size(); ++i) {
            add(list.at(i));
        }
    }

    void add_contours(ox::ox_polygon& polygon) {
        add(polygon.get_contour_vertices());
        add(polygon.get_contour_sizes());
        add(polygon.get_contour_orientations());
        add(polygon.get_contour_parents());
        add(polygon.get_point());
        add(polygon.get_normal());
        add(polygon.get_perimeter());
    }

    void add_tessellation(ox::ox_polygon& polygon) {
        add(polygon.get_tesselation_vertices());
        add(polygon.get_tesselation_triangles());
        add(polygon.get_area());
    }

    void add_solid(ox::ox_solid& solid) {
        add(solid.get_vertices());
        add(solid.get_contours());
        add(solid.get_contour_sizes());
        add(solid.get_tesselation_vertices());
        add(solid.get_tesselation_triangles());
    }

    std::uint64_t value() const { return hash; }

private:
    std::uint64_t hash = 14695981039346656037u;
};

/// A topic: its name, and the function that runs its operations on the inputs of a fixed seed.
struct topic {
    const char* name;
    void (*run)(result_digest& digest);
};

extern const topic polygon_topics[8];
extern const topic solid_topics[6];
extern const topic csg_topics[2];
extern const topic leaf_topics[6];
extern const topic mesh_topics[5];

} // namespace bits

#endif
