#include <examples/building/description_checks.h>

#include <examples/building/layout.h>
#include <examples/building/plan_geometry.h>
#include <examples/building/shapes.h>

#include <cmath>

namespace building {

namespace {

/// Metres of wall that must remain beside and above an opening.
constexpr double smallest_rest = 0.01;

/// Metres. A line shorter than this has no direction.
constexpr double shortest_line = 0.01;

/// Metres by which openings may overlap before it counts: the rounding of decimal numbers.
constexpr double rounding = 1e-9;

/// Square metres of another wall that a cutting solid may touch before it counts.
constexpr double smallest_touch = 1e-6;

/// The checks of one description; each throws at the first record that does not fit.
class checker {
public:
    checker(const description& checked, const std::string& file_name)
        : d(checked), require(file_name) {}

    void check_whole() const;
    void check_wall(const wall& w) const;
    void check_place(const opening& o) const;
    void check_headroom(const opening& o) const;
    void check_neighbours(const opening& o) const;
    void check_slab(const slab& s) const;
    void check_roof(const roof& r) const;

private:
    const description& d;
    const ox_examples::requirement require;
};

void checker::check_whole() const {
    require(!d.name.empty(), 0, "no 'building' line names the building");
    require(!d.walls.empty(), 0, "the building has no walls");
}

void checker::check_wall(const wall& w) const {
    require(frame_of(w).length >= shortest_line, w.line, "wall '" + w.name + "' has no length");
}

void checker::check_place(const opening& o) const {
    const wall& w = d.walls[o.wall];
    const bool fits_along =
        o.distance >= smallest_rest && o.distance + o.width <= frame_of(w).length - smallest_rest;
    const bool fits_upright =
        (o.sill == 0 || o.sill >= smallest_rest) && o.sill + o.height <= w.height - smallest_rest;
    require(fits_along && fits_upright, o.line,
            "opening '" + o.name + "' lies outside its wall '" + w.name + "'");
}

void checker::check_headroom(const opening& o) const {
    const wall& w = d.walls[o.wall];
    const double top = d.storeys[w.storey].level + o.sill + o.height;
    for (const height_plane& ceiling : ceilings(d, w.storey)) {
        for (const plan_point& corner : footprint(o, w)) {
            require(ceiling.at(corner) >= top + smallest_rest, o.line,
                    "opening '" + o.name + "' lies outside its wall: it reaches into the roof");
        }
    }
}

/// Whether two intervals share more than rounding.
bool overlap(double start, double size, double other_start, double other_size) {
    return start + rounding < other_start + other_size && other_start + rounding < start + size;
}

void checker::check_neighbours(const opening& o) const {
    for (const opening& other : d.openings) {
        const bool meets = &other != &o && other.wall == o.wall &&
                           overlap(o.distance, o.width, other.distance, other.width) &&
                           overlap(o.sill, o.height, other.sill, other.height);
        require(!meets, o.line, "opening '" + o.name + "' overlaps '" + other.name + "'");
    }
    const wall& own = d.walls[o.wall];
    for (const wall& w : d.walls) {
        const bool meets =
            &w != &own && w.storey == own.storey &&
            signed_area(intersection(footprint(o, own), footprint(w))) > smallest_touch;
        require(!meets, o.line, "opening '" + o.name + "' cuts into wall '" + w.name + "'");
    }
}

void checker::check_slab(const slab& s) const {
    // The polygon sorts its contours into outlines and holes: what it finds must be what is said.
    ox::ox_polygon shape = level_polygon(s.outline, s.holes, 0);
    const int nb_contours = static_cast<int>(s.holes.size()) + 1;
    require(shape.count_outer_contours() == 1 && shape.get_contour_sizes().size() == nb_contours,
            s.line, "the outline and the holes of slab '" + s.name + "' cross or are not nested");
}

void checker::check_roof(const roof& r) const {
    ox::ox_polygon shape = level_polygon(r.outline, {}, 0);
    require(shape.is_convex(-1), r.line, "the outline of roof '" + r.name + "' is not convex");
    require(!r.slopes.empty(), r.line, "roof '" + r.name + "' has no slope");
    for (const slope& s : r.slopes) {
        require(std::hypot(s.to.x - s.from.x, s.to.y - s.from.y) >= shortest_line, r.line,
                "a slope of roof '" + r.name + "' has no direction: its line has no length");
    }
}

} // namespace

void check_description(const description& d, const std::string& file) {
    const checker c(d, file);
    c.check_whole();
    for (const wall& w : d.walls) {
        c.check_wall(w);
    }
    for (const slab& s : d.slabs) {
        c.check_slab(s);
    }
    for (const roof& r : d.roofs) {
        c.check_roof(r);
    }
    for (const opening& o : d.openings) {
        c.check_place(o);
        c.check_headroom(o);
        c.check_neighbours(o);
    }
}

} // namespace building
