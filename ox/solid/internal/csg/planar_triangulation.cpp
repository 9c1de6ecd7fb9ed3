#include <ox/solid/internal/csg/planar_triangulation.h>

#include <algorithm>
#include <cstddef>
#include <set>
#include <utility>

// A line sweeps over the vertices from left to right and keeps the edges that it meets, from bottom
// to top. The gap between two neighbouring edges is covered by the same regions all along. What
// lies to the left of the vertices that the gap has met is cut into triangles already; the border
// of that part, from the lower edge's left end to the upper edge's, is a chain of vertices that
// bulges to the right nowhere (else another triangle would fit) but at the vertex met last, the
// front. A new vertex sees the front, so it makes triangles with the chain on either side of the
// front as far as it sees it, and becomes the front itself. Each vertex enters and leaves a chain
// once, so only finding its place among the edges costs more than constant time.

namespace ox::internal::csg {

namespace {

/// How many times a region covers a gap.
struct covering {
    int region;
    int winding;
};

/// An edge from left to right with what is gained when it is crossed upwards.
struct sweep_edge {
    int left;
    int right;
    std::vector<covering> gained;
};

/// What lies between two neighbouring edges.
struct gap {
    std::vector<int> lower; ///< the chain from the lower edge to the front
    std::vector<int> upper; ///< the chain from the upper edge to the front
    std::vector<covering> covered;
};

/// Orders edges that do not cross from bottom to top, and places points among them.
struct vertical_order {
    using is_transparent = void;
    const std::vector<planar_point>* points;
    const std::vector<sweep_edge>* edges;

    /// On which side of edge `e` vertex `v` lies: 1 above, -1 below, 0 on its line.
    int side(int e, int v) const {
        const sweep_edge& edge = (*edges)[static_cast<std::size_t>(e)];
        return orientation(at(edge.left), at(edge.right), at(v));
    }

    const planar_point& at(int v) const { return (*points)[static_cast<std::size_t>(v)]; }

    /// True if edge `a`, which begins no later than `b`, lies below it.
    bool lies_below(int a, int b) const {
        const sweep_edge& other = (*edges)[static_cast<std::size_t>(b)];
        const int begin = side(a, other.left);
        return begin != 0 ? begin > 0 : side(a, other.right) > 0;
    }

    bool operator()(int a, int b) const {
        const planar_point& a_left = at((*edges)[static_cast<std::size_t>(a)].left);
        const planar_point& b_left = at((*edges)[static_cast<std::size_t>(b)].left);
        if (is_before(b_left, a_left)) {
            const sweep_edge& edge = (*edges)[static_cast<std::size_t>(a)];
            const int begin = side(b, edge.left);
            return begin != 0 ? begin < 0 : side(b, edge.right) < 0;
        }
        return lies_below(a, b);
    }
};

/// A vertex as a key of its own kind, to be placed among edges.
struct swept_vertex {
    int index;
};

struct placing_order : vertical_order {
    using vertical_order::operator();
    bool operator()(const swept_vertex& v, int e) const { return side(e, v.index) < 0; }
    bool operator()(int e, const swept_vertex& v) const { return side(e, v.index) > 0; }
};

class region_sweep {
public:
    region_sweep(const std::vector<planar_point>& points, const std::vector<region_edge>& edges,
                 std::vector<covered_triangle>& triangles);

    /// Meets every vertex; false where the edges cross.
    bool run();

private:
    using edge_status = std::set<int, placing_order>;

    void collect_edges(const std::vector<region_edge>& given);
    void sort_vertices();
    bool meet(int vertex);
    bool find_ending_edges(int vertex, std::vector<int>& ending);
    void meet_inside_gap(int vertex, gap& around, std::vector<int>& upper);
    bool close_gaps(int vertex, const std::vector<int>& ending, gap& below,
                    std::vector<int>& upper);
    bool open_gaps(int vertex, gap& below, edge_status::iterator next, std::vector<int>& upper);
    gap& gap_below(edge_status::iterator position);

    bool consume(const std::vector<int>& chain, bool is_lower, int vertex, const gap& where);
    void cut_off_visible(std::vector<int>& chain, bool is_lower, int vertex, const gap& where);
    void emit(int a, int b, int c, const gap& where);
    const planar_point& at(int v) const { return points[static_cast<std::size_t>(v)]; }

    const std::vector<planar_point>& points;
    std::vector<covered_triangle>& triangles;
    std::vector<sweep_edge> edges;
    std::vector<int> order;                  // vertices from left to right
    std::vector<std::vector<int>> beginning; // edges that leave each vertex to the right
    std::vector<std::vector<int>> ending;    // edges that reach each vertex from the left
    std::vector<gap> gaps;                   // the one above each edge; the last is the lowest one
    std::vector<edge_status::iterator> places;
    edge_status status;
};

region_sweep::region_sweep(const std::vector<planar_point>& given_points,
                           const std::vector<region_edge>& given,
                           std::vector<covered_triangle>& made)
    : points(given_points), triangles(made), beginning(given_points.size()),
      ending(given_points.size()), status(placing_order{{&points, &edges}}) {
    collect_edges(given);
    sort_vertices();
    gaps.resize(edges.size() + 1);
    places.resize(edges.size(), status.end());
}

/// An edge of one region, from its left vertex to its right one.
struct crossing {
    int left;
    int right;
    covering gained;
};

bool join_the_same(const crossing& a, const crossing& b) {
    return a.left == b.left && a.right == b.right;
}

bool comes_before(const crossing& a, const crossing& b) {
    return a.left != b.left     ? a.left < b.left
           : a.right != b.right ? a.right < b.right
                                : a.gained.region < b.gained.region;
}

/// What the crossings from `i` on gain that join the same vertices and are of the same region.
/// Moves `i` behind them.
covering take_region(const std::vector<crossing>& crossings, std::size_t& i) {
    const crossing& first = crossings[i];
    covering gained = {first.gained.region, 0};
    for (; i < crossings.size() && join_the_same(crossings[i], first) &&
           crossings[i].gained.region == gained.region;
         ++i) {
        gained.winding += crossings[i].gained.winding;
    }
    return gained;
}

/// Makes one edge of all that join the same vertices. Those that gain nothing bound nothing.
void region_sweep::collect_edges(const std::vector<region_edge>& given) {
    std::vector<crossing> crossings;
    crossings.reserve(given.size());
    for (const region_edge& edge : given) {
        if (edge.from == edge.to) {
            continue;
        }
        const bool rises = is_before(at(edge.from), at(edge.to));
        crossings.push_back({rises ? edge.from : edge.to,
                             rises ? edge.to : edge.from,
                             {edge.region, rises ? 1 : -1}});
    }
    std::sort(crossings.begin(), crossings.end(), comes_before);
    for (std::size_t i = 0; i < crossings.size();) {
        const crossing& first = crossings[i];
        sweep_edge edge = {first.left, first.right, {}};
        while (i < crossings.size() && join_the_same(crossings[i], first)) {
            const covering gained = take_region(crossings, i);
            if (gained.winding != 0) {
                edge.gained.push_back(gained);
            }
        }
        if (!edge.gained.empty()) {
            edges.push_back(std::move(edge));
        }
    }
}

void region_sweep::sort_vertices() {
    for (std::size_t e = 0; e < edges.size(); ++e) {
        beginning[static_cast<std::size_t>(edges[e].left)].push_back(static_cast<int>(e));
        ending[static_cast<std::size_t>(edges[e].right)].push_back(static_cast<int>(e));
        order.push_back(edges[e].left);
        order.push_back(edges[e].right);
    }
    std::sort(order.begin(), order.end(), [this](int a, int b) {
        return is_before(at(a), at(b)) || (!is_before(at(b), at(a)) && a < b);
    });
    order.erase(std::unique(order.begin(), order.end()), order.end());
}

bool region_sweep::run() {
    for (std::size_t i = 1; i < order.size(); ++i) {
        if (!is_before(at(order[i - 1]), at(order[i]))) {
            return false; // two vertices at one place
        }
    }
    return std::all_of(order.begin(), order.end(), [this](int vertex) { return meet(vertex); });
}

gap& region_sweep::gap_below(edge_status::iterator position) {
    return position == status.begin() ? gaps.back()
                                      : gaps[static_cast<std::size_t>(*std::prev(position))];
}

/// The edges that end at the vertex, from bottom to top; false where others lie between them.
bool region_sweep::find_ending_edges(int vertex, std::vector<int>& found) {
    found = std::move(ending[static_cast<std::size_t>(vertex)]);
    std::sort(found.begin(), found.end(), [this, vertex](int a, int b) {
        return orientation(at(edges[static_cast<std::size_t>(a)].left), at(vertex),
                           at(edges[static_cast<std::size_t>(b)].left)) > 0;
    });
    for (std::size_t i = 1; i < found.size(); ++i) {
        if (std::next(places[static_cast<std::size_t>(found[i - 1])]) !=
            places[static_cast<std::size_t>(found[i])]) {
            return false;
        }
    }
    return true;
}

bool region_sweep::meet(int vertex) {
    std::vector<int> closing;
    if (!find_ending_edges(vertex, closing)) {
        return false;
    }
    edge_status::iterator next;
    std::vector<int> upper; // the chain of the highest gap that the vertex is on
    if (closing.empty()) {
        next = status.upper_bound(swept_vertex{vertex});
        if (next != status.begin() && status.key_comp().side(*std::prev(next), vertex) == 0) {
            return false; // within an edge
        }
        meet_inside_gap(vertex, gap_below(next), upper);
        return open_gaps(vertex, gap_below(next), next, upper);
    }
    const edge_status::iterator lowest = places[static_cast<std::size_t>(closing.front())];
    next = std::next(places[static_cast<std::size_t>(closing.back())]);
    gap& below = gap_below(lowest);
    if (!close_gaps(vertex, closing, below, upper)) {
        return false;
    }
    status.erase(lowest, next);
    return open_gaps(vertex, below, next, upper);
}

void region_sweep::meet_inside_gap(int vertex, gap& around, std::vector<int>& upper) {
    cut_off_visible(around.lower, true, vertex, around);
    cut_off_visible(around.upper, false, vertex, around);
    upper = std::move(around.upper);
}

/// Fills the gaps between the edges that end at the vertex, and those below and above them as far
/// as the vertex sees.
bool region_sweep::close_gaps(int vertex, const std::vector<int>& closing, gap& below,
                              std::vector<int>& upper) {
    bool fits = consume(below.upper, false, vertex, below);
    cut_off_visible(below.lower, true, vertex, below);
    for (std::size_t i = 0; i + 1 < closing.size(); ++i) {
        const gap& between = gaps[static_cast<std::size_t>(closing[i])];
        fits = consume(between.lower, true, vertex, between) && fits;
        fits = consume(between.upper, false, vertex, between) && fits;
    }
    gap& above = gaps[static_cast<std::size_t>(closing.back())];
    fits = consume(above.lower, true, vertex, above) && fits;
    cut_off_visible(above.upper, false, vertex, above);
    upper = std::move(above.upper);
    return fits;
}

/// Divides the gap at the vertex by the edges that begin there; `upper` is the chain above it.
bool region_sweep::open_gaps(int vertex, gap& below, edge_status::iterator next,
                             std::vector<int>& upper) {
    std::vector<int> opening = std::move(beginning[static_cast<std::size_t>(vertex)]);
    std::sort(opening.begin(), opening.end(), [this, vertex](int a, int b) {
        return orientation(at(vertex), at(edges[static_cast<std::size_t>(a)].right),
                           at(edges[static_cast<std::size_t>(b)].right)) > 0;
    });
    gap* lower_gap = &below;
    for (const int e : opening) {
        const std::size_t count = status.size();
        places[static_cast<std::size_t>(e)] = status.insert(next, e);
        if (status.size() == count) {
            return false; // on another edge
        }
        lower_gap->upper.assign(1, vertex);
        gap& above = gaps[static_cast<std::size_t>(e)];
        above.lower.assign(1, vertex);
        above.covered = lower_gap->covered;
        for (const covering& gained : edges[static_cast<std::size_t>(e)].gained) {
            const auto place = std::lower_bound(
                above.covered.begin(), above.covered.end(), gained.region,
                [](const covering& held, int region) { return held.region < region; });
            if (place == above.covered.end() || place->region != gained.region) {
                above.covered.insert(place, gained);
            } else if ((place->winding += gained.winding) == 0) {
                above.covered.erase(place);
            }
        }
        lower_gap = &above;
    }
    lower_gap->upper = std::move(upper);
    return true;
}

/// Makes a triangle of the vertex with every link of a chain; false where one would have no area.
bool region_sweep::consume(const std::vector<int>& chain, bool is_lower, int vertex,
                           const gap& where) {
    for (std::size_t i = 0; i + 1 < chain.size(); ++i) {
        const int below = is_lower ? chain[i] : chain[i + 1];
        const int above = is_lower ? chain[i + 1] : chain[i];
        if (orientation(at(below), at(vertex), at(above)) <= 0) {
            return false;
        }
        emit(below, vertex, above, where);
    }
    return true;
}

/// Makes triangles of the vertex with the links at the end of a chain that it sees, and becomes
/// that end.
void region_sweep::cut_off_visible(std::vector<int>& chain, bool is_lower, int vertex,
                                   const gap& where) {
    while (chain.size() > 1) {
        const int front = chain.back();
        const int behind = chain[chain.size() - 2];
        const int below = is_lower ? behind : front;
        const int above = is_lower ? front : behind;
        if (orientation(at(below), at(vertex), at(above)) <= 0) {
            break;
        }
        emit(below, vertex, above, where);
        chain.pop_back();
    }
    chain.push_back(vertex);
}

void region_sweep::emit(int a, int b, int c, const gap& where) {
    for (const covering& covered : where.covered) {
        triangles.push_back({{a, b, c}, covered.region, covered.winding});
    }
}

} // namespace

bool triangulate_regions(const std::vector<planar_point>& points,
                         const std::vector<region_edge>& edges,
                         std::vector<covered_triangle>& triangles) {
    return region_sweep(points, edges, triangles).run();
}

} // namespace ox::internal::csg
