#include <examples/progress/production.h>
#include <examples/progress/tower.h>

#include <ox/mesh/ox_triangle_set.h>
#include <ox/mesh/ox_vertex_optimizer.h>
#include <ox/progress/ox_thread.h>

#include <algorithm>
#include <functional>
#include <stdexcept>

namespace progress_example {

namespace {

/// Corners closer than this on every axis are one vertex of the mesh, in metres.
constexpr float weld_distance = 0.0001f;

/// A cut panel, and whether the work on it was finished.
struct part {
    ox::ox_solid solid;
    bool finished = false;
};

/// Does something with each of a number of things, on several threads. When it is stopped some
/// have not been begun; none is left half-done.
class parallel_work : public ox::ox_thread {
public:
    using work = std::function<void(std::size_t)>;

    parallel_work(std::size_t nb_things, work do_one)
        : count(nb_things), treat(std::move(do_one)) {}

    int get_last_step() override { return static_cast<int>(count); }

    bool run(unsigned int step, unsigned int) override {
        if (step >= count) {
            return false;
        }
        treat(step);
        return true;
    }

private:
    std::size_t count;
    work treat;
};

/// Runs the work as the whole phase at hand.
void run_phase(reporter& progress, int nb_threads, std::size_t nb_things,
               const parallel_work::work& do_one) {
    parallel_work work(nb_things, do_one);
    work.set_progress_manager(&progress, 0.0, 1.0);
    work.start(static_cast<unsigned int>(nb_threads));
    if (work.was_interrupted()) {
        progress.accept_stop();
    }
}

void keep_finished(std::vector<part>& parts) {
    parts.erase(
        std::remove_if(parts.begin(), parts.end(), [](const part& p) { return !p.finished; }),
        parts.end());
}

std::vector<part> cut(const std::vector<panel>& panels, int nb_threads, reporter& progress) {
    std::vector<part> parts(panels.size());
    run_phase(progress, nb_threads, panels.size(), [&](std::size_t i) {
        parts[i].solid = cut_panel(panels[i]);
        parts[i].finished = true;
    });
    keep_finished(parts);
    return parts;
}

/// Computes the triangles, which the solids keep.
void triangulate(std::vector<part>& parts, int nb_threads, reporter& progress) {
    for (part& p : parts) {
        p.finished = false;
    }
    run_phase(progress, nb_threads, parts.size(), [&](std::size_t i) {
        parts[i].solid.get_tesselation_triangles();
        parts[i].finished = true;
    });
    keep_finished(parts);
}

/// The welded triangles of as many parts as were reached.
class welding {
public:
    void add(ox::ox_solid& solid) {
        const int first = optimizer.get_mapping().size();
        optimizer.add_vertices(solid.get_tesselation_vertices());
        for (const unsigned int corner : solid.get_tesselation_triangles()) {
            const unsigned int vertex = optimizer.get_mapping()[first + static_cast<int>(corner)];
            indices.push_back(vertex);
        }
        ++nb_parts;
    }

    ox::ox_triangle_set mesh() const {
        const ox::ox_list<ox::ox_3dvector>& vertices = optimizer.get_optimized_vertices();
        ox::ox_triangle_set set(static_cast<unsigned int>(vertices.size()),
                                static_cast<unsigned int>(indices.size() / 3));
        std::copy(vertices.begin(), vertices.end(), set.get_vertices());
        std::copy(indices.begin(), indices.end(), set.get_triangles());
        return set;
    }

    int get_nb_parts() const { return nb_parts; }

    int get_nb_corners() const { return optimizer.get_mapping().size(); }

private:
    ox::ox_vertex_optimizer optimizer{weld_distance, 0.0f};
    std::vector<unsigned int> indices;
    int nb_parts = 0;
};

welding weld(std::vector<part>& parts, reporter& progress) {
    welding welded;
    bool wanted = true;
    for (std::size_t i = 0; wanted && i < parts.size(); ++i) {
        welded.add(parts[i].solid);
        const double fraction = static_cast<double>(i + 1) / static_cast<double>(parts.size());
        wanted = progress.set_progress(progress.compute_phase_progress(fraction));
    }
    if (!wanted) {
        progress.accept_stop();
    }
    return welded;
}

void write(ox::ox_triangle_set& mesh, const std::string& path) {
    if (!mesh.write_binary_raw(path.c_str())) {
        throw std::runtime_error(path + ": cannot be written");
    }
}

} // namespace

void add_phases(reporter& progress) {
    progress.add_phase("panels", "", 1.0);
    progress.add_phase("planning", "panels", 1.0);
    progress.add_phase("cutting", "panels", 1.0);
    progress.add_phase("mesh", "", 1.0);
    progress.add_phase("triangles", "mesh", 1.0);
    progress.add_phase("welding", "mesh", 1.0);
    progress.add_phase("writing", "mesh", 1.0);
}

product produce(const arguments& wanted, const std::string& path, reporter& progress) {
    product result;
    progress.begin("planning");
    const std::vector<panel> panels = plan_tower(wanted.nb_storeys);
    progress.begin("cutting");
    std::vector<part> parts = cut(panels, wanted.nb_threads, progress);
    progress.begin("triangles");
    triangulate(parts, wanted.nb_threads, progress);
    progress.begin("welding");
    const welding welded = weld(parts, progress);
    progress.begin("writing");
    ox::ox_triangle_set mesh = welded.mesh();
    if (mesh.get_nb_triangles() > 0) {
        write(mesh, path);
    }
    result.nb_planned = static_cast<int>(panels.size());
    result.nb_finished = welded.get_nb_parts();
    result.nb_corners = static_cast<unsigned int>(welded.get_nb_corners());
    result.nb_vertices = mesh.get_nb_vertices();
    result.nb_triangles = mesh.get_nb_triangles();
    return result;
}

} // namespace progress_example
