#include <bench/peers/openmesh.h>

namespace {

constexpr char openmesh_name[] = "OpenMesh";

} // namespace

#ifdef OX_BENCH_HAS_OPENMESH

#include <OpenMesh/Core/Mesh/TriMesh_ArrayKernelT.hh>

namespace peers {
namespace {

using mesh_type = OpenMesh::TriMesh_ArrayKernelT<>;

void fill(const triangle_mesh& from, mesh_type& mesh) {
    for (const std::array<double, 3>& p : from.points) {
        mesh.add_vertex(mesh_type::Point(static_cast<float>(p[0]), static_cast<float>(p[1]),
                                         static_cast<float>(p[2])));
    }
    const auto vertex = [&](std::size_t i) {
        return mesh.vertex_handle(static_cast<unsigned int>(i));
    };
    for (const std::array<std::size_t, 3>& t : from.triangles) {
        mesh.add_face(vertex(t[0]), vertex(t[1]), vertex(t[2]));
    }
}

} // namespace

bench::contestant openmesh_half_edges(std::shared_ptr<const triangle_mesh> mesh) {
    return bench::make_contestant(
        openmesh_name, [] { return mesh_type(); }, [=](mesh_type& made) { fill(*mesh, made); },
        [](const mesh_type& made) {
            return std::vector<bench::fact>{
                {"triangles", static_cast<double>(made.n_faces()), 0.0}};
        });
}

} // namespace peers

#else

namespace peers {

bench::contestant openmesh_half_edges(std::shared_ptr<const triangle_mesh>) {
    return bench::absent(openmesh_name);
}

} // namespace peers

#endif
