#ifndef OX_SOLID_INTERNAL_CSG_EXACT_SEGMENT_SPLITTER_H
#define OX_SOLID_INTERNAL_CSG_EXACT_SEGMENT_SPLITTER_H

#include <vector>

#include <ox/solid/internal/csg/exact/box_pairs.h>
#include <ox/solid/internal/csg/exact/contacts.h>
#include <ox/solid/internal/csg/exact/facets.h>
#include <ox/solid/internal/csg/exact/progress_poll.h>

namespace ox::internal::csg::exact {

/// An edge in a facet, on the facet's common line with another plane.
struct facet_edge {
    int edge;
    int plane;
    /// 1 where the edge runs upwards along the facet's normal times the other plane's, else -1.
    int sense;
};

/// 1 where the cross product of the normals of two planes points upwards (to greater x, else y,
/// else z), -1 where it points downwards.
int line_sense(const point_table& points, int first_plane, int second_plane);

/// Divides the segments that are imposed on a facet at each other, and at the points on them.
///
/// Each segment is the facet's common line with a plane, so that a point of the facet is beside a
/// segment where it is beside its plane, and two segments cross in the common point of three
/// planes. Segments whose boxes do not overlap are never compared.
class segment_splitter {
public:
    segment_splitter(facet_complex& owner, progress_poll& steps) : complex(owner), poll(steps) {}

    /// The edges that the segments, sorted by their ends, and the points leave in a facet, each
    /// once.
    const std::vector<facet_edge>& split(int facet_index, const facet_segment* segments,
                                         int segment_count, const facet_point* points,
                                         int point_count);

private:
    /// A point inside a segment.
    struct division {
        int segment;
        int point;
    };

    void gather(const facet_segment* segments, int segment_count);
    void find_divisions(const facet_point* points, int point_count);
    void meet(int a, int b, const facet_point* points);
    void meet_point(int segment, int point);
    void meet_segments(int a, int b);
    void meet_on_line(int a, int b);
    int side(int point, const facet_segment& segment) const;
    void divide_if_inside(int segment, int point);
    void add_edges();
    void add_edge(const facet_segment& segment, int low, int high, int sense);

    facet_complex& complex;
    progress_poll& poll;
    int facet_index = -1;
    std::vector<facet_segment> distinct;
    std::vector<bounds> boxes;
    std::vector<division> divisions;
    std::vector<facet_edge> result;
};

} // namespace ox::internal::csg::exact

#endif
