#include <examples/slab/csv_file.h>

#include <cstdio>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

namespace {

std::string written(const slab::csv_file& table) {
    const std::string path = testing::TempDir() + "ox_slab_table.csv";
    EXPECT_TRUE(table.write_file(path));
    std::ifstream file(path);
    const std::string text((std::istreambuf_iterator<char>(file)), {});
    std::remove(path.c_str());
    return text;
}

TEST(SlabCsvFile, WritesColumnsUnderTheirHeaders) {
    slab::csv_file table;
    ox::ox_list<std::string> names;
    names.push_right("west");
    names.push_right("east");
    ox::ox_list<float> loads;
    loads.push_right(1.5f);
    loads.push_right(20.126f);
    table.add_column("beam", names);
    table.add_column("load", loads, 2);
    EXPECT_EQ("beam;load\nwest;1,50\neast;20,13\n", written(table));
}

TEST(SlabCsvFile, TellsWhenTheFileCannotBeWritten) {
    slab::csv_file table;
    EXPECT_FALSE(table.write_file(testing::TempDir() + "no_such_folder/table.csv"));
}

} // namespace
