#ifndef OX_INTERNAL_SWEEP_WINDOW_H
#define OX_INTERNAL_SWEEP_WINDOW_H

#include <algorithm>
#include <cstddef>
#include <vector>

namespace ox::internal {

/// The intervals of a fixed set that a window meets which only moves upwards: the active edges of
/// a sweep line (Wylie and others, 1967).
///
/// All intervals are closed. Adding them and sorting costs O(n log n); after that every interval
/// comes in once, and a move costs the intervals active before and after it.
class sweep_window {
public:
    struct interval {
        float low;
        float high;
        int index;       ///< 0 for the interval added first, 1 for the next, ...
        float at = 0.0f; ///< for the user: where along the line it is met
    };

    /// Adds an interval. One with an end that is not a number is never active.
    void add(float low, float high) {
        const int index = added++;
        if (low <= high) {
            pending.push_back({low, high, index, 0.0f});
        }
    }

    /// To be called after the last `add` and before the first move.
    void sort() {
        std::stable_sort(pending.begin(), pending.end(),
                         [](const interval& a, const interval& b) { return a.low < b.low; });
    }

    /// The intervals that meet [low, high]. Neither end may be below that of the move before. They
    /// stay in the order in which the user leaves them; new ones come in at the end.
    std::vector<interval>& advance_to(float low, float high) {
        active.erase(std::remove_if(active.begin(), active.end(),
                                    [low](const interval& i) { return i.high < low; }),
                     active.end());
        for (; next < pending.size() && pending[next].low <= high; ++next) {
            if (pending[next].high >= low) {
                active.push_back(pending[next]);
            }
        }
        return active;
    }

    /// Orders what is met by `at`, equal ones by index; no `at` may be NaN. Linear time but for
    /// those of equal `at`, with the fewest steps when they are nearly in that order already, as
    /// after a small move.
    void order_active() {
        std::size_t moves_left = moves_per_interval * active.size();
        for (std::size_t i = 1; i < active.size(); ++i) {
            if (!(active[i - 1].at < active[i].at) && precedes(active[i], active[i - 1])) {
                move_back(i, moves_left);
            }
        }
        if (moves_left == 0) {
            sort_active();
        }
    }

private:
    static constexpr std::size_t moves_per_interval = 4;

    static bool precedes(const interval& a, const interval& b) {
        return a.at < b.at || (a.at == b.at && a.index < b.index);
    }

    /// Moves the interval at `place` to where it belongs among those before, or until no move is
    /// left.
    void move_back(std::size_t place, std::size_t& moves_left) {
        const interval moved = active[place];
        for (; place > 0 && moves_left > 0 && precedes(moved, active[place - 1]); --place) {
            active[place] = active[place - 1];
            --moves_left;
        }
        active[place] = moved;
    }

    void sort_active();
    void sort_equal_ones();

    int added = 0;
    std::vector<interval> pending; ///< by ascending lower end, from `next` on
    std::size_t next = 0;
    std::vector<interval> active;
};

} // namespace ox::internal

#endif
