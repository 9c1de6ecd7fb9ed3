#include <examples/gallery/renderer.h>

#include <ox/progress/ox_thread.h>

#include <embree3/rtcore.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <thread>

namespace gallery {

namespace {

using ox::ox_3dvector;
using ox::ox_color;

constexpr int samples = 3;  ///< along each side of a pixel
constexpr int sky_rays = 8; ///< from each sample
constexpr float pi = 3.14159265f;
constexpr unsigned int no_face = 0xFFFFFFFFu;
constexpr unsigned int ground_face = 0xFFFFFFFEu;

const ox_color back_side(0.80f, 0.13f, 0.10f);

/// Light adds up in proportion to its energy, colours as the eye sees them do not.
float energy(float seen) {
    return std::pow(std::clamp(seen, 0.0f, 1.0f), 2.2f);
}

unsigned char byte_of(float light) {
    return static_cast<unsigned char>(
        std::lround(255.0f * std::pow(std::clamp(light, 0.0f, 1.0f), 1.0f / 2.2f)));
}

/// Numbers in [0, 1) that look random and are the same in every run.
float noise(unsigned int& state) {
    state = state * 747796405u + 2891336453u;
    const unsigned int word = ((state >> ((state >> 28u) + 4u)) ^ state) * 277803737u;
    return static_cast<float>(((word >> 22u) ^ word) >> 8) / 16777216.0f;
}

/// Where the eye is and what lies in its frame: depths are measured along a level direction, so
/// that uprights stay upright.
struct view {
    ox_3dvector eye, forward, right;
    float left = 0, top = 0, pixel = 0; ///< of the frame, at the depth 1

    ox_3dvector ray(float x, float y) const {
        return forward + right * (left + x * pixel) + ox_3dvector(0, 0, top - y * pixel);
    }
};

view view_of(const scene& things, int width, int height, double bearing, double elevation) {
    const ox::ox_box& box = things.get_bounds();
    const float radius = box.size.size() / 2.0f;
    const float angle = static_cast<float>(bearing) * pi / 180.0f;
    const float distance = 4.5f * radius;
    view v;
    v.forward = ox_3dvector(-std::sin(angle), std::cos(angle), 0);
    v.right = ox_3dvector(v.forward.y, -v.forward.x, 0);
    v.eye = box.origin + box.size * 0.5f - v.forward * distance;
    v.eye.z += distance * std::tan(static_cast<float>(elevation) * pi / 180.0f);
    float low[2] = {1e9f, 1e9f};
    float high[2] = {-1e9f, -1e9f};
    for (const scene::triangle& t : things.get_triangles()) {
        for (const ox_3dvector* corner : {&t.a, &t.b, &t.c}) {
            const ox_3dvector way = *corner - v.eye;
            const float depth = ox::ox_dot(way, v.forward);
            const float at[2] = {ox::ox_dot(way, v.right) / depth, way.z / depth};
            for (int i = 0; i < 2; ++i) {
                low[i] = std::min(low[i], at[i]);
                high[i] = std::max(high[i], at[i]);
            }
        }
    }
    constexpr float margin = 1.15f;
    const float w = static_cast<float>(width), h = static_cast<float>(height);
    v.pixel = margin * std::max((high[0] - low[0]) / w, (high[1] - low[1]) / h);
    v.left = (low[0] + high[0] - v.pixel * w) / 2.0f;
    v.top = (low[1] + high[1] + v.pixel * h) / 2.0f;
    return v;
}

/// What one sample of a picture sees.
struct sample {
    std::array<float, 3> light = {1, 1, 1};
    unsigned int face = no_face;
    bool cornered = false;
    ox_3dvector normal;
    float depth = 0;
};

/// The rays through one picture, a row of pixels a step.
class picture_work : public ox::ox_thread {
public:
    picture_work(const scene& drawn, const view& seen_from, int w, int h)
        : things(drawn), from(seen_from), width(w * samples), height(h * samples),
          seen(static_cast<std::size_t>(width) * static_cast<std::size_t>(height)),
          device(rtcNewDevice("threads=1")), world(rtcNewScene(device)) {
        RTCGeometry mesh = rtcNewGeometry(device, RTC_GEOMETRY_TYPE_TRIANGLE);
        const std::size_t count = things.get_triangles().size();
        auto* v = static_cast<ox_3dvector*>(rtcSetNewGeometryBuffer(
            mesh, RTC_BUFFER_TYPE_VERTEX, 0, RTC_FORMAT_FLOAT3, sizeof(ox_3dvector), 3 * count));
        auto* index = static_cast<unsigned int*>(rtcSetNewGeometryBuffer(
            mesh, RTC_BUFFER_TYPE_INDEX, 0, RTC_FORMAT_UINT3, 3 * sizeof(unsigned int), count));
        for (const scene::triangle& t : things.get_triangles()) {
            *v++ = t.a, *v++ = t.b, *v++ = t.c;
        }
        for (unsigned int i = 0; i < 3 * count; ++i) {
            index[i] = i;
        }
        rtcCommitGeometry(mesh);
        rtcAttachGeometry(world, mesh);
        rtcReleaseGeometry(mesh);
        rtcCommitScene(world);
    }

    ~picture_work() override {
        rtcReleaseScene(world);
        rtcReleaseDevice(device);
    }

    /// The samples of each pixel, averaged, with outlines where faces meet.
    ox_examples::image picture() const {
        ox_examples::image result;
        result.width = width / samples;
        result.height = height / samples;
        for (int y = 0; y < result.height; ++y) {
            for (int x = 0; x < result.width; ++x) {
                std::array<float, 3> sum = {0, 0, 0};
                for (int k = 0; k < samples * samples; ++k) {
                    const int sx = x * samples + k % samples, sy = y * samples + k / samples;
                    const float ink = on_outline(sx, sy) ? 0.25f : 1.0f;
                    for (std::size_t i = 0; i < 3; ++i) {
                        sum[i] += ink * at(sx, sy).light[i];
                    }
                }
                for (const float channel : sum) {
                    result.rgba.push_back(byte_of(channel / (samples * samples)));
                }
                result.rgba.push_back(255);
            }
        }
        return result;
    }

private:
    int get_last_step() override { return height; }

    bool run(unsigned int step, unsigned int) override {
        if (step >= static_cast<unsigned int>(height)) {
            return false;
        }
        for (int x = 0; x < width; ++x) {
            const float scale = 1.0f / samples;
            const ox_3dvector ray = from.ray((static_cast<float>(x) + 0.5f) * scale,
                                             (static_cast<float>(step) + 0.5f) * scale);
            unsigned int state =
                step * static_cast<unsigned int>(width) + static_cast<unsigned int>(x);
            noise(state);
            seen[static_cast<std::size_t>(step) * static_cast<std::size_t>(width) +
                 static_cast<std::size_t>(x)] = look(ray, state);
        }
        return true;
    }

    const sample& at(int x, int y) const {
        const int cx = std::clamp(x, 0, width - 1), cy = std::clamp(y, 0, height - 1);
        return seen[static_cast<std::size_t>(cy) * static_cast<std::size_t>(width) +
                    static_cast<std::size_t>(cx)];
    }

    bool on_outline(int x, int y) const {
        const sample& here = at(x, y);
        for (int d = 1; d <= 2; ++d) {
            for (const sample* other :
                 {&at(x + d, y), &at(x, y + d), &at(x - 1, y), &at(x, y - 1)}) {
                if ((other->cornered || here.cornered) && makes_edge(here, *other)) {
                    return true;
                }
            }
        }
        return false;
    }

    /// True where two faces meet at an angle, or one ends in front of the other. Those of a curved
    /// surface do neither.
    bool makes_edge(const sample& a, const sample& b) const {
        return a.face != b.face &&
               (ox::ox_dot(a.normal, b.normal) < 0.9f ||
                std::fabs(a.depth - b.depth) > 0.01f * things.get_bounds().size.size());
    }

    bool is_hidden(const ox_3dvector& from_point, const ox_3dvector& direction, float reach) const {
        RTCIntersectContext context;
        rtcInitIntersectContext(&context);
        RTCRay ray = ray_of(from_point, direction, reach);
        rtcOccluded1(world, &context, &ray);
        return ray.tfar < 0.0f;
    }

    RTCRay ray_of(const ox_3dvector& start, const ox_3dvector& d, float reach) const {
        RTCRay ray = {};
        ray.org_x = start.x, ray.org_y = start.y, ray.org_z = start.z;
        ray.dir_x = d.x, ray.dir_y = d.y, ray.dir_z = d.z;
        ray.tnear = 0.0f;
        ray.tfar = reach;
        ray.mask = 0xFFFFFFFFu;
        return ray;
    }

    sample look(const ox_3dvector& ray, unsigned int& state) const {
        RTCIntersectContext context;
        rtcInitIntersectContext(&context);
        RTCRayHit hit = {};
        hit.ray = ray_of(from.eye, ray, std::numeric_limits<float>::infinity());
        hit.hit.geomID = RTC_INVALID_GEOMETRY_ID;
        rtcIntersect1(world, &context, &hit);
        if (hit.hit.geomID == RTC_INVALID_GEOMETRY_ID) {
            return look_at_ground(ray, state);
        }
        const scene::triangle& t = things.get_triangles()[hit.hit.primID];
        ox_3dvector normal = ox::ox_cross(t.b - t.a, t.c - t.a);
        normal.normalize();
        const bool behind = ox::ox_dot(normal, ray) > 0.0f;
        const ox_color color = behind ? back_side : t.color;
        sample result;
        result.face = t.face;
        result.cornered = t.cornered;
        result.normal = behind ? normal * -1.0f : normal;
        result.depth = hit.ray.tfar;
        shade(result, from.eye + ray * hit.ray.tfar, behind ? normal * -1.0f : normal, color,
              state);
        return result;
    }

    /// White paper that only shadows darken, the less the farther they fall from the middle.
    sample look_at_ground(const ox_3dvector& ray, unsigned int& state) const {
        sample result;
        const ox::ox_box& box = things.get_bounds();
        if (!(ray.z < 0.0f)) {
            return result;
        }
        const ox_3dvector place = from.eye + ray * ((box.origin.z - from.eye.z) / ray.z);
        const ox_3dvector up(0, 0, 1);
        result.face = ground_face;
        sample bare;
        shade_lit(bare, 1.0f, 1.0f, ox_color(1.0f));
        shade(result, place, up, ox_color(1.0f), state);
        const ox_3dvector middle = box.origin + box.size * 0.5f;
        const float away =
            std::hypot(place.x - middle.x, place.y - middle.y) / (0.5f * box.size.size());
        const float fade = std::clamp(2.2f - away, 0.0f, 1.0f);
        for (std::size_t i = 0; i < 3; ++i) {
            result.light[i] =
                1.0f - fade * 0.85f * (1.0f - std::min(1.0f, result.light[i] / bare.light[i]));
        }
        return result;
    }

    static void shade_lit(sample& s, float sky, float sun, const ox_color& color) {
        s.light = {energy(color.r) * (0.52f * sky + 0.64f * sun),
                   energy(color.g) * (0.54f * sky + 0.60f * sun),
                   energy(color.b) * (0.59f * sky + 0.52f * sun)};
    }

    void shade(sample& s, const ox_3dvector& place, const ox_3dvector& normal,
               const ox_color& color, unsigned int& state) const {
        const float reach = things.get_bounds().size.size();
        const ox_3dvector start = place + normal * (2e-4f * reach);
        ox_3dvector u, v, n = normal;
        n.build_axis(u, v);
        int free = 0;
        for (int i = 0; i < sky_rays; ++i) { // as much from each part of the sky as it counts
            const float turn = 2.0f * pi * noise(state), spread = noise(state);
            const float r = std::sqrt(spread);
            const ox_3dvector d =
                u * (r * std::cos(turn)) + v * (r * std::sin(turn)) + n * std::sqrt(1.0f - spread);
            free += is_hidden(start, d, 0.3f * reach) ? 0 : 1;
        }
        // A sun of some width from the left of the viewer: soft edges of its shadows.
        ox_3dvector sun = from.forward * -0.55f - from.right * 0.75f + ox_3dvector(0, 0, 1.05f);
        sun += ox_3dvector(noise(state) - 0.5f, noise(state) - 0.5f, noise(state) - 0.5f) * 0.05f;
        sun.normalize();
        const float slant = ox::ox_dot(sun, n);
        const float lit =
            slant > 0.0f && !is_hidden(start, sun, 10.0f * reach) ? slant / 0.72f : 0.0f;
        shade_lit(s, 0.2f + 0.8f * static_cast<float>(free) / sky_rays, lit, color);
    }

    const scene& things;
    const view from;
    const int width;
    const int height;
    std::vector<sample> seen;
    RTCDevice device;
    RTCScene world;
};

} // namespace

void scene::add_triangle(const triangle& t) {
    triangles.push_back(t);
    bounds.enlarge(t.a);
    bounds.enlarge(t.b);
    bounds.enlarge(t.c);
}

void scene::add(ox::ox_solid& solid, const ox_color& color) {
    for (ox::ox_polygon* face : solid.get_faces()) {
        ++faces;
        const auto& vertices = face->get_tesselation_vertices();
        const auto& indices = face->get_tesselation_triangles();
        const auto corner = [&](int i) { return vertices[static_cast<int>(indices[i])]; };
        for (int i = 0; i + 2 < indices.size(); i += 3) {
            add_triangle({corner(i), corner(i + 1), corner(i + 2), color, faces, true});
        }
    }
}

void scene::add_rod(const ox_3dvector& from, const ox_3dvector& to, float width,
                    const ox_color& color) {
    ox_3dvector along = to - from, u, v;
    along.normalize();
    along.build_axis(u, v);
    ox::ox_solid rod;
    rod.brick(from - (u + v) * (width / 2.0f), u * width, v * width, to - from);
    const std::size_t first = triangles.size();
    add(rod, color);
    for (std::size_t i = first; i < triangles.size(); ++i) {
        triangles[i].cornered = false;
    }
}

void scene::add_ball(const ox_3dvector& center, float radius, const ox_color& color) {
    constexpr int slices = 24, stacks = 12;
    const auto place = [&](int i, int k) {
        const float turn = 2.0f * pi * static_cast<float>(i) / slices;
        const float rise = pi * (static_cast<float>(k) / stacks - 0.5f);
        return center + ox_3dvector(std::cos(rise) * std::cos(turn),
                                    std::cos(rise) * std::sin(turn), std::sin(rise)) *
                            radius;
    };
    ++faces;
    for (int i = 0; i < slices; ++i) {
        for (int k = 0; k < stacks; ++k) {
            add_triangle({place(i, k), place(i + 1, k), place(i + 1, k + 1), color, faces, false});
            add_triangle({place(i, k), place(i + 1, k + 1), place(i, k + 1), color, faces, false});
        }
    }
}

ox_examples::image scene::render(int width, int height, double bearing, double elevation) const {
    picture_work work(*this, view_of(*this, width, height, bearing, elevation), width, height);
    work.start(std::thread::hardware_concurrency());
    return work.picture();
}

} // namespace gallery
