#include <ox/solid/internal/csg/exact/coincidences.h>

#include <algorithm>
#include <numeric>
#include <unordered_map>

#include <ox/solid/internal/csg/exact/item.h>

namespace ox::internal::csg::exact {

namespace {

/// The sign of the first coordinate of a normal that is not 0.
int heading(const plane& p) {
    for (const wide<2>& along : p.normal) {
        if (!along.is_zero()) {
            return along.sign();
        }
    }
    return 0;
}

/// Finds equal boundaries by a hash of their sorted arcs, seen from the side to which the normals
/// of all facets of a plane are turned.
class boundary_matcher {
public:
    boundary_matcher(const facet_complex& owner, const piece_list& pieces)
        : complex(owner), list(pieces), followers(pieces.pieces.size(), -1) {}

    /// The first piece met with the boundary of this one; itself where it is the first.
    int match(int piece_index);

    int heading_of(int piece_index) const {
        return heading(item(complex.points.planes, item(list.pieces, piece_index).facet));
    }

private:
    void read_boundary(int piece_index, std::vector<int>& arcs) const;

    const facet_complex& complex;
    const piece_list& list;
    /// The last piece met of each hash, and for each piece the one of the same hash before it.
    std::unordered_map<std::uint64_t, int> last_met;
    std::vector<int> followers;
    std::vector<int> boundary;
    std::vector<int> other_boundary;
};

void boundary_matcher::read_boundary(int piece_index, std::vector<int>& arcs) const {
    const piece& p = item(list.pieces, piece_index);
    const auto first = list.arcs.begin() + p.first_arc;
    arcs.assign(first, first + p.arc_count);
    if (heading_of(piece_index) < 0) {
        for (int& arc : arcs) {
            arc = opposite(arc);
        }
    }
    std::sort(arcs.begin(), arcs.end());
}

int boundary_matcher::match(int piece_index) {
    read_boundary(piece_index, boundary);
    std::uint64_t hash = 0;
    for (const int arc : boundary) {
        hash = (hash ^ static_cast<std::uint64_t>(arc)) * 0x9e3779b97f4a7c15u;
        hash ^= hash >> 32;
    }
    const auto [place, is_new] = last_met.try_emplace(hash, piece_index);
    for (int other = is_new ? -1 : place->second; other >= 0; other = item(followers, other)) {
        read_boundary(other, other_boundary);
        if (other_boundary == boundary) {
            return other;
        }
    }
    if (!is_new) {
        item(followers, piece_index) = place->second;
        place->second = piece_index;
    }
    return piece_index;
}

} // namespace

coincidence_list find_coincidences(const facet_complex& complex, const contact_list& contacts,
                                   const piece_list& list, progress_poll& poll) {
    coincidence_list result;
    const int piece_count = count_of(list.pieces);
    result.representative.resize(list.pieces.size());
    std::iota(result.representative.begin(), result.representative.end(), 0);
    boundary_matcher matcher(complex, list);
    for (int i = 0; i < piece_count; ++i) {
        poll.step();
        const int facet_index = item(list.pieces, i).facet;
        if (!contacts.has_coincidence[static_cast<std::size_t>(facet_index)]) {
            continue;
        }
        const int first = matcher.match(i);
        if (first != i) {
            item(result.representative, i) = first;
            result.covers.push_back(
                {first, facet_index, matcher.heading_of(i) != matcher.heading_of(first)});
        }
    }
    std::stable_sort(result.covers.begin(), result.covers.end(),
                     [](const piece_cover& a, const piece_cover& b) { return a.piece < b.piece; });
    result.first_cover.assign(list.pieces.size() + 1, 0);
    for (const piece_cover& cover : result.covers) {
        ++item(result.first_cover, cover.piece + 1);
    }
    std::partial_sum(result.first_cover.begin(), result.first_cover.end(),
                     result.first_cover.begin());
    return result;
}

} // namespace ox::internal::csg::exact
