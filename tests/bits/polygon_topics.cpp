#include <tests/bits/result_digest.h>
#include <tests/support/generator.h>
#include <tests/support/random_shapes.h>

namespace bits {
namespace {

using ox::ox_3dvector;
using ox::ox_list;
using ox::ox_polygon;
using support::generator;

/// Moves a contour of the plane z = 0 into a frame.
ox_list<ox_3dvector> place(const ox_list<ox_3dvector>& flat, const ox_3dvector& origin,
                           const support::frame& axes) {
    ox_list<ox_3dvector> placed;
    for (int i = 0; i < flat.size(); ++i) {
        placed.push_right(origin + axes.x * flat.at(i).x + axes.y * flat.at(i).y);
    }
    return placed;
}

ox_list<ox_3dvector> random_rectangle(generator& random) {
    const float x = random.grid(-4, 4);
    const float y = random.grid(-4, 4);
    const float width = random.grid(0, 4);
    const float height = random.grid(0, 4);
    return support::rectangle(x, y, x + width, y + height);
}

/// Whole numbers only: shared corners, coincident edges, repeated points, empty areas.
ox_list<ox_3dvector> degenerate_contour(generator& random) {
    ox_list<ox_3dvector> flat;
    const int count = random.between(1, 8);
    for (int i = 0; i < count; ++i) {
        const int x = random.between(0, 3);
        const int y = random.between(0, 3);
        flat.push_right(ox_3dvector(static_cast<float>(x), static_cast<float>(y), 0.0f));
    }
    return flat;
}

ox_list<ox_3dvector> random_contour(generator& random) {
    const int kind = random.between(0, 2);
    if (kind == 0) {
        return random_rectangle(random);
    }
    if (kind == 1) {
        return degenerate_contour(random);
    }
    const int count = random.between(3, 9);
    return support::random_tangle(random, count, 4);
}

void add_random_contours(generator& random, const ox_3dvector& origin, const support::frame& axes,
                         ox_polygon& polygon) {
    const int contours = random.between(1, 4);
    for (int i = 0; i < contours; ++i) {
        polygon.add_contour(place(random_contour(random), origin, axes));
    }
}

/// Two polygons of one plane: every third pair lies in z = 0, the others are turned.
struct polygon_pair {
    explicit polygon_pair(generator& random) {
        support::frame axes;
        ox_3dvector origin;
        if (!random.one_in(3)) {
            axes = support::random_frame(random);
            origin = support::random_point(random, 50.0);
        }
        add_random_contours(random, origin, axes, a);
        add_random_contours(random, origin, axes, b);
        normal = axes.z;
    }

    ox_polygon a;
    ox_polygon b;
    ox_3dvector normal;
};

void add_pieces(const ox_list<ox_polygon*>& pieces, const ox_polygon& source,
                result_digest& digest) {
    digest.add(pieces.size());
    for (int i = 0; i < pieces.size(); ++i) {
        ox_polygon* piece = pieces.at(i);
        digest.add(piece == &source);
        if (piece != &source) {
            digest.add_contours(*piece);
            delete piece;
        }
    }
}

void run_normalisation(result_digest& digest) {
    generator random(101);
    for (int i = 0; i < 2000; ++i) {
        polygon_pair pair(random);
        digest.add_contours(pair.a);
        pair.a.reverse();
        digest.add_contours(pair.a);
        pair.b.set_normal(random_frame(random).z);
        digest.add_contours(pair.b);
    }
}

void run_booleans(result_digest& digest) {
    generator random(102);
    for (int i = 0; i < 2000; ++i) {
        polygon_pair pair(random);
        ox_polygon united = pair.a;
        united.unites(pair.b);
        digest.add_contours(united);
        ox_polygon rest = pair.a;
        rest.substracts(pair.b);
        digest.add_contours(rest);
        ox_polygon common = pair.a;
        common.intersects(pair.b);
        digest.add_contours(common);
    }
}

void run_offset(result_digest& digest) {
    generator random(103);
    for (int i = 0; i < 600; ++i) {
        polygon_pair pair(random);
        const float distance = random.grid(-1, 1);
        const int join = random.between(0, 2);
        pair.a.offset(distance, join);
        digest.add_contours(pair.a);
    }
}

void run_cutting(result_digest& digest) {
    generator random(104);
    for (int i = 0; i < 1500; ++i) {
        polygon_pair pair(random);
        const ox_3dvector normal = support::random_frame(random).x;
        const ox_3dvector point = pair.a.get_point() + support::random_point(random, 2.0);
        add_pieces(pair.a.cut_by_plane(point, normal, i % 2 == 0), pair.a, digest);
        digest.add(pair.b.intersect_by_plane(point, normal));
    }
}

void run_splitting(result_digest& digest) {
    generator random(105);
    for (int i = 0; i < 1500; ++i) {
        polygon_pair pair(random);
        pair.a.substracts(pair.b);
        add_pieces(pair.a.split_to_polygons(), pair.a, digest);
        digest.add(pair.a.is_convex(-1));
        digest.add(pair.a.is_convex(0));
    }
}

void run_tessellation(result_digest& digest) {
    generator random(106);
    for (int i = 0; i < 2000; ++i) {
        polygon_pair pair(random);
        digest.add_tessellation(pair.a);
        pair.a.unites(pair.b);
        digest.add_tessellation(pair.a);
    }
}

void run_best_centre(result_digest& digest) {
    generator random(107);
    for (int i = 0; i < 60; ++i) {
        polygon_pair pair(random);
        digest.add(pair.a.get_best_center());
    }
}

void run_containment(result_digest& digest) {
    generator random(108);
    for (int i = 0; i < 400; ++i) {
        polygon_pair pair(random);
        for (int k = 0; k < 20; ++k) {
            const ox_3dvector offset = support::random_point(random, 5.0);
            digest.add(pair.a.contains(pair.a.get_point() + offset));
        }
    }
}

} // namespace

const topic polygon_topics[8] = {
    {"normalisation", run_normalisation},
    {"polygon_booleans", run_booleans},
    {"offset", run_offset},
    {"cutting", run_cutting},
    {"splitting", run_splitting},
    {"tessellation", run_tessellation},
    {"best_centre", run_best_centre},
    {"containment", run_containment},
};

} // namespace bits
