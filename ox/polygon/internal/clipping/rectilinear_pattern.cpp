#include <ox/polygon/internal/clipping/rectilinear_pattern.h>

#include <algorithm>

#include <ox/polygon/internal/answer_memory.h>
#include <ox/polygon/internal/clipping/contour_tree.h>
#include <ox/polygon/internal/tolerances.h>

namespace ox::internal {
namespace {

using ClipperLib::cInt;
using ClipperLib::IntPoint;

bool is_level_or_upright(const IntPoint& a, const IntPoint& b) {
    return a.X == b.X || a.Y == b.Y;
}

using pattern_memory = answer_memory<rectilinear_key, rectilinear_pattern>;

pattern_memory& kept_patterns() {
    static thread_local pattern_memory kept;
    return kept;
}

} // namespace

void rectilinear_arrangement::ranked_coordinates::finish() {
    std::sort(values.data(), values.data() + count);
    count =
        static_cast<std::size_t>(std::unique(values.data(), values.data() + count) - values.data());
}

int rectilinear_arrangement::ranked_coordinates::rank(cInt value) const {
    return static_cast<int>(std::lower_bound(values.data(), values.data() + count, value) -
                            values.data());
}

cInt rectilinear_arrangement::ranked_coordinates::smallest_step() const {
    cInt smallest = values[count - 1] - values[0];
    for (std::size_t i = 0; i + 1 < count; ++i) {
        smallest = std::min(smallest, values[i + 1] - values[i]);
    }
    return smallest;
}

cInt rectilinear_arrangement::ranked_coordinates::reach() const {
    return std::max(values[count - 1], -values[0]);
}

rectilinear_arrangement::rectilinear_arrangement(ClipperLib::ClipType operation,
                                                 const grid_contours& subjects,
                                                 const grid_contours& clips) {
    if (subjects.all().empty() ||
        subjects.all().size() + clips.all().size() > most_rectilinear_vertices ||
        subjects.count() + clips.count() > most_rectilinear_contours) {
        return;
    }
    if (!collect(subjects) || !collect(clips)) {
        return;
    }
    xs.finish();
    ys.finish();
    valid = are_areas_certain();
    append(static_cast<std::size_t>(operation));
    append(subjects.count());
    append(clips.count());
    append_ranks(subjects);
    append_ranks(clips);
}

bool rectilinear_arrangement::collect(const grid_contours& contours) {
    for (std::size_t i = 0; i < contours.count(); ++i) {
        const IntPoint* p = contours.begin(i);
        const std::size_t size = contours.size(i);
        for (std::size_t k = 0; k < size; ++k) {
            if (!is_level_or_upright(p[k], p[k + 1 < size ? k + 1 : 0])) {
                return false;
            }
            xs.add(p[k].X);
            ys.add(p[k].Y);
        }
    }
    return true;
}

void rectilinear_arrangement::append_ranks(const grid_contours& contours) {
    for (std::size_t i = 0; i < contours.count(); ++i) {
        const IntPoint* p = contours.begin(i);
        append(contours.size(i));
        for (std::size_t k = 0; k < contours.size(i); ++k) {
            append(static_cast<std::size_t>(x_rank(p[k])) * most_rectilinear_vertices +
                   static_cast<std::size_t>(y_rank(p[k])));
        }
    }
}

/// Any area that is not 0 is at least that of one cell between neighbouring coordinates.
bool rectilinear_arrangement::are_areas_certain() const {
    const cInt reach = std::max(xs.reach(), ys.reach());
    if (reach > farthest_monotone_coordinate) {
        return false;
    }
    const double cell =
        static_cast<double>(xs.smallest_step()) * static_cast<double>(ys.smallest_step());
    const double square = static_cast<double>(reach) * static_cast<double>(reach);
    return cell > area_rounding * square *
                      static_cast<double>(most_rectilinear_vertices * most_rectilinear_contours);
}

rectilinear_pattern::rectilinear_pattern(const ClipperLib::PolyTree& tree,
                                         const rectilinear_arrangement& arrangement) {
    for (const tree_contour& answered : contours_of(tree)) {
        contours.push_back({answered.path->size(), answered.hole, answered.parent});
        for (const IntPoint& p : *answered.path) {
            vertices.push_back({static_cast<std::uint8_t>(arrangement.x_rank(p)),
                                static_cast<std::uint8_t>(arrangement.y_rank(p))});
        }
    }
}

contour_lists rectilinear_pattern::apply(const plane_frame& plane,
                                         const rectilinear_arrangement& arrangement) const {
    contour_lists lists(contours.size(), vertices.size());
    const vertex* v = vertices.data();
    for (const contour& c : contours) {
        lists.begin_contour(c.size, c.hole, c.parent);
        for (std::size_t i = 0; i < c.size; ++i, ++v) {
            lists.append(plane, arrangement.point(v->x_rank, v->y_rank));
        }
    }
    return lists;
}

const rectilinear_pattern* find_rectilinear_pattern(const rectilinear_arrangement& arrangement) {
    return kept_patterns().find(arrangement.key());
}

void keep_rectilinear_pattern(const rectilinear_arrangement& arrangement,
                              const ClipperLib::PolyTree& tree) {
    kept_patterns().keep(arrangement.key(), rectilinear_pattern(tree, arrangement));
}

} // namespace ox::internal
