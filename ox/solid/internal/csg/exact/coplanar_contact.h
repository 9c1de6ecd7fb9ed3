#ifndef OX_SOLID_INTERNAL_CSG_EXACT_COPLANAR_CONTACT_H
#define OX_SOLID_INTERNAL_CSG_EXACT_COPLANAR_CONTACT_H

#include <array>

#include <ox/solid/internal/csg/exact/facets.h>
#include <ox/solid/internal/csg/exact/side_planes.h>

namespace ox::internal::csg::exact {

struct contact_list;

/// Imposes on two facets of one plane the sides of each other, clipped: what of a side lies in the
/// other facet is spanned by its own ends, by the vertices of the other on it, and by the crossings
/// of sides, each an orientation in two dimensions away.
class coplanar_clipper {
public:
    coplanar_clipper(facet_complex& owner, contact_list& list, side_planes& made_planes)
        : complex(owner), contacts(list), planes(made_planes) {}

    void clip(int first, int second);

private:
    /// The position of the vertices of a facet beside the sides of another: [side][vertex], 1 on
    /// the inner side, -1 outside, 0 on the side's line.
    using side_table = std::array<std::array<int, 3>, 3>;
    /// The crossings of the sides of two facets, -1 where they cross in no inner point of both.
    using crossing_table = std::array<std::array<int, 3>, 3>;

    bool fill(side_table& table, const facet& f, int f_plane, const facet& g, int axis) const;
    crossing_table cross_sides(const facet& f, const facet& g, const side_table& g_beside_f,
                               const side_table& f_beside_g, int axis);
    void impose_vertices(const facet& f, const facet& g, const side_table& g_beside_f);
    void impose_side(int facet_index, const facet& g, int side, const side_table& g_beside_f,
                     const side_table& f_beside_g, const std::array<int, 3>& crossings, int axis);

    facet_complex& complex;
    contact_list& contacts;
    side_planes& planes;
};

} // namespace ox::internal::csg::exact

#endif
