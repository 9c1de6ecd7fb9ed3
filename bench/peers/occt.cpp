#include <bench/peers/occt.h>

namespace {

constexpr char occt_name[] = "Open CASCADE";

} // namespace

#ifdef OX_BENCH_HAS_OCCT

#include <BRepAlgoAPI_Cut.hxx>
#include <BRepAlgoAPI_Fuse.hxx>
#include <BRepGProp.hxx>
#include <BRepPrimAPI_MakeBox.hxx>
#include <GProp_GProps.hxx>
#include <TopoDS_Shape.hxx>

namespace peers {
namespace {

TopoDS_Shape to_box(const triangle_mesh& mesh) {
    const std::array<double, 3>& low = mesh.points.front();
    const std::array<double, 3>& high = mesh.points.back();
    return BRepPrimAPI_MakeBox(gp_Pnt(low[0], low[1], low[2]), gp_Pnt(high[0], high[1], high[2]))
        .Shape();
}

struct operands {
    TopoDS_Shape body;
    std::vector<TopoDS_Shape> tools;
};

operands make_operands(const triangle_mesh& body, const std::vector<triangle_mesh>& tools) {
    operands made;
    made.body = to_box(body);
    for (const triangle_mesh& tool : tools) {
        made.tools.push_back(to_box(tool));
    }
    return made;
}

// Applies a boolean (`BRepAlgoAPI_Cut`, `BRepAlgoAPI_Fuse`) with one tool after another.
template <class boolean>
bench::contestant apply_all(const triangle_mesh& body, const std::vector<triangle_mesh>& tools) {
    return bench::make_contestant(
        occt_name, [=] { return make_operands(body, tools); },
        [](operands& o) {
            for (const TopoDS_Shape& tool : o.tools) {
                o.body = boolean(o.body, tool).Shape();
            }
        },
        [](const operands& o) {
            GProp_GProps properties;
            BRepGProp::VolumeProperties(o.body, properties);
            return std::vector<bench::fact>{{"volume", properties.Mass(), 0.0}};
        });
}

} // namespace

bench::contestant occt_differences(const triangle_mesh& body,
                                   const std::vector<triangle_mesh>& tools) {
    return apply_all<BRepAlgoAPI_Cut>(body, tools);
}

bench::contestant occt_unions(const std::vector<triangle_mesh>& bodies) {
    return apply_all<BRepAlgoAPI_Fuse>(bodies.front(), {bodies.begin() + 1, bodies.end()});
}

} // namespace peers

#else

namespace peers {

bench::contestant occt_differences(const triangle_mesh&, const std::vector<triangle_mesh>&) {
    return bench::absent(occt_name);
}

bench::contestant occt_unions(const std::vector<triangle_mesh>&) {
    return bench::absent(occt_name);
}

} // namespace peers

#endif
