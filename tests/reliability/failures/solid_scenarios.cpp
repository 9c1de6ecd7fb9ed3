#include <tests/reliability/failures/scenario.h>

#include <memory>

#include <ox/solid/ox_csg.h>
#include <tests/reliability/failures/shapes.h>

namespace failures {

namespace {

using ox::ox_3dvector;
using ox::ox_csg;
using ox::ox_polygon;
using ox::ox_solid;

std::string contents_of(ox_solid& solid) {
    return told(solid.get_vertices(), solid.get_contours(), solid.get_contour_sizes());
}

/// The faces are made before memory fails.
ox_solid faced_wall() {
    ox_solid solid = wall();
    solid.get_faces();
    return solid;
}

template <typename Act>
scenario on_wall(const std::string& name, Act act) {
    return on(name, faced_wall, act, contents_of);
}

void add_building(std::vector<scenario>& all) {
    all.push_back(on_wall("SolidBecomesABrick", [](ox_solid& solid) {
        solid.brick(ox_3dvector(), 1.0f, 2.0f, 3.0f);
        return std::string();
    }));
    all.push_back(on_wall("SolidBecomesAPrism", [](ox_solid& solid) {
        ox_polygon base = frame();
        solid.extrusion(base, ox_3dvector(0.0f, 0.0f, 2.0f));
        return std::string();
    }));
    all.push_back(on_wall("SolidGainsAFace", [](ox_solid& solid) {
        ox_polygon face = frame();
        solid.add_face(face);
        return std::string();
    }));
    all.push_back(on_wall("SolidIsAssigned", [](ox_solid& solid) {
        solid = opening();
        return std::string();
    }));
    all.push_back(on_wall("SolidIsGivenItsVertices", [](ox_solid& solid) {
        solid.set_vertices(opening().get_vertices());
        return std::string();
    }));
    all.push_back(on_wall("SolidIsGivenItsIndices", [](ox_solid& solid) {
        solid.set_contours(ox::ox_make_list({0u, 1u, 2u, 3u}));
        return std::string();
    }));
    all.push_back(on_wall("SolidIsGivenItsSizes", [](ox_solid& solid) {
        solid.set_contour_sizes(ox::ox_make_list({4, -4, 4}));
        return std::string();
    }));
}

void add_queries(std::vector<scenario>& all) {
    all.push_back(on(
        "SolidMakesItsFaces", wall, [](ox_solid& solid) { return told(solid.get_faces().size()); },
        contents_of));
    all.push_back(on_wall("SolidIsDividedIntoTriangles", [](ox_solid& solid) {
        return told(solid.get_tesselation_vertices(), solid.get_tesselation_triangles());
    }));
    all.push_back(on_wall("SolidTellsItsMeasures", [](ox_solid& solid) {
        return told(solid.get_volume(), solid.get_surface_area(), solid.get_bounding_box().size,
                    solid.check_manifold());
    }));
    all.push_back(on_wall("SolidTellsItsOpenEdges",
                          [](ox_solid& solid) { return told(solid.get_open_edges(0.001f)); }));
}

using boolean = void (ox_solid::*)(ox_solid&);

scenario combination(const std::string& name, boolean operation) {
    return on_wall(name,
                   [=](ox_solid& solid) {
                       ox_solid other = opening();
                       (solid.*operation)(other);
                       return std::string();
                   })
        .in_libraries();
}

void add_booleans(std::vector<scenario>& all) {
    all.push_back(combination("SolidIsUnited", &ox_solid::unites));
    all.push_back(combination("SolidIsCutOut", &ox_solid::substracts));
    all.push_back(combination("SolidIsIntersected", &ox_solid::intersects));
    all.push_back(on_wall("SolidIsClipped", [](ox_solid& solid) {
                      solid.clip(ox_3dvector(0.0f, 0.0f, 1.5f), ox_3dvector(0.0f, 0.0f, 1.0f));
                      return std::string();
                  }).in_libraries());
    all.push_back(on_wall("SolidIsCutByAPlane", [](ox_solid& solid) {
                      std::string areas;
                      for (ox_polygon* piece : solid.intersect_by_plane(
                               ox_3dvector(0.0f, 0.0f, 1.5f), ox_3dvector(0.0f, 0.0f, 1.0f))) {
                          const std::unique_ptr<ox_polygon> owner(piece);
                          areas += told(piece->get_area());
                      }
                      return areas;
                  }).in_libraries());
    all.push_back(on_wall("SolidIsProjectedOnAPlane", [](ox_solid& solid) {
                      const std::unique_ptr<ox_polygon> outline(solid.project_on_plane(
                          ox_3dvector(0.0f, 0.0f, 0.0f), ox_3dvector(0.0f, 0.0f, 1.0f)));
                      return told(outline->get_area());
                  }).in_libraries());
}

ox_csg wall_and_opening() {
    ox_csg csg;
    csg.unites(wall());
    csg.substracts(opening());
    return csg;
}

ox_csg computed() {
    ox_csg csg = wall_and_opening();
    csg.compute();
    return csg;
}

std::string operands_of(ox_csg& csg) {
    ox_csg copy(csg);
    const bool is_done = copy.compute();
    return told(csg.get_nb_operands(), is_done, copy.get_solid().get_volume());
}

void add_combinations(std::vector<scenario>& all) {
    all.push_back(on(
        "CombinationGainsAnOperand", wall_and_opening,
        [](ox_csg& csg) {
            csg.intersects(wall());
            return std::string();
        },
        operands_of));
    all.push_back(on(
        "CombinationGainsAPlane", wall_and_opening,
        [](ox_csg& csg) {
            csg.clips(ox_3dvector(0.0f, 0.0f, 1.5f), ox_3dvector(0.0f, 0.0f, 1.0f));
            return std::string();
        },
        operands_of));
    all.push_back(on(
        "CombinationIsComputed", wall_and_opening, [](ox_csg& csg) { return told(csg.compute()); },
        operands_of));
    all.push_back(on(
        "CombinationGivesItsSolid", computed,
        [](ox_csg& csg) { return told(csg.get_solid().get_vertices(), csg.get_origins()); },
        operands_of));
    all.push_back(on(
        "CombinationGivesItsTriangles", computed,
        [](ox_csg& csg) { return told(csg.get_triangles().get_nb_triangles()); }, operands_of));
    all.push_back(on(
                      "CombinationIsAssigned", computed,
                      [](ox_csg& csg) {
                          csg = ox_csg(0.02f);
                          csg = wall_and_opening();
                          return std::string();
                      },
                      operands_of)
                      .with(promise::some_of_it));
}

} // namespace

std::vector<scenario> solid_scenarios() {
    std::vector<scenario> all;
    add_building(all);
    add_queries(all);
    add_booleans(all);
    add_combinations(all);
    return all;
}

} // namespace failures
