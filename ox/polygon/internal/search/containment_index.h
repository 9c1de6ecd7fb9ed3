#ifndef OX_POLYGON_INTERNAL_SEARCH_CONTAINMENT_INDEX_H
#define OX_POLYGON_INTERNAL_SEARCH_CONTAINMENT_INDEX_H

#include <cstddef>
#include <memory>
#include <vector>

#include <ox/geometry/ox_2dvector.h>

namespace ox {

struct ox_polygon_data;

namespace internal {

/// The sides of a region as a tree of chains in their boxes, which tells whether a point is inside
/// without looking at every side.
///
/// A side crosses the horizontal line through a point where one of its ends lies above the line
/// and the other does not. So of a whole chain the crossings are odd in number where its two ends
/// are told apart in this way, wherever it runs between them: only chains whose box holds the point
/// are followed further. Contours are closed, so the point is inside where the crossings left of it
/// are odd in number.
class containment_index {
public:
    /// The region must have been merged. O(n).
    explicit containment_index(const ox_polygon_data& region);

    /// True if all numbers are small enough for the roundings of a crossing to be bounded: only
    /// then may `contains` be asked.
    bool is_reliable() const { return reliable; }

    /// True if the region contains a point of its frame, as `contours_contain` tells it. O(log n)
    /// for each chain that passes near the point.
    bool contains(const ox_2dvector& p) const;

private:
    /// Sides one after another, or contours side by side.
    struct chain {
        float left; ///< no crossing lies left of it, with its roundings
        float right;
        float low;
        float high;
        float start;       ///< height of the first point
        float end;         ///< height of the last point; of contours side by side the same
        std::size_t first; ///< of the points, or of the chains that it consists of
        std::size_t last;
        bool is_run; ///< of points
    };
    using chain_list = std::vector<chain>;

    /// Contours end where they start, the chains of a contour go on.
    enum class ends { meet, differ };

    void take_points(const ox_polygon_data& region);
    chain make_contour(std::size_t begin, std::size_t last);
    chain make_run(std::size_t first, std::size_t last) const;
    chain make_parent(const chain_list& level, std::size_t first, std::size_t end);
    chain join(chain_list level, ends chain_ends);
    bool is_left_odd(const chain& c, const ox_2dvector& p) const;
    bool is_left_odd_in_run(const chain& run, const ox_2dvector& p) const;

    std::vector<ox_2dvector> points; ///< contour after contour, each with its first point again
    chain_list chains;               ///< those that others consist of
    chain all;                       ///< all contours
    float margin = 0.0f;             ///< of the roundings of a crossing
    bool reliable = true;
};

/// The index of one region, which is made once it pays. A copy has none.
class lazy_containment_index {
public:
    lazy_containment_index();
    lazy_containment_index(const lazy_containment_index&);
    lazy_containment_index& operator=(const lazy_containment_index&) = delete;
    ~lazy_containment_index();

    /// To be called with every change of the region or its frame.
    void forget() noexcept;

    /// The index, null where there are few sides or questions since the last change.
    const containment_index* find(const ox_polygon_data& region);

private:
    int asked = 0;
    std::unique_ptr<containment_index> index;
};

} // namespace internal
} // namespace ox

#endif
