#include <examples/building/assembly.h>

#include <examples/building/layout.h>
#include <examples/building/shapes.h>
#include <examples/building/volumes.h>

#include <ox/core/ox_chrono.h>
#include <ox/solid/ox_csg.h>

#include <algorithm>
#include <stdexcept>

namespace building {

namespace {

/// Metres by which the hollow of a roof reaches beyond the roof, at the eaves and below.
constexpr double hollow_reach = 0.1;

/// Metres of a block above the highest point of the slopes that are to cut it.
constexpr double headroom = 1;

ox::ox_solid wall_solid(const wall& w, double floor) {
    const plan_contour base = footprint(w);
    const ox::ox_3dvector origin = at_height(base[0], floor);
    ox::ox_solid solid;
    solid.brick(origin, at_height(base[1], floor) - origin, at_height(base[3], floor) - origin,
                at_height({}, w.height));
    return solid;
}

/// What an opening takes out of its wall: its outline, swept through the wall so that it sticks out
/// on both sides, and a door's also below the floor.
ox::ox_solid cutter_solid(const opening& o, const wall& w, double floor) {
    const wall_frame frame = frame_of(w);
    const double reach = w.thickness / 2 + cutter_reach;
    const plan_point start = moved(moved(w.from, frame.along, o.distance), frame.across, -reach);
    ox::ox_list<ox::ox_3dvector> outline;
    for (const plan_point& p : elevation(o, o.sill == 0 ? -cutter_reach : 0)) {
        outline.push_right(at_height(moved(start, frame.along, p.x), floor + o.sill + p.y));
    }
    const ox::ox_3dvector across = at_height(frame.across, 0);
    ox::ox_polygon base(at_height(start, floor), across);
    base.add_contour(outline);
    ox::ox_solid solid;
    solid.extrusion(base, across * static_cast<float>(2 * reach));
    return solid;
}

/// What the operands come to. Throws `std::runtime_error` where one of them is not closed.
ox::ox_solid result_of(ox::ox_csg& csg) {
    if (!csg.compute()) {
        const ox::ox_csg_problem& problem = csg.get_problem(0);
        throw std::runtime_error("part " + std::to_string(problem.operand) +
                                 " of an element is no closed solid");
    }
    return csg.get_solid();
}

/// Keeps what lies under the planes. `near` is a place in the plan where their height is taken.
void clip_under(ox::ox_csg& csg, const std::vector<height_plane>& planes, const plan_point& near) {
    for (const height_plane& plane : planes) {
        csg.clips(at_height(near, plane.at(near)),
                  ox::ox_3dvector(static_cast<float>(-plane.dx), static_cast<float>(-plane.dy), 1));
    }
}

/// What stands on `base`, which lies at height `bottom`, up to the lowest of the planes.
ox::ox_solid solid_under(ox::ox_polygon base, double bottom,
                         const std::vector<height_plane>& planes) {
    double top = bottom;
    for (const ox::ox_3dvector& corner : base.get_contour_vertices()) {
        for (const height_plane& plane : planes) {
            top = std::max(top, plane.at({corner.x, corner.y}));
        }
    }
    ox::ox_solid block;
    block.extrusion(base, at_height({}, top + headroom - bottom));
    const ox::ox_3dvector corner = base.get_contour_vertices()[0];
    ox::ox_csg csg;
    csg.unites(block);
    clip_under(csg, planes, {corner.x, corner.y});
    return result_of(csg);
}

/// Joins the walls of a storey, cuts its openings and ends the walls at the roof, all in one pass:
/// walls may cross, overlap and abut in any way, along the axes or askew.
ox::ox_solid storey_solid(const description& d, std::size_t storey, ox_examples::progress& steps) {
    const double floor = d.storeys[storey].level;
    ox::ox_csg csg;
    plan_point near;
    for (const wall& w : d.walls) {
        if (w.storey == storey) {
            steps.advance("wall " + w.name);
            csg.unites(wall_solid(w, floor));
            near = w.from;
        }
    }
    for (const opening& o : d.openings) {
        const wall& w = d.walls[o.wall];
        if (w.storey == storey) {
            steps.advance("opening " + o.name);
            csg.substracts(cutter_solid(o, w, floor));
        }
    }
    clip_under(csg, ceilings(d, storey), near);
    return result_of(csg);
}

/// Sweeps the slab's polygon from its lower side up: along the polygon's normal, so that the faces
/// look outwards.
ox::ox_solid slab_solid(const slab& s) {
    ox::ox_polygon base = level_polygon(s.outline, s.holes, s.level - s.thickness);
    ox::ox_solid solid;
    solid.extrusion(base, at_height({}, s.thickness));
    return solid;
}

/// A block clipped by the upper sides of the slopes, hollowed by a larger one clipped by their
/// lower sides.
ox::ox_solid roof_solid(const roof& r) {
    std::vector<height_plane> upper;
    std::vector<height_plane> lower;
    for (const slope& s : r.slopes) {
        upper.push_back(upper_side(s));
        lower.push_back(lower_side(s, r.thickness));
    }
    ox::ox_polygon base = level_polygon(r.outline, {}, r.level - hollow_reach);
    base.offset(static_cast<float>(hollow_reach), ox::ox_polygon::join_miter);
    ox::ox_csg csg;
    csg.unites(solid_under(level_polygon(r.outline, {}, r.level), r.level, upper));
    csg.substracts(solid_under(base, r.level - hollow_reach, lower));
    return result_of(csg);
}

bool has_walls(const description& d, std::size_t storey) {
    return std::any_of(d.walls.begin(), d.walls.end(),
                       [storey](const wall& w) { return w.storey == storey; });
}

/// An element with the solid that `make_solid` returns, and the time it took.
template <typename F>
element make_element(element_kind kind, const std::string& name, double expected_volume,
                     const F& make_solid) {
    element e;
    e.kind = kind;
    e.name = name;
    e.expected_volume = expected_volume;
    ox::ox_chrono chrono;
    chrono.start();
    e.solid = make_solid();
    e.seconds = chrono.elapsed();
    return e;
}

element walls_element(const description& d, std::size_t storey, ox_examples::progress& steps) {
    element e =
        make_element(element_kind::walls, "walls of storey " + std::to_string(storey),
                     walls_volume(d, storey), [&] { return storey_solid(d, storey, steps); });
    e.storey = storey;
    return e;
}

element slab_element(const slab& s, ox_examples::progress& steps) {
    steps.advance("slab " + s.name);
    element e = make_element(element_kind::slab, "slab " + s.name, slab_volume(s),
                             [&s] { return slab_solid(s); });
    e.level = s.level;
    return e;
}

element roof_element(const roof& r, ox_examples::progress& steps) {
    steps.advance("roof " + r.name);
    return make_element(element_kind::roof, "roof " + r.name, roof_volume(r),
                        [&r] { return roof_solid(r); });
}

} // namespace

int count_steps(const description& d) {
    return static_cast<int>(d.walls.size() + d.openings.size() + d.slabs.size() + d.roofs.size());
}

std::vector<element> assemble(const description& d, ox_examples::progress& steps) {
    std::vector<element> elements;
    for (std::size_t storey = 0; storey < d.storeys.size(); ++storey) {
        if (has_walls(d, storey)) {
            elements.push_back(walls_element(d, storey, steps));
        }
    }
    for (const slab& s : d.slabs) {
        elements.push_back(slab_element(s, steps));
    }
    for (const roof& r : d.roofs) {
        elements.push_back(roof_element(r, steps));
    }
    return elements;
}

} // namespace building
