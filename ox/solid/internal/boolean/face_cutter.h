#ifndef OX_SOLID_INTERNAL_BOOLEAN_FACE_CUTTER_H
#define OX_SOLID_INTERNAL_BOOLEAN_FACE_CUTTER_H

#include <memory>

#include <ox/internal/boolean_operation.h>
#include <ox/polygon/ox_polygon.h>
#include <ox/solid/internal/boolean/operand.h>

namespace ox::internal {

/// What a boolean leaves of a face.
struct face_remains {
    enum class extent { whole, part, nothing };

    extent left = extent::nothing;
    std::unique_ptr<ox_polygon> part = nullptr; ///< set for a part only
};

/// Cuts faces by the section of the other solid in their plane. What is left of a face counts only
/// when its area is above the squared tolerance, and so does the section.
class face_cutter {
public:
    face_cutter(boolean_operation kind, float distance_tolerance)
        : operation(kind), tolerance(distance_tolerance),
          minimum_area(distance_tolerance * distance_tolerance) {}

    /// What lies of a face outside the solid.
    face_remains keep_outside(ox_polygon& face, const operand& solid) const;

    /// What lies of a face inside the solid: never the whole face, as the part is cut out anew.
    face_remains keep_inside(ox_polygon& face, const operand& solid) const;

    /// The same of a face that is turned inside out.
    face_remains keep_turned_inside(const ox_polygon& face, const operand& solid) const;

private:
    face_remains cut_out(std::unique_ptr<ox_polygon> piece, ox_polygon& cut) const;
    std::unique_ptr<ox_polygon> find_cut(ox_polygon& face, const operand& solid) const;
    std::unique_ptr<ox_polygon> cut_off(ox_polygon& face, const operand& solid) const;
    bool is_large_enough(ox_polygon& piece) const;

    const boolean_operation operation;
    const float tolerance;
    const float minimum_area;
};

} // namespace ox::internal

#endif
