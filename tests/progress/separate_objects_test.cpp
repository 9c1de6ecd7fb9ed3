#include <algorithm>
#include <gtest/gtest.h>
#include <ox/io/ox_csv.h>
#include <ox/mesh/ox_triangle_set.h>
#include <ox/ox_functions.h>
#include <ox/progress/ox_thread.h>
#include <ox/solid/ox_solid.h>
#include <string>
#include <tests/support/log_capture.h>
#include <tests/support/printing.h>
#include <vector>

namespace {

constexpr unsigned int nb_objects = 60;
constexpr unsigned int nb_threads = 4;

/// Work whose steps each make an object of their own and keep what came of it as text.
class separate_work : public ox::ox_thread {
public:
    using function = std::string (*)(unsigned int step);

    explicit separate_work(function make_one) : make(make_one), results(nb_objects) {}

    bool run(unsigned int step, unsigned int) override {
        if (step >= nb_objects) {
            return false;
        }
        results[step] = make(step);
        return true;
    }

    function make;
    std::vector<std::string> results;
};

void expect_threads_change_nothing(separate_work::function make) {
    separate_work alone(make);
    separate_work team(make);
    EXPECT_TRUE(alone.start(1));
    EXPECT_TRUE(team.start(nb_threads));
    EXPECT_EQ(alone.results, team.results);
}

/// A wall with openings and a corner cut off, seen as its faces, its triangles and a section.
std::string cut_wall(unsigned int number) {
    const float length = 4.0f + 0.25f * static_cast<float>(number % 7);
    ox::ox_solid wall;
    wall.brick(ox::ox_3dvector(0, 0, 0), length, 0.3f, 2.5f);
    for (float x = 0.5f; x < length - 1.0f; x += 1.25f) {
        ox::ox_solid window;
        window.brick(ox::ox_3dvector(x, -0.25f, 0.875f), 0.75f, 1.0f, 1.25f);
        wall.substracts(window);
    }
    wall.clip(ox::ox_3dvector(length, 0, 2), ox::ox_3dvector(1, 0, 1));
    std::string text = support::to_text(wall);
    text += std::to_string(wall.get_tesselation_triangles().size());
    for (ox::ox_polygon* piece :
         wall.intersect_by_plane(ox::ox_3dvector(0, 0, 1), ox::ox_3dvector(0, 0, 1))) {
        text += support::to_text(*piece);
        delete piece;
    }
    return text;
}

std::string read_table(unsigned int number) {
    ox::ox_csv table;
    table.read_string("name;size\nwall;" + std::to_string(number) + "\n");
    return table.write_string();
}

/// Triangles of which one has an index that the set refuses with a line of the log.
std::string weld_wrong_mesh(unsigned int number) {
    ox::ox_triangle_set mesh;
    mesh.allocate(3, 1);
    for (unsigned int i = 0; i < 3; ++i) {
        mesh.get_vertices()[i] = ox::ox_3dvector(static_cast<float>(number), 0, 0);
        mesh.get_triangles()[i] = 3;
    }
    mesh.optimize(0.0f, 0.0f);
    return std::to_string(mesh.get_nb_vertices());
}

TEST(SeparateObjectsThread, SolidsAreCutInParallelAsTheyAreOneByOne) {
    expect_threads_change_nothing(cut_wall);
}

TEST(SeparateObjectsThread, LivingSolidsAndPolygonsAreCountedThroughAllThreads) {
    const int solids_before = ox::ox_solid::get_instanced();
    const int polygons_before = ox::ox_polygon::get_instanced();
    separate_work work(cut_wall);
    EXPECT_TRUE(work.start(nb_threads));
    EXPECT_EQ(ox::ox_solid::get_instanced(), solids_before);
    EXPECT_EQ(ox::ox_polygon::get_instanced(), polygons_before);
}

TEST(SeparateObjectsThread, TablesAreReadInParallelAndLogWholeLines) {
    const std::string log = support::own_file(".log");
    ox_set_log_file(log.c_str());
    expect_threads_change_nothing(read_table);
    ox_set_log_file(nullptr);
    const std::string lines = support::text_of_file(log);
    std::size_t nb_lines = 0;
    for (std::size_t start = 0; start < lines.size(); start = lines.find('\n', start) + 1) {
        EXPECT_TRUE(lines.compare(start, 9, "Score for") == 0 ||
                    lines.compare(start, 14, "Header lines :") == 0);
        ++nb_lines;
    }
    EXPECT_EQ(nb_lines, 2u * nb_objects * 4u); // three scores and the header lines of each table
}

TEST(SeparateObjectsThread, MeshesAreRefusedInParallelAsTheyAreOneByOne) {
    expect_threads_change_nothing(weld_wrong_mesh);
}

TEST(SeparateObjectsThread, DatesTakenAtTheSameTimeDiffer) {
    struct dates : ox::ox_thread {
        bool run(unsigned int step, unsigned int) override {
            if (step >= taken.size()) {
                return false;
            }
            taken[step] = ox_get_new_date();
            return true;
        }
        std::vector<unsigned int> taken = std::vector<unsigned int>(10000);
    };
    dates work;
    EXPECT_TRUE(work.start(nb_threads));
    std::sort(work.taken.begin(), work.taken.end());
    EXPECT_EQ(std::adjacent_find(work.taken.begin(), work.taken.end()), work.taken.end());
}

} // namespace
