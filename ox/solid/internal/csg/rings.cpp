#include <ox/solid/internal/csg/rings.h>

#include <algorithm>
#include <unordered_map>
#include <utility>

// Edges are walked with the inside on their left. Where several leave a point, the walk goes on
// along the first one clockwise from where it came: the inside between the two is then one sector,
// so that walks do not cross. A walk that comes back to a point of its own is cut there, which
// leaves simple rings.

namespace ox::internal::csg {

namespace {

class ring_tracer {
public:
    ring_tracer(const face_boundary& boundary, const std::vector<grid_point>& all_points,
                const planar_view& seen);
    std::vector<point_ring> run();

private:
    point_ring walk(std::size_t first);
    std::size_t next_edge(std::size_t edge) const;
    bool is_sooner(const directed_edge& arriving, int a, int b) const;
    int turn(const directed_edge& arriving, int to) const;
    double area_of(const point_ring& ring) const;
    static bool has_repeats(point_ring walked);
    static void cut_at_repeats(const point_ring& walked, std::vector<point_ring>& rings);

    planar_point at(int point) const { return view.see(points[static_cast<std::size_t>(point)]); }

    face_boundary edges; // sorted
    std::vector<bool> is_used;
    const std::vector<grid_point>& points;
    planar_view view;
};

ring_tracer::ring_tracer(const face_boundary& boundary, const std::vector<grid_point>& all_points,
                         const planar_view& seen)
    : edges(boundary), is_used(boundary.size(), false), points(all_points), view(seen) {
    std::sort(edges.begin(), edges.end());
}

/// Which part of a clockwise turn from the way back lies before `to`: 0 none, 1 less than half, 2
/// half, 3 more, 4 all of it.
int ring_tracer::turn(const directed_edge& arriving, int to) const {
    const planar_point here = at(arriving[1]);
    const planar_point back = at(arriving[0]);
    const planar_point there = at(to);
    const int side = orientation(here, back, there);
    if (side != 0) {
        return side < 0 ? 1 : 3;
    }
    const auto ahead = [&here](const planar_point& p, const planar_point& q) {
        return static_cast<double>(p.x - here.x) * static_cast<double>(q.x - here.x) +
               static_cast<double>(p.y - here.y) * static_cast<double>(q.y - here.y);
    };
    return ahead(back, there) < 0.0 ? 2 : 4;
}

/// True if the way to `a` comes before the way to `b`, clockwise from the way back.
bool ring_tracer::is_sooner(const directed_edge& arriving, int a, int b) const {
    const int a_turn = turn(arriving, a);
    const int b_turn = turn(arriving, b);
    if (a_turn != b_turn) {
        return a_turn < b_turn;
    }
    return orientation(at(arriving[1]), at(a), at(b)) < 0;
}

std::size_t ring_tracer::next_edge(std::size_t edge) const {
    const directed_edge& arriving = edges[edge];
    auto place = static_cast<std::size_t>(
        std::lower_bound(edges.begin(), edges.end(), directed_edge{arriving[1], 0}) -
        edges.begin());
    std::size_t best = edges.size();
    for (; place < edges.size() && edges[place][0] == arriving[1]; ++place) {
        if (!is_used[place] &&
            (best == edges.size() || is_sooner(arriving, edges[place][1], edges[best][1]))) {
            best = place;
        }
    }
    return best;
}

point_ring ring_tracer::walk(std::size_t first) {
    point_ring walked;
    for (std::size_t edge = first; edge < edges.size(); edge = next_edge(edge)) {
        is_used[edge] = true;
        walked.push_back(edges[edge][0]);
        if (edges[edge][1] == edges[first][0] && next_edge(edge) == edges.size()) {
            break;
        }
    }
    return walked;
}

/// True if a walk comes to some point twice.
bool ring_tracer::has_repeats(point_ring walked) {
    std::sort(walked.begin(), walked.end());
    return std::adjacent_find(walked.begin(), walked.end()) != walked.end();
}

void ring_tracer::cut_at_repeats(const point_ring& walked, std::vector<point_ring>& rings) {
    if (!has_repeats(walked)) {
        rings.push_back(walked);
        return;
    }
    point_ring open;
    std::unordered_map<int, std::size_t> places;
    for (const int point : walked) {
        const auto found = places.find(point);
        if (found != places.end()) {
            const auto begin = open.begin() + static_cast<std::ptrdiff_t>(found->second);
            rings.emplace_back(begin, open.end());
            for (auto cut = begin; cut != open.end(); ++cut) {
                places.erase(*cut);
            }
            open.erase(begin, open.end());
        }
        places[point] = open.size();
        open.push_back(point);
    }
    rings.push_back(std::move(open));
}

double ring_tracer::area_of(const point_ring& ring) const {
    const planar_point origin = at(ring.front());
    double area = 0.0;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const planar_point a = at(ring[i]);
        const planar_point b = at(ring[(i + 1) % ring.size()]);
        area += static_cast<double>(a.x - origin.x) * static_cast<double>(b.y - origin.y) -
                static_cast<double>(a.y - origin.y) * static_cast<double>(b.x - origin.x);
    }
    return area;
}

std::vector<point_ring> ring_tracer::run() {
    std::vector<point_ring> rings;
    for (std::size_t e = 0; e < edges.size(); ++e) {
        if (!is_used[e]) {
            cut_at_repeats(walk(e), rings);
        }
    }
    std::size_t largest = 0;
    double largest_area = 0.0;
    for (std::size_t i = 0; i < rings.size(); ++i) {
        const double area = area_of(rings[i]);
        if (i == 0 || area > largest_area) {
            largest = i;
            largest_area = area;
        }
    }
    if (!rings.empty()) {
        std::rotate(rings.begin(), rings.begin() + static_cast<std::ptrdiff_t>(largest),
                    rings.begin() + static_cast<std::ptrdiff_t>(largest) + 1);
    }
    return rings;
}

} // namespace

std::vector<point_ring> trace_rings(const face_boundary& boundary,
                                    const std::vector<grid_point>& points,
                                    const planar_view& view) {
    return ring_tracer(boundary, points, view).run();
}

} // namespace ox::internal::csg
