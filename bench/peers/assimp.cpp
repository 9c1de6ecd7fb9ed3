#include <bench/peers/mesh_files.h>

namespace {

constexpr char assimp_name[] = "assimp";

} // namespace

#ifdef OX_BENCH_HAS_ASSIMP

#include <assimp/Importer.hpp>
#include <assimp/scene.h>

namespace peers {
namespace {

std::vector<bench::fact> facts_of(const std::unique_ptr<Assimp::Importer>& importer) {
    double triangles = 0.0;
    double sum = 0.0;
    const aiScene* const scene = importer->GetScene();
    for (unsigned int i = 0; scene != nullptr && i < scene->mNumMeshes; ++i) {
        const aiMesh& mesh = *scene->mMeshes[i];
        triangles += mesh.mNumFaces;
        for (unsigned int j = 0; j < mesh.mNumVertices; ++j) {
            sum += static_cast<double>(mesh.mVertices[j].x);
        }
    }
    return {{"triangles", triangles, 0.0}, {"sum of x", sum, 1e-12}};
}

} // namespace

bench::contestant assimp_read(const std::string& path) {
    return bench::make_contestant(
        assimp_name, [] { return std::make_unique<Assimp::Importer>(); },
        [=](const std::unique_ptr<Assimp::Importer>& importer) { importer->ReadFile(path, 0); },
        facts_of);
}

} // namespace peers

#else

namespace peers {

bench::contestant assimp_read(const std::string&) {
    return bench::absent(assimp_name);
}

} // namespace peers

#endif
