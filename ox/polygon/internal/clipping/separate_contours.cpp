// Clipping of contours that keep clear of each other.
//
//  1. Nest the bounds: any two must lie apart or one inside the other.
//  2. Read every contour, and check that it surrounds those whose bounds lie in its own.
//  3. Keep the contours that bound the result, in the order of the library's sweep.
//  4. Write them out, those inside a contour behind it.

#include <ox/polygon/internal/clipping/separate_contours.h>

#include <algorithm>
#include <functional>
#include <map>
#include <utility>
#if __has_include(<memory_resource>)
#include <memory_resource>
#endif

#include <ox/polygon/internal/clipping/monotone_contour.h>

namespace ox::internal {
namespace {

using ClipperLib::cInt;

constexpr int none = -1;

struct separate_contour {
    grid_box box; ///< of all points, the tips of spikes included
    monotone_contour shape;
    int parent = none;            ///< the contour directly around this one
    bool clip = false;            ///< of the second group
    bool subjects_around = false; ///< an odd number of them
    bool clips_around = false;
    bool hole = false;
    int kept_parent = none; ///< the contour of the result directly around this one
    int first_child = none; ///< contours of the result: a list of those directly inside
    int last_child = none;
    int next_sibling = none;
};

using separate_contour_list = std::vector<separate_contour>;

void add_contours(const grid_contours& group, bool clip, separate_contour_list& contours) {
    for (std::size_t i = 0; i < group.count(); ++i) {
        separate_contour made;
        made.box = bounds_of(group.begin(i), group.size(i));
        made.clip = clip;
        contours.push_back(made);
    }
}

/// A level and the contour that begins or ends there.
using contour_level = std::pair<cInt, int>;

std::vector<contour_level> levels_of(const separate_contour_list& contours,
                                     cInt (*level)(const separate_contour&)) {
    std::vector<contour_level> levels;
    levels.reserve(contours.size());
    for (const separate_contour& contour : contours) {
        levels.emplace_back(level(contour), static_cast<int>(levels.size()));
    }
    return levels;
}

/// Boxes by their left sides. Their nodes lie in one growing block, where the standard library has
/// one (that of LLVM from version 16 on).
#if __has_include(<memory_resource>)
using box_map = std::pmr::map<cInt, int>;
using box_memory = std::pmr::monotonic_buffer_resource;
box_map map_in(box_memory& memory) {
    return box_map(&memory);
}
#else
using box_map = std::map<cInt, int>;
struct box_memory {};
box_map map_in(box_memory&) {
    return box_map();
}
#endif

/// The boxes at one level by their left sides. They are nested or apart, so those around a place
/// are the one that begins before it, as far as it reaches, and those around that one.
class level_of_boxes {
public:
    explicit level_of_boxes(separate_contour_list& placed) : contours(placed) {}

    /// Adds a box that begins at this level. False when it overlaps or touches another.
    bool add(int index) {
        separate_contour& added = contour(index);
        const auto after = boxes.lower_bound(added.box.low.X);
        if (after != boxes.end() && after->first <= added.box.high.X) {
            return false;
        }
        added.parent = after == boxes.begin() ? none : std::prev(after)->second;
        while (added.parent != none && contour(added.parent).box.high.X < added.box.low.X) {
            added.parent = contour(added.parent).parent;
        }
        boxes.emplace_hint(after, added.box.low.X, index);
        return added.parent == none || lies_inside(added.box, contour(added.parent).box);
    }

    void remove(int index) { boxes.erase(contour(index).box.low.X); }

private:
    // Of a box that begins to the right of another.
    static bool lies_inside(const grid_box& inner, const grid_box& outer) {
        return inner.high.X < outer.high.X && inner.low.Y > outer.low.Y &&
               inner.high.Y < outer.high.Y;
    }

    separate_contour& contour(int index) { return contours[static_cast<std::size_t>(index)]; }

    separate_contour_list& contours;
    box_memory memory;
    box_map boxes = map_in(memory);
};

/// Finds the box directly around each. `begins` are the lowest levels in their order. The ends are
/// only put in order as far as they are reached: mostly boxes that overlap are found early.
bool nest_boxes(separate_contour_list& contours, const std::vector<contour_level>& begins) {
    std::vector<contour_level> ends =
        levels_of(contours, [](const separate_contour& c) { return c.box.high.Y; });
    const std::greater<contour_level> later;
    std::make_heap(ends.begin(), ends.end(), later);
    level_of_boxes level(contours);
    for (const contour_level& begin : begins) {
        while (ends.front().first < begin.first) {
            level.remove(ends.front().second);
            std::pop_heap(ends.begin(), ends.end(), later);
            ends.pop_back();
        }
        if (!level.add(begin.second)) {
            return false;
        }
    }
    return true;
}

/// Reads the contours of one group in place.
bool read_contours(grid_contours& group, separate_contour* contours) {
    for (std::size_t i = 0; i < group.count(); ++i) {
        if (!read_monotone_contour(group.begin(i), group.size(i), contours[i].shape)) {
            return false;
        }
    }
    return true;
}

bool surround_each_other(const separate_contour_list& contours) {
    return std::all_of(
        contours.begin(), contours.end(), [&contours](const separate_contour& inner) {
            return inner.parent == none ||
                   contours[static_cast<std::size_t>(inner.parent)].shape.surrounds(inner.box);
        });
}

bool bounds_result(const separate_contour& contour, ClipperLib::ClipType operation) {
    const bool inside_other = contour.clip ? contour.subjects_around : contour.clips_around;
    switch (operation) {
    case ClipperLib::ctIntersection:
        return inside_other;
    case ClipperLib::ctDifference:
        return inside_other == contour.clip;
    default:
        return !inside_other;
    }
}

/// What lies around each contour; `order` has those around before those inside. Returns the
/// contours that bound the result.
std::vector<bool> place_contours(separate_contour_list& contours,
                                 const std::vector<contour_level>& order,
                                 ClipperLib::ClipType operation) {
    std::vector<bool> kept(contours.size());
    for (const contour_level& begin : order) {
        const std::size_t i = static_cast<std::size_t>(begin.second);
        separate_contour& contour = contours[i];
        if (contour.parent != none) {
            const std::size_t around = static_cast<std::size_t>(contour.parent);
            const separate_contour& outer = contours[around];
            contour.subjects_around = outer.subjects_around != !outer.clip;
            contour.clips_around = outer.clips_around != outer.clip;
            contour.kept_parent = kept[around] ? contour.parent : outer.kept_parent;
        }
        kept[i] = bounds_result(contour, operation);
        contour.hole = contour.kept_parent != none &&
                       !contours[static_cast<std::size_t>(contour.kept_parent)].hole;
    }
    return kept;
}

/// The contours that the library's sweep keeps, as it reaches them: from the highest level down. It
/// sorts them by level alone, so the sort must be the one that it uses, given the same
/// sequence, entries into folds included: then contours of one level come out in the same order,
/// too.
std::vector<int> kept_in_sweep_order(const separate_contour_list& contours,
                                     const std::vector<bool>& kept) {
    std::vector<contour_level> levels;
    levels.reserve(contours.size());
    for (const separate_contour& contour : contours) {
        const int index = static_cast<int>(&contour - contours.data());
        const cInt highest = contour.shape.highest();
        if (contour.shape.entries.empty()) {
            levels.emplace_back(highest, index);
        }
        for (const cInt level : contour.shape.entries) {
            levels.emplace_back(level, level == highest ? index : none);
        }
    }
    std::sort(levels.begin(), levels.end(),
              [](const contour_level& a, const contour_level& b) { return b.first < a.first; });
    std::vector<int> order;
    order.reserve(contours.size());
    for (const contour_level& level : levels) {
        if (level.second != none && kept[static_cast<std::size_t>(level.second)]) {
            order.push_back(level.second);
        }
    }
    return order;
}

/// Lists the contours of the result inside the one around them; `first` and `last` hold those at
/// the top.
void link_contours(separate_contour_list& contours, const std::vector<int>& order,
                   separate_contour& top) {
    for (const int index : order) {
        const int around = contours[static_cast<std::size_t>(index)].kept_parent;
        separate_contour& outer = around == none ? top : contours[static_cast<std::size_t>(around)];
        if (outer.last_child == none) {
            outer.first_child = index;
        } else {
            contours[static_cast<std::size_t>(outer.last_child)].next_sibling = index;
        }
        outer.last_child = index;
    }
}

/// Depth first, without recursion.
void write_contours(const plane_frame& plane, const separate_contour_list& contours,
                    const separate_contour& top, contour_lists& lists) {
    std::vector<std::pair<int, int>> pending{{top.first_child, none}}; // contour, its parent
    while (!pending.empty()) {
        const auto [index, parent] = pending.back();
        pending.pop_back();
        if (index == none) {
            continue;
        }
        const separate_contour& contour = contours[static_cast<std::size_t>(index)];
        pending.emplace_back(contour.next_sibling, parent);
        pending.emplace_back(contour.first_child, lists.count());
        lists.append(plane, contour.shape, contour.hole, parent);
    }
}

} // namespace

bool combine_separate_contours(const plane_frame& plane, ClipperLib::ClipType operation,
                               const grid_contours& subjects, const grid_contours& clips,
                               contour_lists& lists) {
    separate_contour_list contours;
    contours.reserve(subjects.count() + clips.count());
    add_contours(subjects, false, contours);
    add_contours(clips, true, contours);
    std::vector<contour_level> upwards =
        levels_of(contours, [](const separate_contour& c) { return c.box.low.Y; });
    std::sort(upwards.begin(), upwards.end());
    if (contours.size() > 1 && !nest_boxes(contours, upwards)) {
        return false;
    }
    grid_contours read_subjects = subjects;
    grid_contours read_clips = clips;
    if (!read_contours(read_subjects, contours.data()) ||
        !read_contours(read_clips, contours.data() + subjects.count()) ||
        !surround_each_other(contours)) {
        return false;
    }
    const std::vector<bool> kept = place_contours(contours, upwards, operation);
    const std::vector<int> order = kept_in_sweep_order(contours, kept);
    separate_contour top;
    link_contours(contours, order, top);
    std::size_t vertices = 0;
    for (const int index : order) {
        vertices += contours[static_cast<std::size_t>(index)].shape.corner_count();
    }
    lists = contour_lists(order.size(), vertices);
    write_contours(plane, contours, top, lists);
    return true;
}

} // namespace ox::internal
