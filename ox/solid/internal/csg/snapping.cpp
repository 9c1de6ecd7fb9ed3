#include <ox/solid/internal/csg/snapping.h>

#include <algorithm>
#include <numeric>

#include <ox/solid/internal/csg/edge_register.h>
#include <ox/solid/internal/csg/planar_view.h>
#include <ox/solid/internal/csg/point_index.h>
#include <ox/solid/internal/csg/segment_distance.h>

// An edge is named by its two points, and all faces along it name the same one. So it is enough to
// say at which points it is divided: every face receives the same path, and what was closed stays
// closed. Dividing an edge at a point beside it bends it, by the tolerance at most, and may make
// new crossings; so the search is repeated for the parts of divided edges, a few times at most.
// What is left then costs a sliver, not the guarantee.

namespace ox::internal::csg {

namespace {

/// Searches after which crossings are left to the arrangement.
constexpr int largest_round_count = 6;

/// Divisions for each edge, and each division of the first search, after which no more are made:
/// where everything is near to everything, bent edges would be divided for ever.
constexpr std::size_t growth_limit = 4;

/// Part of the tolerance within which the crossing of two edges is taken for a point that is there.
constexpr double crossing_reach = 0.5;

/// Pairs of edges between two reports.
constexpr int report_interval = 50000;

/// Several operands have the edge.
constexpr int shared_operand = -1;

/// What is known of an edge in a round.
struct edge_record {
    int operand;
    bool is_named; // by a face
    bool is_fresh;
    bool is_searched;          // may be divided in this round
    std::vector<int> clusters; // of the faces of edges that are searched
};

const edge_record unnamed_edge = {shared_operand, false, false, false, {}};

class edge_snapper {
public:
    edge_snapper(scene& all, double reach, const progress_report& progress);

    /// True where no edge was divided, or too many would have been.
    bool run_round(int round);

    bool is_stopped() const { return stopped; }

private:
    std::vector<int> name_edges();
    void name_edges_of(const scene_face& face);
    void leave_out_edges_of_apart_faces();
    void name_apart_faces_near(const box_tree& fresh);
    static void note_face(const scene_face& face, bool is_searched, edge_record& edge);
    std::vector<grid_box> boxes_of(const std::vector<int>& chosen) const;
    grid_box box_of(int edge) const;
    void search(int round, const std::vector<int>& fresh, const box_tree& tree);
    void compare(int e, int f);
    void divide_at_end(int edge, int point, bool& touched);
    void join_passing(int e, int f);
    void join_crossing(int e, int f);
    void join_at(int e, int f, double parameter);
    bool may_differ(int e, int f) const;
    int common_cluster(int e, int f) const;
    void apply();

    const grid_point& at(int point) const { return faces.points[static_cast<std::size_t>(point)]; }
    const edge_record& record(int edge) const { return records[static_cast<std::size_t>(edge)]; }

    scene& faces;
    double tolerance;
    const progress_report& report;
    bool stopped = false;
    int compared = 0;
    std::size_t budget = 0; // divisions that may still be made

    edge_register edges;
    std::vector<edge_record> records;
    edge_division division{0};
    point_index near;
    int indexed = 0; // points that `near` knows
};

edge_snapper::edge_snapper(scene& all, double reach, const progress_report& progress)
    : faces(all), tolerance(reach), report(progress), near(reach * crossing_reach) {}

bool edge_snapper::run_round(int round) {
    const std::vector<int> fresh = name_edges();
    const box_tree tree(boxes_of(fresh));
    if (round == 0) {
        leave_out_edges_of_apart_faces();
    } else {
        name_apart_faces_near(tree);
    }
    division = edge_division(edges.size());
    search(round, fresh, tree);
    division.sort(edges, faces.points);
    if (round == 0) {
        budget = growth_limit * (static_cast<std::size_t>(edges.size()) + division.size());
    }
    if (stopped || division.size() == 0 || division.size() > budget) {
        return true;
    }
    budget -= division.size();
    apply();
    return false;
}

/// Names the edges anew, but for those of faces apart from all other operands; gives those that had
/// no name before this round.
std::vector<int> edge_snapper::name_edges() {
    const int known = edges.size();
    records.assign(static_cast<std::size_t>(known), unnamed_edge);
    for (const scene_face& face : faces.faces) {
        if (!face.is_apart) {
            name_edges_of(face);
        }
    }
    std::vector<int> fresh(static_cast<std::size_t>(edges.size() - known));
    std::iota(fresh.begin(), fresh.end(), known);
    for (const int number : fresh) {
        records[static_cast<std::size_t>(number)].is_fresh = true;
    }
    return fresh;
}

void edge_snapper::name_edges_of(const scene_face& face) {
    for (const directed_edge& edge : face.boundary) {
        const auto number = static_cast<std::size_t>(edges.find_or_add(edge[0], edge[1]));
        if (number >= records.size()) {
            records.resize(number + 1, unnamed_edge);
        }
        note_face(face, true, records[number]);
    }
}

std::vector<grid_box> edge_snapper::boxes_of(const std::vector<int>& chosen) const {
    std::vector<grid_box> boxes;
    boxes.reserve(chosen.size());
    for (const int e : chosen) {
        boxes.push_back(box_of(e));
    }
    return boxes;
}

grid_box edge_snapper::box_of(int edge) const {
    grid_box box;
    box.include(at(edges.ends(edge)[0]));
    box.include(at(edges.ends(edge)[1]));
    box.grow(tolerance);
    return box;
}

/// At first only edges of different operands meet, so that what a face apart has is not searched.
void edge_snapper::leave_out_edges_of_apart_faces() {
    std::vector<bool> is_end(faces.points.size(), false);
    for (int e = 0; e < edges.size(); ++e) {
        for (const int end : edges.ends(e)) {
            is_end[static_cast<std::size_t>(end)] = true;
        }
    }
    for (const scene_face& face : faces.faces) {
        for (const directed_edge& edge : face.boundary) {
            if (!face.is_apart || !is_end[static_cast<std::size_t>(edge[0])] ||
                !is_end[static_cast<std::size_t>(edge[1])]) {
                continue;
            }
            const int number = edges.find(edge[0], edge[1]);
            if (number >= 0) {
                note_face(face, false, records[static_cast<std::size_t>(number)]);
            }
        }
    }
}

/// Parts of divided edges may meet the faces apart that lie beside them.
void edge_snapper::name_apart_faces_near(const box_tree& fresh) {
    for (const scene_face& face : faces.faces) {
        if (face.is_apart) {
            grid_box box = box_of_face(faces, face);
            box.grow(tolerance);
            bool is_near = false;
            fresh.visit_meeting(box, [&is_near](int) { is_near = true; });
            if (is_near) {
                name_edges_of(face);
            }
        }
    }
}

/// Adds what a face says of an edge.
void edge_snapper::note_face(const scene_face& face, bool is_searched, edge_record& edge) {
    if (!edge.is_named) {
        edge.is_named = true;
        edge.is_searched = is_searched;
        edge.operand = face.operand;
    } else {
        edge.is_searched = edge.is_searched && is_searched;
        edge.operand = edge.operand == face.operand ? face.operand : shared_operand;
    }
    if (edge.is_searched && std::find(edge.clusters.begin(), edge.clusters.end(), face.cluster) ==
                                edge.clusters.end()) {
        edge.clusters.push_back(face.cluster);
    }
}

/// True if the edges may be of different operands.
bool edge_snapper::may_differ(int e, int f) const {
    return record(e).operand == shared_operand || record(e).operand != record(f).operand;
}

int edge_snapper::common_cluster(int e, int f) const {
    for (const int cluster : record(e).clusters) {
        for (const int other : record(f).clusters) {
            if (cluster == other) {
                return cluster;
            }
        }
    }
    return -1;
}

/// Compares the fresh edges with all those near them, in the order of their numbers.
void edge_snapper::search(int round, const std::vector<int>& fresh, const box_tree& tree) {
    std::vector<std::array<int, 2>> pairs;
    for (int f = 0; f < static_cast<int>(records.size()); ++f) {
        if (!record(f).is_searched) {
            continue;
        }
        tree.visit_meeting(box_of(f), [&](int place) {
            const int e = fresh[static_cast<std::size_t>(place)];
            const bool is_own_turn = f != e && (!record(f).is_fresh || e < f);
            if (is_own_turn && record(e).is_searched && (round > 0 || may_differ(e, f))) {
                pairs.push_back({e, f});
            }
        });
    }
    std::sort(pairs.begin(), pairs.end());
    for (std::size_t i = 0; i < pairs.size() && !stopped; ++i) {
        compare(pairs[i][0], pairs[i][1]);
    }
}

void edge_snapper::compare(int e, int f) {
    if (stopped || ++compared % report_interval == 0) {
        stopped = stopped || !report(0.0);
    }
    bool touched = false;
    if (may_differ(e, f)) {
        for (const int point : edges.ends(f)) {
            divide_at_end(e, point, touched);
        }
        for (const int point : edges.ends(e)) {
            divide_at_end(f, point, touched);
        }
    }
    const directed_edge& first = edges.ends(e);
    const directed_edge& second = edges.ends(f);
    const bool is_shared = first[0] == second[0] || first[0] == second[1] ||
                           first[1] == second[0] || first[1] == second[1];
    if (touched || is_shared) {
        return;
    }
    if (may_differ(e, f)) {
        join_passing(e, f);
    } else {
        join_crossing(e, f);
    }
}

void edge_snapper::divide_at_end(int edge, int point, bool& touched) {
    const directed_edge& ends = edges.ends(edge);
    if (ends[0] != point && ends[1] != point &&
        lies_along(at(ends[0]), at(ends[1]), at(point), tolerance)) {
        division.add(edge, point);
        touched = true;
    }
}

/// Joins edges that pass each other within the tolerance, or cross in a plane that both lie in.
void edge_snapper::join_passing(int e, int f) {
    const directed_edge& first = edges.ends(e);
    const directed_edge& second = edges.ends(f);
    const closest_places places =
        find_closest(at(first[0]), at(first[1]), at(second[0]), at(second[1]));
    const bool is_inside =
        places.first > 0.0 && places.first < 1.0 && places.second > 0.0 && places.second < 1.0;
    if (is_inside && places.square_distance <= tolerance * tolerance) {
        join_at(e, f, places.first);
    } else {
        join_crossing(e, f);
    }
}

void edge_snapper::join_crossing(int e, int f) {
    const int cluster = common_cluster(e, f);
    if (cluster < 0) {
        return;
    }
    const planar_view view(faces.faces[static_cast<std::size_t>(cluster)].plane.normal);
    const planar_point a = view.see(at(edges.ends(e)[0]));
    const planar_point b = view.see(at(edges.ends(e)[1]));
    const planar_point c = view.see(at(edges.ends(f)[0]));
    const planar_point d = view.see(at(edges.ends(f)[1]));
    if (orientation(a, b, c) * orientation(a, b, d) >= 0 ||
        orientation(c, d, a) * orientation(c, d, b) >= 0) {
        return;
    }
    const double ux = static_cast<double>(b.x - a.x);
    const double uy = static_cast<double>(b.y - a.y);
    const double vx = static_cast<double>(d.x - c.x);
    const double vy = static_cast<double>(d.y - c.y);
    const double wx = static_cast<double>(c.x - a.x);
    const double wy = static_cast<double>(c.y - a.y);
    const double determinant = ux * vy - uy * vx;
    if (determinant != 0.0) {
        join_at(e, f, std::clamp((wx * vy - wy * vx) / determinant, 0.0, 1.0));
    }
}

/// Divides both edges at a place of the first one: at a point that is there or a new one.
void edge_snapper::join_at(int e, int f, double parameter) {
    const directed_edge first = edges.ends(e);
    const directed_edge second = edges.ends(f);
    const grid_point place = point_between(at(first[0]), at(first[1]), parameter);
    for (; indexed < static_cast<int>(faces.points.size()); ++indexed) {
        near.add(at(indexed), indexed);
    }
    int point = near.find_nearest(place);
    if (point < 0) {
        point = static_cast<int>(faces.points.size());
        faces.points.push_back(place);
    }
    if (point != first[0] && point != first[1]) {
        division.add(e, point);
    }
    if (point != second[0] && point != second[1]) {
        division.add(f, point);
    }
}

void edge_snapper::apply() {
    const auto is_divided = [this](const directed_edge& edge) {
        const int number = edges.find(edge[0], edge[1]);
        return number >= 0 && division.divides(number);
    };
    for (scene_face& face : faces.faces) {
        if (std::any_of(face.boundary.begin(), face.boundary.end(), is_divided)) {
            division.apply(edges, face.boundary);
            face.is_apart = false;
            face.is_divided = true;
        }
    }
}

} // namespace

bool snap_edges(scene& faces, const working_grid& grid, const progress_report& report) {
    edge_snapper snapper(faces, grid.get_tolerance(), report);
    for (int round = 0; round < largest_round_count; ++round) {
        if (snapper.run_round(round)) {
            break;
        }
    }
    return !snapper.is_stopped();
}

} // namespace ox::internal::csg
