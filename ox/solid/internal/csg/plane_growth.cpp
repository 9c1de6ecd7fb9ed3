#include <ox/solid/internal/csg/plane_growth.h>

#include <utility>

namespace ox::internal::csg {

namespace {

/// Times that what lay off the plane is tried again after the growth has come to an end.
constexpr int largest_retry_count = 4;

class plane_growth {
public:
    plane_growth(fitted_plane& growing, double allowed, const plane_candidates& all)
        : plane(growing), reach(allowed), candidates(all) {}

    std::vector<int> run(int first);

private:
    void grow();
    void try_to_join(int candidate);
    bool refit();

    fitted_plane& plane;
    double reach;
    const plane_candidates& candidates;
    std::vector<int> members;
    std::vector<int> refused;
    std::size_t visited = 0;      // members whose neighbours were tried
    std::size_t fitted_count = 1; // members when the plane was fitted last
};

void plane_growth::try_to_join(int candidate) {
    const double allowed = candidates.allowed_deviation(candidate, plane.normal);
    if (allowed < 0.0) {
        return;
    }
    if (lies_within(plane, *candidates.points, candidates.boundary_of(candidate), allowed)) {
        candidates.join(candidate);
        members.push_back(candidate);
    } else {
        refused.push_back(candidate);
    }
}

void plane_growth::grow() {
    std::vector<int> neighbours;
    for (; visited < members.size(); ++visited) {
        if (members.size() >= 2 * fitted_count) {
            refit();
        }
        neighbours.clear();
        candidates.find_neighbours(members[visited], neighbours);
        for (const int candidate : neighbours) {
            try_to_join(candidate);
        }
    }
}

/// Takes the plane of all members where they lie in it; true where it did.
bool plane_growth::refit() {
    fitted_count = members.size();
    face_boundary all;
    for (const int member : members) {
        const face_boundary& part = candidates.boundary_of(member);
        const bool is_reversed = candidates.is_reversed(member, plane.normal);
        for (const directed_edge& edge : part) {
            all.push_back(is_reversed ? directed_edge{edge[1], edge[0]} : edge);
        }
    }
    const fitted_plane fitted = fit_plane(*candidates.points, all);
    if (fitted.area == 0.0 || !lies_within(fitted, *candidates.points, all, reach)) {
        return false;
    }
    plane = fitted;
    return true;
}

std::vector<int> plane_growth::run(int first) {
    members.push_back(first);
    grow();
    for (int retry = 0; retry < largest_retry_count; ++retry) {
        if (refused.empty() || members.size() == fitted_count || !refit()) {
            break;
        }
        for (const int candidate : std::exchange(refused, {})) {
            try_to_join(candidate);
        }
        grow();
    }
    return std::move(members);
}

} // namespace

std::vector<int> collect_plane(int first, fitted_plane& plane, double reach,
                               const plane_candidates& candidates) {
    return plane_growth(plane, reach, candidates).run(first);
}

} // namespace ox::internal::csg
