// Contours along the axes of the frame take the answer that the clipping library gave for others
// that lay alike. It must be the library's own answer, whatever the distances between the
// coordinates, and for contours that cross, touch, overlap and cross themselves.

#include <algorithm>
#include <vector>

#include <ox/polygon/ox_polygon.h>
#include <tests/polygon/plain_twins.h>

using namespace polygon_checks;
using ox::ox_3dvector;
using support::generator;

namespace {

struct ranks {
    int x = 0;
    int y = 0;
};

using arrangement = std::vector<ranks>;

constexpr int most_ranks = 4; // few, so that many arrangements come again

arrangement rectangle(generator& random) {
    const int x = random.between(0, most_ranks - 2);
    const int y = random.between(0, most_ranks - 2);
    const int right = random.between(x + 1, most_ranks - 1);
    const int top = random.between(y + 1, most_ranks - 1);
    return {{x, y}, {right, y}, {right, top}, {x, top}};
}

arrangement l_shape(generator& random) {
    const int x = random.between(1, most_ranks - 2);
    const int y = random.between(1, most_ranks - 2);
    const int last = most_ranks - 1;
    const int first = random.between(0, x - 1);
    return {{first, 0}, {last, 0}, {last, y}, {x, y}, {x, last}, {first, last}};
}

// Any closed walk of level and upright steps: it crosses and retraces itself.
arrangement walk(generator& random) {
    arrangement result;
    const int turns = random.between(2, 3);
    int y = random.between(0, most_ranks - 1);
    const int first_y = y;
    for (int i = 0; i < turns; ++i) {
        const int x = random.between(0, most_ranks - 1);
        result.push_back({x, y});
        y = i + 1 < turns ? random.between(0, most_ranks - 1) : first_y;
        result.push_back({x, y});
    }
    return result;
}

arrangement random_arrangement(generator& random) {
    arrangement result;
    switch (random.between(0, 4)) {
    case 0:
        result = l_shape(random);
        break;
    case 1:
        result = walk(random);
        break;
    default:
        result = rectangle(random);
        break;
    }
    if (random.one_in(6)) { // every corner twice
        arrangement doubled;
        for (const ranks& r : result) {
            doubled.insert(doubled.end(), {r, r});
        }
        result = doubled;
    }
    const int start = random.between(0, static_cast<int>(result.size()) - 1);
    std::rotate(result.begin(), result.begin() + start, result.end());
    if (random.one_in(2)) {
        std::reverse(result.begin(), result.end());
    }
    return result;
}

/// Coordinates for the ranks, with gaps from one grid unit to half the space.
struct ruler {
    float values[most_ranks] = {};
};

ruler random_ruler(generator& random) {
    const int gaps[] = {1, 1, 2, 3, 10, 1000, 100000, 3000000};
    const int widest = random.between(0, 7);
    int at = random.one_in(3) ? 0 : random.between(-1000000, 1000000);
    ruler result;
    for (float& value : result.values) {
        value = static_cast<float>(at) * 0.0001f;
        at += gaps[random.between(0, widest)];
    }
    return result;
}

reference::contour draw(const arrangement& shape, const ruler& x, const ruler& y) {
    reference::contour result;
    for (const ranks& r : shape) {
        result.push_back(ox_3dvector(x.values[r.x], y.values[r.y], 0.0f));
    }
    return result;
}

void add_contours(generator& random, const ruler& x, const ruler& y, twins& target) {
    target.set_plane(ox_3dvector(), ox_3dvector(0.0f, 0.0f, 1.0f));
    const int n = random.one_in(3) ? 2 : 1;
    for (int i = 0; i < n; ++i) {
        target.add(draw(random_arrangement(random), x, y));
    }
    target.merge();
}

} // namespace

TEST(RectilinearPattern, MergedContoursAreThoseOfTheClippingLibrary) {
    generator random(40311);
    for (int round = 0; round < 40000 && !testing::Test::HasFailure(); ++round) {
        const ruler x = random_ruler(random);
        const ruler y = random_ruler(random);
        twins pair;
        add_contours(random, x, y, pair);
        expect_equal(pair.polygon, pair.plain);
        if (random.one_in(4)) {
            pair.add(draw(random_arrangement(random), x, y));
            pair.merge();
            expect_equal(pair.polygon, pair.plain);
        }
    }
}

TEST(RectilinearPattern, BooleansAreThoseOfTheClippingLibrary) {
    generator random(40312);
    for (int round = 0; round < 60000 && !testing::Test::HasFailure(); ++round) {
        const ruler x = random_ruler(random);
        const ruler y = random_ruler(random);
        twins a;
        add_contours(random, x, y, a);
        twins b;
        add_contours(random, x, y, b);
        combine_and_compare(round, a, b);
    }
}
