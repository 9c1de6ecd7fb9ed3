#include <tests/reliability/misuse/values.h>

#include <ox/io/ox_csv.h>
#include <ox/mesh/ox_mesh.h>
#include <ox/mesh/ox_triangle_set.h>
#include <ox/mesh/ox_vertex_optimizer.h>
#include <ox/progress/ox_progress_manager.h>
#include <ox/progress/ox_thread.h>
#include <ox/structure/ox_loadshare.h>

namespace misuse {

namespace {

using ox::ox_3dvector;
using ox::ox_list;

TEST_F(Misuse, OfTriangleSets) {
    for (const char* path : {static_cast<const char*>(nullptr), "", ".", "no-such-folder/x"}) {
        ox::ox_triangle_set set(3, 1);
        EXPECT_FALSE(set.read_binary_raw(path));
        EXPECT_FALSE(set.read_binary_stl(path));
        EXPECT_FALSE(set.write_binary_raw(path));
        EXPECT_FALSE(set.write_binary_stl(path));
        EXPECT_FALSE(set.write_obj(path));
    }
    for (const unsigned int n : {0u, 1u, 2147483647u, 2147483648u, 4294967295u}) {
        ox::ox_triangle_set set;
        call([&] { set.allocate(n, n); });
        call([&] { ox::ox_triangle_set(n, n); });
        ox::ox_triangle_set corners(4, 1);
        corners.get_triangles()[0] = n;
        corners.get_triangles()[1] = corners.get_triangles()[2] = 1;
        corners.subdivide();
        assign_to_itself(corners);
        corners.swap(corners);
        for (const float value : floats) {
            corners.get_vertices()[0].x = value;
            corners.optimize(value, value);
        }
    }
}

TEST_F(Misuse, OfVertexOptimizers) {
    for (const float tolerance : floats) {
        ox::ox_vertex_optimizer optimizer(tolerance, tolerance);
        assign_to_itself(optimizer);
        for (const ox_list<ox_3dvector>& contour : contours()) {
            optimizer.add_vertices(contour);
            optimizer.add_vertices(contour, ox_3dvector(tolerance, 0.0f, 0.0f));
        }
        optimizer.add_vertices(optimizer.get_optimized_vertices());
        optimizer.add_vertices(optimizer.get_optimized_normals());
        for (const unsigned int index : optimizer.get_mapping()) {
            ASSERT_LT(index, static_cast<unsigned int>(optimizer.get_optimized_vertices().size()));
        }
    }
}

TEST_F(Misuse, OfMeshes) {
    ox::ox_mesh mesh;
    mesh.build_half_edges();
    for (const ox_list<ox_3dvector>& contour : contours()) {
        mesh.set_vertices(contour);
        mesh.set_vertices(mesh.get_vertices());
        for (const unsigned int index : {0u, 4u, 4294967295u}) {
            mesh.set_triangles(ox::ox_make_list({index, 1u, 2u, 2u, 1u}));
            mesh.set_triangles(mesh.get_triangles());
            mesh.build_half_edges();
            EXPECT_FALSE(mesh.is_closed());
        }
    }
    assign_to_itself(mesh);
    ox::ox_triangle_set set(1, 1);
    set.get_triangles()[0] = set.get_triangles()[1] = set.get_triangles()[2] = 4294967295u;
    mesh.add(set);
    mesh.add(ox::ox_triangle_set());
    mesh.build_half_edges();
    mesh.set_triangles(ox_list<unsigned int>(-1));
    mesh.build_half_edges();
    EXPECT_EQ(mesh.get_half_edges().size(), 0);
}

TEST_F(Misuse, OfLoadSharing) {
    for (const ox_3dvector& v : vectors()) {
        ox::ox_loadshare slab;
        slab.set_slab_geometry(v, v);
        slab.set_slab_weight(v.x);
        for (const ox_list<ox_3dvector>& contour : contours()) {
            slab.add_slab_contour(contour);
        }
        slab.add_beam(v, v);
        assign_to_itself(slab);
        slab.swap(slab);
        slab.produce_log(false);
        slab.set_image_log(true);
        call([&] { slab.compute_weights(v.x); });
        for (const int n : ints) {
            slab.get_weight(n);
        }
        slab.get_uncarried_weight();
        int width = -1;
        int height = -1;
        slab.get_image_log(width, height);
        EXPECT_TRUE(width >= 0 && height >= 0);
        slab.clear_beams();
        slab.clear_slab_contours();
        slab.compute_weights(v.x);
    }
}

void change(ox::ox_csv& table, const std::string& text, int n) {
    const ox_list<std::string> texts_of = ox::ox_make_list({text});
    const ox_list<float> numbers = ox::ox_make_list({float_limits::quiet_NaN(), 1.0f});
    table.add_column(text, ox_list<int>(-3));
    table.add_column(texts_of, ox_list<int>(-3));
    table.add_column(text, numbers, n);
    table.add_column(texts_of, numbers, n);
    table.add_column(text, texts_of);
    table.add_column(texts_of, texts_of);
    table.add_column(text, ox::ox_make_list({true}));
    table.add_column(texts_of, ox::ox_make_list({false}));
    table.set_column_separator('\0');
    table.set_float_separator('\0');
}

TEST_F(Misuse, OfTables) {
    for (const std::string& text : texts()) {
        ox::ox_csv table;
        EXPECT_FALSE(table.read_file(std::string("no-such-folder/") + text));
        EXPECT_FALSE(table.write_file(std::string("no-such-folder/") + text));
        EXPECT_TRUE(table.read_string(text));
        for (const int n : ints) {
            change(table, text, n);
            ox_list<std::string> cells;
            ox_list<float> values;
            EXPECT_EQ(table.get_column(n, cells), n >= 0 && n < table.get_nb_columns());
            table.get_column(n, cells, values);
        }
        assign_to_itself(table);
        table.swap(table);
        table.set_encoding(static_cast<ox::ox_csv::encoding>(77));
        table.get_encoding();
        table.set_progress_manager(nullptr, 1.0, -1.0);
        table.read_string(table.write_string());
        EXPECT_EQ(table.get_column_separator() + table.get_float_separator(),
                  table.get_column_separator());
        table.clear();
    }
}

TEST_F(Misuse, OfProgressManagers) {
    for (const std::string& text : texts()) {
        for (const float value : floats) {
            ox::ox_progress_manager manager;
            manager.add_phase(text, text, static_cast<double>(value));
            manager.add_phase(text, "", static_cast<double>(value));
            manager.add_phase("child", text, static_cast<double>(value));
            manager.add_phase(text, "child", 1.0);
            manager.set_current_phase(text);
            EXPECT_EQ(manager.get_current_phase(), text);
            assign_to_itself(manager);
            manager.compute_phase_progress(static_cast<double>(value));
            manager.set_progress(static_cast<double>(value));
            EXPECT_GE(manager.get_current_phase_duration(), 0.0);
            ox_list<std::string> names;
            ox_list<double> numbers;
            manager.get_all_phases(names, names, numbers, numbers);
            manager.set_experience_learning_file("no-such-folder/" + text);
            manager.finalize();
        }
    }
}

/// Asks for steps for ever, but ends after a few.
class few_steps : public ox::ox_thread {
    bool run(unsigned int step, unsigned int thread) override {
        return ox::ox_thread::run(step, thread) && step < 20;
    }
    int get_last_step() override { return ox::ox_thread::get_last_step() - 1; }
    bool progress(unsigned int step) override { return ox::ox_thread::progress(step); }
};

TEST_F(Misuse, OfThreads) {
    for (const unsigned int count : {0u, 1u, 2u, 4294967295u}) {
        few_steps work;
        assign_to_itself(work);
        const ox::ox_thread copy(work);
        work.set_progress_manager(nullptr, -1.0, float_limits::quiet_NaN());
        EXPECT_EQ(work.get_progress_manager(), nullptr);
        EXPECT_TRUE(work.start(count));
        EXPECT_FALSE(work.was_interrupted());
        EXPECT_EQ(work.get_progress_min(), -1.0);
        EXPECT_NE(work.get_progress_max(), work.get_progress_max());
    }
}

} // namespace

} // namespace misuse
