#include <ox/solid/internal/csg/face_groups.h>

#include <algorithm>
#include <numeric>
#include <tuple>

#include <ox/solid/internal/csg/edge_register.h>
#include <ox/solid/internal/csg/plane_growth.h>
#include <ox/solid/internal/csg/sorted_edges.h>

namespace ox::internal::csg {

namespace {

/// Part of the tolerance within which pieces of different operands are of one plane.
constexpr double common_plane_share = 0.3;

/// Spacings of floats within which the corners of one operand's faces are of one plane.
constexpr double own_plane_spacings = 4.0;

/// Cosine between the normals of pieces of one plane.
constexpr double same_way_cosine = 0.7;

/// Neighbours off the plane of a group that are tried together with it.
constexpr int joint_fit_count = 8;

/// An edge of a piece.
struct piece_edge {
    directed_edge edge;
    int piece;

    bool operator<(const piece_edge& other) const {
        return std::tie(edge, piece) < std::tie(other.edge, other.piece);
    }
};

class group_search final : private plane_candidates {
public:
    group_search(const result_pieces& result, const scene& scene_faces, const working_grid& grid,
                 exact::progress_poll& steps);
    std::vector<face_group> run();

private:
    const face_boundary& boundary_of(int piece) const override { return at(piece).boundary; }
    void find_neighbours(int piece, std::vector<int>& found) const override;
    double allowed_deviation(int piece, const std::array<double, 3>& normal) const override;
    bool is_reversed(int, const std::array<double, 3>&) const override { return false; }
    bool may_become(const fitted_plane& plane) const override;
    void join(int piece) override { is_grouped[static_cast<std::size_t>(piece)] = true; }

    face_group grow_from(int first);
    bool is_thin(const result_piece& piece, double reach) const;

    const result_piece& at(int piece) const {
        return result.pieces[static_cast<std::size_t>(piece)];
    }

    const result_pieces& result;
    const scene& faces;
    exact::progress_poll& poll;
    double common_reach;
    double own_reach;
    double face_reach; // what snapping moves the corners of a face by, and what it is uneven by
    std::vector<piece_edge> edges;        // sorted
    std::vector<std::size_t> first_edges; // that leave each point
    std::vector<bool> is_grouped;
    std::vector<bool> is_narrow; // pieces whose normal says nothing
    plane_growth growth;
    int beginning = -1; // the first piece of the group
};

group_search::group_search(const result_pieces& given, const scene& scene_faces,
                           const working_grid& grid, exact::progress_poll& steps)
    : result(given), faces(scene_faces), poll(steps),
      common_reach((std::max)(grid.get_tolerance() * common_plane_share, grid.get_float_spacing())),
      own_reach((std::min)(own_plane_spacings * grid.get_float_spacing(), common_reach)),
      face_reach(grid.get_tolerance() + common_reach), is_grouped(given.pieces.size(), false),
      growth(*this, given.points, common_reach, joint_fit_count) {
    for (std::size_t i = 0; i < result.pieces.size(); ++i) {
        poll.step();
        for (const directed_edge& edge : result.pieces[i].boundary) {
            edges.push_back({edge, static_cast<int>(i)});
        }
        is_narrow.push_back(is_thin(result.pieces[i], common_reach));
    }
    first_edges = sort_by_start(edges, result.points.size(),
                                [](const piece_edge& sorted) { return sorted.edge[0]; });
}

/// The pieces not in a group yet with an edge against one of the given piece's.
void group_search::find_neighbours(int piece, std::vector<int>& found) const {
    poll.step();
    for (const directed_edge& edge : at(piece).boundary) {
        const auto start = static_cast<std::size_t>(edge[1]);
        for (std::size_t e = first_edges[start]; e < first_edges[start + 1]; ++e) {
            if (edges[e].edge[1] == edge[0] &&
                !is_grouped[static_cast<std::size_t>(edges[e].piece)]) {
                found.push_back(edges[e].piece);
            }
        }
    }
}

/// True if the piece is narrower than the reach, so that its normal says nothing.
bool group_search::is_thin(const result_piece& piece, double reach) const {
    const fitted_plane own = fit_plane(result.points, piece.boundary);
    double longest = 0.0;
    for (const directed_edge& edge : piece.boundary) {
        const std::array<double, 3> way =
            difference(result.points[static_cast<std::size_t>(edge[0])],
                       result.points[static_cast<std::size_t>(edge[1])]);
        longest = (std::max)(longest, dot(way, way));
    }
    return own.area * own.area <= reach * reach * longest;
}

double group_search::allowed_deviation(int piece, const std::array<double, 3>& normal) const {
    if (is_grouped[static_cast<std::size_t>(piece)]) {
        return -1.0;
    }
    const result_piece& candidate = at(piece);
    const result_piece& first = at(beginning);
    if (candidate.is_of_face && candidate.face == first.face &&
        candidate.is_reversed == first.is_reversed) {
        return 1e300; // of the same face, wherever its corners were moved to
    }
    if (dot(candidate.plane.normal, normal) <= same_way_cosine &&
        !is_narrow[static_cast<std::size_t>(piece)]) {
        return -1.0;
    }
    const auto operand_of = [this](const result_piece& p) {
        return faces.faces[static_cast<std::size_t>(p.face)].operand;
    };
    return operand_of(candidate) == operand_of(first) ? own_reach : common_reach;
}

/// True if the plane holds the whole face that the first piece is a part of. All pieces of that
/// face join, and a narrow one that comes first lies in the planes of other faces as well.
bool group_search::may_become(const fitted_plane& plane) const {
    const result_piece& first = at(beginning);
    return !first.is_of_face ||
           lies_within(plane, faces.points,
                       faces.faces[static_cast<std::size_t>(first.face)].boundary, face_reach);
}

face_group group_search::grow_from(int first) {
    face_group group;
    group.plane = at(first).plane;
    beginning = first;
    join(first);
    group.pieces = growth.run(first, group.plane);
    group.first_face = at(first).face;
    for (const int piece : group.pieces) {
        const face_boundary& part = at(piece).boundary;
        group.boundary.insert(group.boundary.end(), part.begin(), part.end());
        group.first_face = (std::min)(group.first_face, at(piece).face);
    }
    cancel_opposites(group.boundary);
    return group;
}

std::vector<face_group> group_search::run() {
    std::vector<int> order(result.pieces.size());
    std::iota(order.begin(), order.end(), 0);
    const auto area = [this](int i) {
        return result.pieces[static_cast<std::size_t>(i)].plane.area;
    };
    std::stable_sort(order.begin(), order.end(),
                     [&area](int a, int b) { return area(a) > area(b); });
    std::vector<face_group> groups;
    for (const int first : order) {
        if (!is_grouped[static_cast<std::size_t>(first)]) {
            groups.push_back(grow_from(first));
        }
    }
    std::stable_sort(groups.begin(), groups.end(), [](const face_group& a, const face_group& b) {
        return a.first_face < b.first_face;
    });
    return groups;
}

} // namespace

std::vector<face_group> group_faces(const result_pieces& result, const scene& faces,
                                    const working_grid& grid, exact::progress_poll& poll) {
    return group_search(result, faces, grid, poll).run();
}

} // namespace ox::internal::csg
