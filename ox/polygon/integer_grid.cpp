#include <ox/polygon/internal/integer_grid.h>

#include <algorithm>
#include <new>

#include <ox/polygon/internal/contour_lists.h>
#include <ox/polygon/internal/contour_tree.h>
#include <ox/polygon/internal/rectilinear_pattern.h>
#include <ox/polygon/internal/separate_contours.h>

namespace ox {
namespace {

// Rounds half away from zero. False when the value is not a number or outside the grid: the
// conversion to an integer would then be undefined.
bool to_grid_unit(float coordinate, ClipperLib::cInt& unit) {
    const float scaled = coordinate / grid_unit;
    const float shifted = scaled > 0.0f ? scaled + 0.5f : scaled - 0.5f;
    if (!(shifted > -grid_end && shifted < grid_end)) {
        return false;
    }
    unit = static_cast<ClipperLib::cInt>(shifted);
    return true;
}

bool runs_counter_clockwise(const ClipperLib::IntPoint* points, std::size_t count) {
    double area = 0.0;
    for (std::size_t i = 0, before = count - 1; i < count; before = i++) {
        const ClipperLib::IntPoint& a = points[before];
        const ClipperLib::IntPoint& b = points[i];
        area += (static_cast<double>(a.X) + static_cast<double>(b.X)) *
                (static_cast<double>(a.Y) - static_cast<double>(b.Y));
    }
    return count < 3 || -area * 0.5 >= 0.0;
}

// The clipping library, which loses what it has made when an allocation fails while it writes its
// answer.
class clipper : public ClipperLib::Clipper {
public:
    clipper() = default;
    clipper(const clipper&) = delete;
    clipper& operator=(const clipper&) = delete;
    ~clipper() override { DisposeAllOutRecs(); }
};

// True if an edge was left to sweep.
bool add_paths(clipper& sweep, const grid_contours& contours, ClipperLib::PolyType group) {
    bool any_edge = false;
    ClipperLib::Path path;
    for (std::size_t i = 0; i < contours.count(); ++i) {
        path.assign(contours.begin(i), contours.end(i));
        any_edge |= sweep.AddPath(path, group, true);
    }
    return any_edge;
}

// False when the library gave up. It catches what is thrown inside, a failed allocation too, and
// keeps what it was to itself.
bool try_to_clip(ClipperLib::ClipType operation, const grid_contours& subjects,
                 const grid_contours& clips, ClipperLib::PolyTree& tree) {
    clipper sweep;
    const bool any_subject = add_paths(sweep, subjects, ClipperLib::ptSubject);
    const bool any_clip = add_paths(sweep, clips, ClipperLib::ptClip);
    return (!any_subject && !any_clip) ||
           sweep.Execute(operation, tree, ClipperLib::pftEvenOdd, ClipperLib::pftEvenOdd);
}

// What the library gives up once, it does when asked again, unless memory is short: of hundreds of
// thousands of arrangements as degenerate as can be, none was beyond it.
void clip_contours(ClipperLib::ClipType operation, const grid_contours& subjects,
                   const grid_contours& clips, ClipperLib::PolyTree& tree) {
    try {
        if (try_to_clip(operation, subjects, clips, tree)) {
            return;
        }
        tree.Clear();
        if (!try_to_clip(operation, subjects, clips, tree)) {
            throw std::bad_alloc();
        }
    } catch (const ClipperLib::clipperException&) {
        tree.Clear();
    }
}

} // namespace

void grid_contours::append(const ox_polygon_data& plane, const ox_list<ox_3dvector>& vertices,
                           const ox_list<unsigned int>& sizes) {
    std::size_t end = points.size();
    points.resize(end + static_cast<std::size_t>(std::max(vertices.size(), 0)));
    ends.reserve(ends.size() + static_cast<std::size_t>(std::max(sizes.size(), 0)));
    const ox_3dvector* contour = vertices.get_data();
    for (const unsigned int size : sizes) {
        if (contour_to_grid(plane, contour, size, points.data() + end)) {
            end += size;
            ends.push_back(end);
        }
        contour += size;
    }
    points.resize(end);
}

void grid_contours::reverse_each() {
    for (std::size_t i = 0; i < count(); ++i) {
        std::reverse(begin(i), begin(i) + size(i));
    }
}

bool grid_path::take(const ox_polygon_data& plane, const ox_3dvector* vertices, std::size_t size) {
    if (size > few.size()) {
        many.resize(size);
    }
    count = size;
    if (!contour_to_grid(plane, vertices, size, data())) {
        count = 0;
    }
    return count > 0;
}

bool grid_contours::is_counter_clockwise(std::size_t contour) const {
    return runs_counter_clockwise(begin(contour), size(contour));
}

bool grid_path::is_counter_clockwise() {
    return runs_counter_clockwise(data(), count);
}

bool contour_to_grid(const ox_polygon_data& plane, const ox_3dvector* vertices, std::size_t size,
                     ClipperLib::IntPoint* points) {
    for (std::size_t i = 0; i < size; ++i) {
        const ox_3dvector offset = vertices[i] - plane.point;
        if (!to_grid_unit(ox_dot(offset, plane.dx), points[i].X) ||
            !to_grid_unit(ox_dot(offset, plane.dy), points[i].Y)) {
            return false;
        }
    }
    return true;
}

void rebuild_contours(ox_polygon_data& polygon, const ClipperLib::PolyTree& tree) {
    const std::vector<tree_contour> contours = contours_of(tree);
    std::size_t vertices = 0;
    for (const tree_contour& contour : contours) {
        vertices += contour.path->size();
    }
    contour_lists made(contours.size(), vertices);
    for (const tree_contour& contour : contours) {
        made.begin_contour(contour.path->size(), contour.hole, contour.parent);
        for (const ClipperLib::IntPoint& p : *contour.path) {
            made.append(polygon, p);
        }
    }
    made.move_to(polygon);
}

void combine_on_grid(ox_polygon_data& polygon, ClipperLib::ClipType operation,
                     const grid_contours& subjects, const grid_contours& clips) {
    contour_lists made;
    if (combine_separate_contours(polygon, operation, subjects, clips, made)) {
        made.move_to(polygon);
        return;
    }
    const rectilinear_arrangement arrangement(operation, subjects, clips);
    const bool has_pattern = arrangement.is_known_by_ranks();
    const rectilinear_pattern* known =
        has_pattern ? find_rectilinear_pattern(arrangement) : nullptr;
    if (known != nullptr) {
        known->apply(polygon, arrangement).move_to(polygon);
        return;
    }
    ClipperLib::PolyTree tree;
    clip_contours(operation, subjects, clips, tree);
    if (has_pattern) {
        keep_rectilinear_pattern(arrangement, tree);
    }
    rebuild_contours(polygon, tree); // last: no memory for the pattern must not leave half a result
}

} // namespace ox
