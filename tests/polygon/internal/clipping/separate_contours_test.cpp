// Contours that keep clear of each other, and single ones that climb and fall once, are merged and
// combined without the clipping library: the answers must be the library's, to the order of
// contours and vertices, and at every distance at which it has to be asked after all.

#include <algorithm>
#include <cmath>
#include <vector>

#include <ox/polygon/ox_polygon.h>
#include <tests/polygon/plain_twins.h>

using namespace polygon_checks;
using ox::ox_3dvector;
using support::generator;

namespace {

/// A point in grid units.
struct spot {
    int x = 0;
    int y = 0;
};

using spots = std::vector<spot>;

struct cell {
    spot low;
    int size = 0;
};

spots rectangle(generator& random, int size) {
    const int x = random.between(0, size / 2);
    const int y = random.between(0, size / 2);
    const int right = random.between(size / 2 + 1, size);
    const int top = random.between(size / 2 + 1, size);
    return {{x, y}, {right, y}, {right, top}, {x, top}};
}

// In one of four directions, some of them with a slanted side.
spots l_shape(generator& random, int size) {
    const int notch_x = random.between(size / 4, size * 3 / 4);
    const int notch_y = random.between(size / 4, size * 3 / 4);
    spots result = {
        {0, 0},          {size, 0}, {size - random.between(0, 1), notch_y}, {notch_x, notch_y},
        {notch_x, size}, {0, size}};
    const int turns = random.between(0, 3);
    for (spot& s : result) {
        for (int i = 0; i < turns; ++i) {
            s = spot{size - s.y, s.x};
        }
    }
    return result;
}

// Corners on a circle, some of them on its sides' straight lines after rounding.
spots convex(generator& random, int size) {
    const int n = random.between(3, 12);
    std::vector<double> angles;
    for (int i = 0; i < n; ++i) {
        angles.push_back(random.real(0.0, 6.28));
    }
    std::sort(angles.begin(), angles.end());
    spots result;
    for (const double a : angles) {
        const double r = size / 2.0;
        result.push_back(
            {static_cast<int>(r + r * std::cos(a)), static_cast<int>(r + r * std::sin(a))});
    }
    return result;
}

// Two sides that climb in steps, level or slanted, or only slanted.
spots monotone(generator& random, int size) {
    const int n = random.between(1, 5);
    spots right;
    spots left;
    for (int i = 0; i <= n; ++i) {
        const int y = size * i / n;
        const int before = size * std::max(i - 1, 0) / n;
        right.push_back({random.between(size / 2, size), random.one_in(3) ? before : y});
        left.push_back({random.between(0, size / 2), random.one_in(3) ? before : y});
    }
    right.insert(right.end(), left.rbegin(), left.rend());
    return right;
}

// Any vertices in any order.
spots tangled(generator& random, int size) {
    spots result;
    const int n = random.between(3, 7);
    for (int i = 0; i < n; ++i) {
        result.push_back({random.between(0, size), random.between(0, size)});
    }
    return result;
}

// Repeats vertices, inserts straight ones, and starts anywhere in either direction.
void disguise(generator& random, spots& shape) {
    for (std::size_t i = shape.size(); i-- > 0;) {
        if (random.one_in(12)) {
            const spot a = shape[i];
            const spot b = shape[(i + 1) % shape.size()];
            const spot between = random.one_in(2) ? a : spot{(a.x + b.x) / 2, (a.y + b.y) / 2};
            shape.insert(shape.begin() + static_cast<std::ptrdiff_t>(i) + 1, between);
        }
    }
    const int start = random.between(0, static_cast<int>(shape.size()) - 1);
    std::rotate(shape.begin(), shape.begin() + start, shape.end());
    if (random.one_in(2)) {
        std::reverse(shape.begin(), shape.end());
    }
}

// Lets the way overshoot corners by a unit or more and turn back, as that between faces of
// neighbours does when each has rounded the common corner in a frame of its own. Some of the tips
// lie beside the way: then they stay.
void add_spikes(generator& random, spots& shape) {
    for (std::size_t i = shape.size(); i-- > 0;) {
        if (random.one_in(2)) {
            continue;
        }
        const spot before = shape[(i + shape.size() - 1) % shape.size()];
        const spot corner = shape[i];
        const int times = random.between(1, 3);
        const spot step{(corner.x > before.x) - (corner.x < before.x),
                        (corner.y > before.y) - (corner.y < before.y)};
        const bool whole = random.one_in(4); // past the corner by the whole way to it
        const spot tip{corner.x + times * (whole ? corner.x - before.x : step.x),
                       corner.y + times * (whole ? corner.y - before.y : step.y)};
        shape.insert(shape.begin() + static_cast<std::ptrdiff_t>(i), tip);
        if (random.one_in(3)) { // there and back again
            shape.insert(shape.begin() + static_cast<std::ptrdiff_t>(i), {corner, tip, corner});
        }
    }
}

// Every corner twice, the second one up to a unit beside the first, or beside and above or below
// it.
spots doubled_corners(generator& random, const spots& shape) {
    spots result;
    for (const spot& s : shape) {
        result.push_back(s);
        const int direction = random.between(0, 2);
        const int beside = random.between(-1, 1);
        const int above = random.between(-1, 1);
        result.push_back({s.x + (direction == 1 ? 0 : beside), s.y + (direction == 0 ? 0 : above)});
    }
    return result;
}

spots regular(int sides, int size, double turned) {
    spots result;
    for (int i = 0; i < sides; ++i) {
        const double angle = turned + 6.283185307179586 * i / sides;
        result.push_back({static_cast<int>(std::lround(size / 2.0 * (1.0 + std::cos(angle)))),
                          static_cast<int>(std::lround(size / 2.0 * (1.0 + std::sin(angle))))});
    }
    return result;
}

spots random_shape(generator& random, bool tidy, int size) {
    spots shape;
    switch (random.between(0, tidy ? 6 : 9)) {
    case 0:
    case 1:
    case 2:
        shape = rectangle(random, size);
        break;
    case 3:
    case 4:
        shape = l_shape(random, size);
        break;
    case 5:
    case 6:
        shape = convex(random, size);
        break;
    case 7:
    case 8:
        shape = monotone(random, size);
        break;
    default: // not always simple
        shape = tangled(random, size);
        break;
    }
    disguise(random, shape);
    return shape;
}

/// Turns grid units into vertices on a plane.
struct canvas {
    bool tidy = false; // no shape crosses itself, no two come close
    support::frame axes;
    double unit = 0.0001;
    double origin = 0.0;

    reference::contour draw(const spots& shape, const spot& at = spot{}) const {
        reference::contour result;
        for (const spot& s : shape) {
            const float u = static_cast<float>(origin + unit * (at.x + s.x));
            const float v = static_cast<float>(origin + unit * (at.y + s.y));
            result.push_back(axes.x * u + axes.y * v);
        }
        return result;
    }
};

canvas random_canvas(generator& random) {
    canvas result;
    result.tidy = random.one_in(2);
    if (random.one_in(3)) {
        result.axes = support::random_frame(random);
    }
    const double units[] = {0.0001, 0.0001, 0.001, 0.013, 0.25, 40.0, 900.0};
    result.unit = units[random.between(0, result.tidy ? 4 : 6)];
    if (!result.tidy && random.one_in(6)) {
        result.origin = random.real(-60000.0, 60000.0);
    }
    return result;
}

void merge_and_compare(twins& pair) {
    pair.merge();
    expect_equal(pair.polygon, pair.plain);
}

// A cell, sometimes narrowed so little that its content nearly touches that of the next.
cell inner_cell(generator& random, bool tidy, const cell& outer) {
    const int margin = !tidy && random.one_in(2) ? random.between(0, 4) : outer.size / 4;
    return {{outer.low.x + margin, outer.low.y + margin}, outer.size - 2 * margin};
}

// Shapes in shapes: the cell of the inner one lies in the middle of the outer one.
void add_nest(generator& random, const canvas& paper, const cell& place, twins& target) {
    const bool frame = random.one_in(2);
    const spots shape =
        frame ? spots{{0, 0}, {place.size, 0}, {place.size, place.size}, {0, place.size}}
              : random_shape(random, paper.tidy, place.size);
    target.add(paper.draw(shape, place.low));
    const bool roomy = frame || !paper.tidy;
    if (roomy && place.size > 20 && random.one_in(2)) {
        add_nest(random, paper, inner_cell(random, paper.tidy, place), target);
    }
}

// Cells in rows, all on the levels of their row, in a random order.
void add_rows(generator& random, const canvas& paper, const cell& place, int columns, int rows,
              twins& target) {
    std::vector<cell> cells;
    const int pitch = place.size / std::max(columns, rows);
    for (int i = 0; i < columns * rows; ++i) {
        const spot low{place.low.x + pitch * (i % columns), place.low.y + pitch * (i / columns)};
        const int gap = random.between(paper.tidy ? 1 : 0, pitch / 3);
        cells.push_back({low, pitch - gap});
    }
    for (std::size_t i = cells.size(); i-- > 1;) {
        std::swap(cells[i],
                  cells[static_cast<std::size_t>(random.between(0, static_cast<int>(i)))]);
    }
    for (const cell& c : cells) {
        if (!random.one_in(5)) {
            add_nest(random, paper, c, target);
        }
    }
}

void add_wall_with_openings(generator& random, const canvas& paper, twins& target) {
    const int size = random.between(100, 2000);
    target.add(paper.draw({{0, 0}, {size, 0}, {size, size}, {0, size}}));
    const int columns = random.between(1, 9);
    const int rows = random.between(1, 5);
    add_rows(random, paper, inner_cell(random, paper.tidy, {{}, size}), columns, rows, target);
}

spots spiked_shape(generator& random, bool tidy, int size) {
    spots shape = random_shape(random, tidy, size);
    if (random.one_in(2)) {
        shape = doubled_corners(random, shape);
    }
    if (random.one_in(2)) {
        add_spikes(random, shape);
    }
    disguise(random, shape);
    return shape;
}

} // namespace

TEST(SeparateContours, SingleContoursAreMergedAsTheClippingLibraryDoes) {
    generator random(40111);
    for (int round = 0; round < 60000 && !testing::Test::HasFailure(); ++round) {
        const canvas paper = random_canvas(random);
        const int sizes[] = {1, 2, 3, 5, 10, 100, 10000};
        const int size = sizes[random.between(0, 6)];
        twins pair;
        pair.add(paper.draw(random_shape(random, paper.tidy, size)));
        merge_and_compare(pair);
    }
}

TEST(SeparateContours, SpikesAreLeftOutAsTheClippingLibraryDoes) {
    generator random(40116);
    for (int round = 0; round < 60000 && !testing::Test::HasFailure(); ++round) {
        const canvas paper = random_canvas(random);
        const int sizes[] = {1, 2, 3, 5, 10, 100, 10000};
        twins pair;
        pair.add(paper.draw(spiked_shape(random, paper.tidy, sizes[random.between(0, 6)])));
        merge_and_compare(pair);
    }
}

TEST(SeparateContours, RowsOfSpikedContoursAreMergedAsTheClippingLibraryDoes) {
    generator random(40117);
    for (int round = 0; round < 3000 && !testing::Test::HasFailure(); ++round) {
        const canvas paper = random_canvas(random);
        twins pair;
        pair.set_plane(ox_3dvector(), paper.axes.z);
        const int count = random.between(1, 40);
        const int size = random.between(10, 200);
        const int room = paper.tidy ? 8 * size : size + random.between(0, 4);
        for (int i = 0; i < count; ++i) {
            pair.add(paper.draw(spiked_shape(random, paper.tidy, size),
                                {room * i, random.between(0, 1) * random.between(0, 9)}));
        }
        if (random.one_in(2)) { // all around them
            const int margin = 4 * room;
            const int right = room * count + margin;
            pair.add(paper.draw({{-margin, -margin},
                                 {right, -margin},
                                 {right + 1, -margin},
                                 {right, margin},
                                 {-margin, margin}}));
        }
        merge_and_compare(pair);
    }
}

// More contours on one level than the library's sort keeps in their order, with and without folds.
TEST(SeparateContours, RowsOfRoundOpeningsAreMergedAsTheClippingLibraryDoes) {
    generator random(40118);
    for (int round = 0; round < 300 && !testing::Test::HasFailure(); ++round) {
        const canvas paper;
        twins pair;
        pair.set_plane(ox_3dvector(), paper.axes.z);
        const int size = random.between(40, 4000);
        const int sides = random.between(5, 24);
        const double turned = random.real(0.0, 1.0);
        const int count = random.between(10, 60);
        for (int i = 0; i < count; ++i) {
            const spots opening = doubled_corners(random, regular(sides, size, turned));
            pair.add(paper.draw(opening, {2 * size * i, random.one_in(4) ? 1 : 0}));
        }
        if (random.one_in(2)) { // the wall around them
            pair.add(paper.draw({{-size, -size},
                                 {2 * size * count, -size},
                                 {2 * size * count, 2 * size},
                                 {-size, 2 * size}}));
        }
        merge_and_compare(pair);
    }
}

TEST(SeparateContours, RowsAndNestsOfContoursAreMergedAsTheClippingLibraryDoes) {
    generator random(40112);
    for (int round = 0; round < 4000 && !testing::Test::HasFailure(); ++round) {
        const canvas paper = random_canvas(random);
        twins pair;
        pair.set_plane(ox_3dvector(), paper.axes.z);
        const int size = random.between(100, 4000);
        const int columns = random.between(1, 9);
        const int rows = random.between(1, 4);
        add_rows(random, paper, {{}, size}, columns, rows, pair);
        merge_and_compare(pair);
    }
}

TEST(SeparateContours, WallsWithOpeningsAreMergedAsTheClippingLibraryDoes) {
    generator random(40113);
    for (int round = 0; round < 4000 && !testing::Test::HasFailure(); ++round) {
        const canvas paper = random_canvas(random);
        twins pair;
        add_wall_with_openings(random, paper, pair);
        merge_and_compare(pair);
    }
}

TEST(SeparateContours, BooleansAreThoseOfTheClippingLibrary) {
    generator random(40114);
    for (int round = 0; round < 8000 && !testing::Test::HasFailure(); ++round) {
        const canvas paper = random_canvas(random);
        twins a;
        twins b;
        a.set_plane(ox_3dvector(), paper.axes.z);
        b.set_plane(ox_3dvector(), random.one_in(3) ? -paper.axes.z : paper.axes.z);
        add_wall_with_openings(random, paper, a);
        const int size = random.between(5, 500);
        const spot low{random.between(-100, 1000), random.between(-100, 1000)};
        if (random.one_in(3)) {
            add_rows(random, paper, {low, size + 50}, random.between(1, 4), random.between(1, 4),
                     b);
        } else {
            add_nest(random, paper, {low, size}, b);
        }
        combine_and_compare(round, a, b);
    }
}

TEST(SeparateContours, OpeningsCutOneAfterAnotherKeepTheOrderOfTheClippingLibrary) {
    generator random(40115);
    for (int round = 0; round < 60 && !testing::Test::HasFailure(); ++round) {
        const canvas paper;
        twins wall;
        wall.set_plane(ox_3dvector(), paper.axes.z);
        wall.add(paper.draw({{0, 0}, {6000, 0}, {6000, 3000}, {0, 3000}}));
        wall.merge();
        for (int i = 0; i < 40; ++i) {
            twins opening;
            opening.set_plane(ox_3dvector(), paper.axes.z);
            const int level = 100 * random.between(1, 3);
            opening.add(paper.draw({{0, 0}, {90, 0}, {90, 90}, {0, 90}}, {150 * i + 20, level}));
            combine_and_compare(1, wall, opening);
        }
    }
}
