#include <tests/reference/plain_region.h>

#include <algorithm>

namespace reference {
namespace {

using ox::ox_3dvector;
using ox::ox_cross;
using ox::ox_dot;

ClipperLib::cInt round_to_grid(float coordinate) {
    const float scaled = coordinate / 0.0001f;
    return static_cast<ClipperLib::cInt>(scaled > 0.0f ? scaled + 0.5f : scaled - 0.5f);
}

ClipperLib::Path to_path(const plain_region& plane, const contour& vertices) {
    ClipperLib::Path path;
    for (const ox_3dvector& v : vertices) {
        path.push_back(ClipperLib::IntPoint(round_to_grid(ox_dot(v - plane.point, plane.dx)),
                                            round_to_grid(ox_dot(v - plane.point, plane.dy))));
    }
    return path;
}

ox_3dvector to_space(const plain_region& plane, const ClipperLib::IntPoint& p) {
    const float u = static_cast<float>(p.X) * 0.0001f;
    const float v = static_cast<float>(p.Y) * 0.0001f;
    return plane.point + u * plane.dx + v * plane.dy;
}

void walk(plain_region& region, ClipperLib::PolyNode& node, int parent) {
    int own = parent;
    if (!node.Contour.empty()) {
        own = static_cast<int>(region.contours.size());
        plain_contour made;
        made.outer = !node.IsHole();
        made.parent = parent;
        for (const ClipperLib::IntPoint& p : node.Contour) {
            made.vertices.push_back(to_space(region, p));
        }
        region.contours.push_back(made);
    }
    for (ClipperLib::PolyNode* child : node.Childs) {
        walk(region, *child, own);
    }
}

void rebuild(plain_region& region, ClipperLib::PolyTree& tree) {
    region.contours.clear();
    walk(region, tree, -1);
}

bool derive_plane(plain_region& region, const contour& v) {
    const std::size_t n = v.size();
    region.point = v[0];
    region.normal = ox_3dvector();
    for (std::size_t i = 0; i < n; ++i) {
        region.normal += ox_cross(v[(i + 1) % n] - v[i], v[(i + 2) % n] - v[(i + 1) % n]);
    }
    if (region.normal.size() < 0.000001f) {
        region.normal = ox_3dvector();
        return false;
    }
    region.normal.normalize();
    region.normal.build_axis(region.dx, region.dy);
    if (!ClipperLib::Orientation(to_path(region, v))) {
        region.normal = -region.normal;
        region.normal.build_axis(region.dx, region.dy);
    }
    region.plane_defined = true;
    return true;
}

ox::ox_list<ox_3dvector> to_list(const contour& vertices) {
    ox::ox_list<ox_3dvector> list;
    for (const ox_3dvector& v : vertices) {
        list.push_right(v);
    }
    return list;
}

} // namespace

void plain_region::set_plane(const ox_3dvector& new_point, const ox_3dvector& new_normal) {
    point = new_point;
    ox_3dvector n = new_normal;
    n.normalize();
    if (plane_defined && n == normal) {
        return;
    }
    const bool flip = ox_dot(n, normal) < 0.0f;
    normal = n;
    normal.build_axis(dx, dy);
    plane_defined = true;
    for (plain_contour& c : contours) {
        if (flip) {
            std::reverse(c.vertices.begin(), c.vertices.end());
        }
        for (ox_3dvector& v : c.vertices) {
            v = v - normal * ox_dot(v - point, normal);
        }
    }
}

void plain_region::merge(const std::vector<contour>& pending) {
    contour all;
    for (const contour& c : pending) {
        all.insert(all.end(), c.begin(), c.end());
    }
    if (all.size() < 3 || (!plane_defined && !derive_plane(*this, pending[0]))) {
        return;
    }
    if (all.size() == 3) {
        if (ox::ox_polygon::is_clockwise(to_list(all), normal) > 0) {
            std::reverse(all.begin(), all.end());
        }
        contours.assign(1, plain_contour{all, true, -1});
        return;
    }
    ClipperLib::Clipper clipper;
    for (const plain_contour& c : contours) {
        clipper.AddPath(to_path(*this, c.vertices), ClipperLib::ptSubject, true);
    }
    for (const contour& c : pending) {
        clipper.AddPath(to_path(*this, c), ClipperLib::ptSubject, true);
    }
    ClipperLib::PolyTree tree;
    clipper.Execute(ClipperLib::ctUnion, tree, ClipperLib::pftEvenOdd, ClipperLib::pftEvenOdd);
    rebuild(*this, tree);
}

void plain_region::combine(ClipperLib::ClipType operation, const plain_region& other) {
    ClipperLib::Clipper clipper;
    for (const plain_contour& c : contours) {
        clipper.AddPath(to_path(*this, c.vertices), ClipperLib::ptSubject, true);
    }
    for (plain_contour c : other.contours) {
        if (ox_dot(normal, other.normal) < 0.0f) {
            std::reverse(c.vertices.begin(), c.vertices.end());
        }
        clipper.AddPath(to_path(*this, c.vertices), ClipperLib::ptClip, true);
    }
    ClipperLib::PolyTree tree;
    clipper.Execute(operation, tree, ClipperLib::pftEvenOdd, ClipperLib::pftEvenOdd);
    rebuild(*this, tree);
}

void plain_region::offset(float distance, ClipperLib::JoinType join) {
    ClipperLib::ClipperOffset offsetter(2.0, 0.25);
    for (const plain_contour& c : contours) {
        offsetter.AddPath(to_path(*this, c.vertices), join, ClipperLib::etClosedPolygon);
    }
    ClipperLib::PolyTree tree;
    offsetter.Execute(tree, static_cast<double>(distance) / static_cast<double>(0.0001f));
    rebuild(*this, tree);
}

} // namespace reference
