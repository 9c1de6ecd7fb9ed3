// Clipping of contours that keep clear of each other.
//
//  1. Nest the bounds: any two must lie apart or one inside the other.
//  2. Read every contour, and check that it surrounds those whose bounds lie in its own.
//  3. Keep the contours that bound the result, in the order of the library's sweep.
//  4. Write them out, those inside a contour behind it.

#include <ox/polygon/internal/separate_contours.h>

#include <algorithm>
#include <map>
#include <utility>

#include <ox/polygon/internal/monotone_contour.h>

namespace ox {
namespace {

using ClipperLib::cInt;

constexpr int none = -1;

struct separate_contour {
    grid_box box;
    monotone_contour shape;
    int around = none;            // the contour directly around this one
    bool clip = false;            // of the second group
    bool subjects_around = false; // an odd number of them
    bool clips_around = false;
    bool hole = false;
    int kept_around = none;  // the contour of the result directly around this one
    int first_inside = none; // contours of the result: a list of those directly inside
    int last_inside = none;
    int next_beside = none;
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

std::vector<int> sorted_by(const separate_contour_list& contours,
                           cInt (*key)(const separate_contour&)) {
    std::vector<std::pair<cInt, int>> keys;
    keys.reserve(contours.size());
    for (const separate_contour& contour : contours) {
        keys.emplace_back(key(contour), static_cast<int>(keys.size()));
    }
    std::sort(keys.begin(), keys.end());
    std::vector<int> order;
    order.reserve(keys.size());
    for (const std::pair<cInt, int>& entry : keys) {
        order.push_back(entry.second);
    }
    return order;
}

// The boxes at one level, by the x of their sides. They are nested or apart, so the side before
// a place tells the innermost box around it.
class level_of_boxes {
public:
    explicit level_of_boxes(separate_contour_list& placed) : contours(placed) {}

    /// Adds a box that begins at this level. False when it overlaps or touches another.
    bool add(int index) {
        const grid_box& box = contour(index).box;
        const auto after = sides.lower_bound(box.low.X);
        if (after != sides.end() && after->first <= box.high.X) {
            return false;
        }
        const int around = after == sides.begin() ? none : box_after(std::prev(after)->second);
        if (around != none &&
            (contour(around).box.high.Y <= box.high.Y || contour(around).box.low.Y >= box.low.Y)) {
            return false;
        }
        contour(index).around = around;
        sides.emplace_hint(after, box.low.X, side{index, true});
        return sides.emplace(box.high.X, side{index, false}).second;
    }

    void remove(int index) {
        sides.erase(contour(index).box.low.X);
        sides.erase(contour(index).box.high.X);
    }

private:
    struct side {
        int contour;
        bool left;
    };

    separate_contour& contour(int index) { return contours[static_cast<std::size_t>(index)]; }

    int box_after(const side& before) {
        return before.left ? before.contour : contour(before.contour).around;
    }

    separate_contour_list& contours;
    std::map<cInt, side> sides;
};

// Finds the box directly around each. `order` is by the lowest level.
bool nest_boxes(separate_contour_list& contours, const std::vector<int>& order) {
    const std::vector<int> by_end =
        sorted_by(contours, [](const separate_contour& c) { return c.box.high.Y; });
    level_of_boxes level(contours);
    auto ended = by_end.begin();
    for (const int index : order) {
        const cInt y = contours[static_cast<std::size_t>(index)].box.low.Y;
        for (; contours[static_cast<std::size_t>(*ended)].box.high.Y < y; ++ended) {
            level.remove(*ended);
        }
        if (!level.add(index)) {
            return false;
        }
    }
    return true;
}

// Reads the contours of one group in place.
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
            return inner.around == none ||
                   contours[static_cast<std::size_t>(inner.around)].shape.surrounds(inner.box);
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

// What lies around each contour; `order` has those around before those inside. Returns the
// contours that bound the result.
std::vector<bool> place_contours(separate_contour_list& contours, const std::vector<int>& order,
                                 ClipperLib::ClipType operation) {
    std::vector<bool> kept(contours.size());
    for (const int index : order) {
        const std::size_t i = static_cast<std::size_t>(index);
        separate_contour& contour = contours[i];
        if (contour.around != none) {
            const std::size_t around = static_cast<std::size_t>(contour.around);
            const separate_contour& outer = contours[around];
            contour.subjects_around = outer.subjects_around != !outer.clip;
            contour.clips_around = outer.clips_around != outer.clip;
            contour.kept_around = kept[around] ? contour.around : outer.kept_around;
        }
        kept[i] = bounds_result(contour, operation);
        contour.hole = contour.kept_around != none &&
                       !contours[static_cast<std::size_t>(contour.kept_around)].hole;
    }
    return kept;
}

// The contours that the library's sweep keeps, as it reaches them: from the highest level down. It
// sorts them by level alone, so the sort must be the one that it uses, given the same
// sequence: then contours of one level come out in the same order, too.
std::vector<int> kept_in_sweep_order(const separate_contour_list& contours,
                                     const std::vector<bool>& kept) {
    std::vector<std::pair<cInt, int>> levels;
    levels.reserve(contours.size());
    for (const separate_contour& contour : contours) {
        levels.emplace_back(contour.box.high.Y, static_cast<int>(levels.size()));
    }
    std::sort(levels.begin(), levels.end(),
              [](const std::pair<cInt, int>& a, const std::pair<cInt, int>& b) {
                  return b.first < a.first;
              });
    std::vector<int> order;
    for (const std::pair<cInt, int>& level : levels) {
        if (kept[static_cast<std::size_t>(level.second)]) {
            order.push_back(level.second);
        }
    }
    return order;
}

// Lists the contours of the result inside the one around them; `first` and `last` hold those at
// the top.
void link_contours(separate_contour_list& contours, const std::vector<int>& order,
                   separate_contour& top) {
    for (const int index : order) {
        const int around = contours[static_cast<std::size_t>(index)].kept_around;
        separate_contour& outer = around == none ? top : contours[static_cast<std::size_t>(around)];
        if (outer.last_inside == none) {
            outer.first_inside = index;
        } else {
            contours[static_cast<std::size_t>(outer.last_inside)].next_beside = index;
        }
        outer.last_inside = index;
    }
}

// Depth first, without recursion.
void write_contours(const ox_polygon_data& plane, const separate_contour_list& contours,
                    const separate_contour& top, contour_lists& lists) {
    std::vector<std::pair<int, int>> pending{{top.first_inside, none}}; // contour, its parent
    while (!pending.empty()) {
        const auto [index, parent] = pending.back();
        pending.pop_back();
        if (index == none) {
            continue;
        }
        const separate_contour& contour = contours[static_cast<std::size_t>(index)];
        pending.emplace_back(contour.next_beside, parent);
        pending.emplace_back(contour.first_inside, lists.count());
        lists.append(plane, contour.shape, contour.hole, parent);
    }
}

} // namespace

bool combine_separate_contours(const ox_polygon_data& plane, ClipperLib::ClipType operation,
                               const grid_contours& subjects, const grid_contours& clips,
                               contour_lists& lists) {
    separate_contour_list contours;
    contours.reserve(subjects.count() + clips.count());
    add_contours(subjects, false, contours);
    add_contours(clips, true, contours);
    const std::vector<int> upwards =
        sorted_by(contours, [](const separate_contour& c) { return c.box.low.Y; });
    if (!nest_boxes(contours, upwards)) {
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
        vertices += contours[static_cast<std::size_t>(index)].shape.size;
    }
    lists = contour_lists(order.size(), vertices);
    write_contours(plane, contours, top, lists);
    return true;
}

} // namespace ox
