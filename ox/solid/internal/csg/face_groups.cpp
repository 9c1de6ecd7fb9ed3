#include <ox/solid/internal/csg/face_groups.h>

#include <algorithm>
#include <numeric>
#include <tuple>

#include <ox/solid/internal/csg/edge_register.h>

namespace ox::internal::csg {

namespace {

/// Part of the tolerance within which pieces of different operands are of one plane.
constexpr double common_plane_share = 0.1;

/// Spacings of floats within which the corners of one operand's faces are of one plane.
constexpr double own_plane_spacings = 4.0;

/// Cosine between the normals of pieces of one plane.
constexpr double same_way_cosine = 0.7;

/// An edge of a piece.
struct piece_edge {
    directed_edge edge;
    int piece;

    bool operator<(const piece_edge& other) const {
        return std::tie(edge, piece) < std::tie(other.edge, other.piece);
    }
};

class group_search {
public:
    group_search(const result_pieces& result, const scene& scene_faces, const working_grid& grid);
    std::vector<face_group> run();

private:
    face_group grow_from(int first);
    bool belongs(const result_piece& piece, const result_piece& first) const;
    bool is_thin(const result_piece& piece, double reach) const;
    void visit_neighbours(int piece, std::vector<int>& neighbours) const;

    const result_pieces& result;
    const scene& faces;
    double common_reach;
    double own_reach;
    std::vector<piece_edge> edges; // sorted
    std::vector<bool> is_grouped;
};

group_search::group_search(const result_pieces& given, const scene& scene_faces,
                           const working_grid& grid)
    : result(given), faces(scene_faces),
      common_reach((std::max)(grid.get_tolerance() * common_plane_share, grid.get_float_spacing())),
      own_reach((std::min)(own_plane_spacings * grid.get_float_spacing(), common_reach)),
      is_grouped(given.pieces.size(), false) {
    for (std::size_t i = 0; i < result.pieces.size(); ++i) {
        for (const directed_edge& edge : result.pieces[i].boundary) {
            edges.push_back({edge, static_cast<int>(i)});
        }
    }
    std::sort(edges.begin(), edges.end());
}

/// The pieces with an edge against one of the given piece's.
void group_search::visit_neighbours(int piece, std::vector<int>& neighbours) const {
    neighbours.clear();
    for (const directed_edge& edge : result.pieces[static_cast<std::size_t>(piece)].boundary) {
        const directed_edge opposite = {edge[1], edge[0]};
        auto place = std::lower_bound(edges.begin(), edges.end(), piece_edge{opposite, 0});
        for (; place != edges.end() && place->edge == opposite; ++place) {
            neighbours.push_back(place->piece);
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

bool group_search::belongs(const result_piece& piece, const result_piece& first) const {
    if (piece.is_of_face && piece.face == first.face && piece.is_reversed == first.is_reversed) {
        return true;
    }
    const auto operand_of = [this](const result_piece& p) {
        return faces.faces[static_cast<std::size_t>(p.face)].operand;
    };
    const double reach = operand_of(piece) == operand_of(first) ? own_reach : common_reach;
    return deviation_from(first.plane, result.points, piece.boundary) <= reach &&
           (dot(piece.plane.normal, first.plane.normal) > same_way_cosine || is_thin(piece, reach));
}

face_group group_search::grow_from(int first) {
    const result_piece& beginning = result.pieces[static_cast<std::size_t>(first)];
    face_group group;
    group.plane = beginning.plane;
    group.first_face = beginning.face;
    group.pieces.push_back(first);
    is_grouped[static_cast<std::size_t>(first)] = true;
    std::vector<int> neighbours;
    for (std::size_t i = 0; i < group.pieces.size(); ++i) {
        visit_neighbours(group.pieces[i], neighbours);
        for (const int candidate : neighbours) {
            const result_piece& piece = result.pieces[static_cast<std::size_t>(candidate)];
            if (!is_grouped[static_cast<std::size_t>(candidate)] && belongs(piece, beginning)) {
                is_grouped[static_cast<std::size_t>(candidate)] = true;
                group.pieces.push_back(candidate);
                group.first_face = (std::min)(group.first_face, piece.face);
            }
        }
    }
    for (const int piece : group.pieces) {
        const face_boundary& part = result.pieces[static_cast<std::size_t>(piece)].boundary;
        group.boundary.insert(group.boundary.end(), part.begin(), part.end());
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
                                    const working_grid& grid) {
    return group_search(result, faces, grid).run();
}

} // namespace ox::internal::csg
