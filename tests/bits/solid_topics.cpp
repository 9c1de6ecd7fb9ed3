#include <tests/bits/result_digest.h>
#include <tests/support/generator.h>
#include <tests/support/random_shapes.h>

namespace bits {
namespace {

using ox::ox_3dvector;
using ox::ox_list;
using ox::ox_polygon;
using ox::ox_solid;
using support::generator;

/// A brick of whole numbers: faces, edges and corners of two such bricks often coincide.
ox_solid whole_brick(generator& random) {
    const int x = random.between(0, 3);
    const int y = random.between(0, 3);
    const int z = random.between(0, 3);
    const int dx = random.between(1, 3);
    const int dy = random.between(1, 3);
    const int dz = random.between(1, 3);
    ox_solid solid;
    solid.brick(ox_3dvector(static_cast<float>(x), static_cast<float>(y), static_cast<float>(z)),
                static_cast<float>(dx), static_cast<float>(dy), static_cast<float>(dz));
    return solid;
}

ox_solid random_solid(generator& random) {
    if (random.one_in(3)) {
        return whole_brick(random);
    }
    const support::frame axes = support::random_frame(random);
    const ox_3dvector centre = support::random_point(random, 2.0);
    return random.one_in(2) ? support::random_brick(random, centre, axes)
                            : support::random_prism(random, centre, axes);
}

/// A plane through a point near the origin; every third one is horizontal at a whole height.
struct plane {
    explicit plane(generator& random) {
        if (random.one_in(3)) {
            const int height = random.between(0, 4);
            point = ox_3dvector(0.0f, 0.0f, static_cast<float>(height));
            normal = ox_3dvector(0.0f, 0.0f, 1.0f);
        } else {
            point = support::random_point(random, 1.0);
            normal = support::random_frame(random).z;
        }
    }

    ox_3dvector point;
    ox_3dvector normal;
};

void run_construction(result_digest& digest) {
    generator random(201);
    for (int i = 0; i < 1000; ++i) {
        ox_solid solid = random_solid(random);
        digest.add_solid(solid);
    }
}

void run_union(result_digest& digest) {
    generator random(202);
    for (int i = 0; i < 300; ++i) {
        ox_solid a = random_solid(random);
        ox_solid b = random_solid(random);
        a.unites(b);
        digest.add_solid(a);
    }
}

void run_difference_and_intersection(result_digest& digest) {
    generator random(203);
    for (int i = 0; i < 300; ++i) {
        ox_solid a = random_solid(random);
        ox_solid b = random_solid(random);
        ox_solid common = a;
        common.intersects(b);
        digest.add_solid(common);
        a.substracts(b);
        digest.add_solid(a);
    }
}

void run_section(result_digest& digest) {
    generator random(204);
    for (int i = 0; i < 1000; ++i) {
        ox_solid solid = random_solid(random);
        const plane cut(random);
        const ox_list<ox_polygon*> pieces = solid.intersect_by_plane(cut.point, cut.normal);
        digest.add(pieces.size());
        for (int k = 0; k < pieces.size(); ++k) {
            digest.add_contours(*pieces.at(k));
            delete pieces.at(k);
        }
    }
}

void run_clip(result_digest& digest) {
    generator random(205);
    for (int i = 0; i < 500; ++i) {
        ox_solid solid = random_solid(random);
        const plane cut(random);
        solid.clip(cut.point, cut.normal);
        digest.add_solid(solid);
    }
}

void run_projection(result_digest& digest) {
    generator random(206);
    for (int i = 0; i < 500; ++i) {
        ox_solid solid = random_solid(random);
        const plane screen(random);
        ox_polygon* shadow = solid.project_on_plane(screen.point, screen.normal);
        digest.add_contours(*shadow);
        digest.add_tessellation(*shadow);
        delete shadow;
    }
}

} // namespace

const topic solid_topics[6] = {
    {"construction", run_construction},
    {"solid_union", run_union},
    {"solid_difference_and_intersection", run_difference_and_intersection},
    {"section", run_section},
    {"clip", run_clip},
    {"projection", run_projection},
};

} // namespace bits
