#ifndef OX_INTERNAL_CONTOUR_VIEW_H
#define OX_INTERNAL_CONTOUR_VIEW_H

#include <algorithm>

#include <ox/core/ox_list.h>

namespace ox::internal {

/// One closed contour among those whose vertices lie one after another in a list: the places of
/// its vertices. Vertex i of the list belongs to it for `first` <= i < `end`.
struct contour_view {
    int index = 0; ///< among the contours
    int first = 0;
    int end = 0;

    int size() const { return end - first; }

    /// The place of the vertex behind the one at `i`, around the contour.
    int after(int i) const { return i + 1 < end ? i + 1 : first; }

    /// The place of the vertex before the one at `i`, around the contour.
    int before(int i) const { return i > first ? i - 1 : end - 1; }
};

/// The elements of a list that belong to one contour, as a list of their own.
template <class element>
ox_list<element> elements_of(const ox_list<element>& list, const contour_view& contour) {
    ox_list<element> elements(contour.size());
    std::copy(list.begin() + contour.first, list.begin() + contour.end, elements.begin());
    return elements;
}

/// The contours of a list of their sizes, for a range-based loop. A negative size, as holes have
/// in some lists, counts like a positive one.
template <class number>
class contour_views {
public:
    class iterator {
    public:
        iterator(const number* start, int index) : size(start) { view.index = index; }

        contour_view operator*() const {
            const int count = static_cast<int>(*size);
            return {view.index, view.first, view.first + (count < 0 ? -count : count)};
        }
        iterator& operator++() {
            view.first = (**this).end;
            ++view.index;
            ++size;
            return *this;
        }
        bool operator!=(const iterator& other) const { return size != other.size; }

    private:
        const number* size;
        contour_view view;
    };

    explicit contour_views(const ox_list<number>& contour_sizes) : sizes(contour_sizes) {}

    iterator begin() const { return iterator(sizes.begin(), 0); }
    iterator end() const { return iterator(sizes.end(), sizes.size()); }

private:
    const ox_list<number>& sizes;
};

} // namespace ox::internal

#endif
