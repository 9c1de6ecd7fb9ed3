#include <ox/solid/internal/boolean/face_cutter.h>

#include <utility>

#include <ox/solid/internal/area/area_bound.h>
#include <ox/solid/internal/same_bits.h>

namespace ox::internal {

face_remains face_cutter::keep_outside(ox_polygon& face, const operand& solid) const {
    std::unique_ptr<ox_polygon> piece = cut_off(face, solid);
    if (!is_large_enough(piece ? *piece : face)) {
        return {};
    }
    return {piece ? face_remains::extent::part : face_remains::extent::whole, std::move(piece)};
}

face_remains face_cutter::keep_inside(ox_polygon& face, const operand& solid) const {
    const std::unique_ptr<ox_polygon> cut = find_cut(face, solid);
    return cut ? cut_out(std::make_unique<ox_polygon>(face), *cut) : face_remains();
}

face_remains face_cutter::keep_turned_inside(const ox_polygon& face, const operand& solid) const {
    auto turned = std::make_unique<ox_polygon>(face);
    turned->reverse();
    const std::unique_ptr<ox_polygon> cut = find_cut(*turned, solid);
    return cut ? cut_out(std::move(turned), *cut) : face_remains();
}

/// What a piece and a section have in common.
face_remains face_cutter::cut_out(std::unique_ptr<ox_polygon> piece, ox_polygon& cut) const {
    piece->intersects(cut);
    if (!is_large_enough(*piece) || !is_large_enough(cut)) {
        return {};
    }
    return {face_remains::extent::part, std::move(piece)};
}

/// The face without what lies inside the solid; null when that is the face as it is. A section that
/// is too small to count cuts nothing, but its size, which takes triangles to find, only matters
/// where it has cut something.
std::unique_ptr<ox_polygon> face_cutter::cut_off(ox_polygon& face, const operand& solid) const {
    const std::unique_ptr<ox_polygon> cut = find_cut(face, solid);
    if (!cut) {
        return nullptr;
    }
    auto piece = std::make_unique<ox_polygon>(face);
    piece->substracts(*cut);
    const bool is_cut = !have_same_contours(*piece, face) && is_large_enough(*cut);
    return is_cut ? std::move(piece) : nullptr;
}

/// The section of the solid in the plane of a face; null where the face is too far away or the
/// plane meets nothing. For a union it is made with the opposite normal: of a face that both solids
/// have, facing the same way, it is then empty, and both copies stay to be merged into one.
std::unique_ptr<ox_polygon> face_cutter::find_cut(ox_polygon& face, const operand& solid) const {
    if (!face.may_intersect(solid.get_box())) {
        return nullptr;
    }
    const ox_3dvector& normal = face.get_normal();
    const bool is_union = operation == boolean_operation::unite;
    return solid.find_section(face.get_point(), is_union ? -normal : normal, tolerance);
}

bool face_cutter::is_large_enough(ox_polygon& piece) const {
    return is_area_surely_above(piece, minimum_area) || piece.get_area() > minimum_area;
}

} // namespace ox::internal
