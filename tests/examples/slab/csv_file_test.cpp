#include <examples/slab/csv_file.h>

#include <cstdio>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

namespace {

std::string written(const slab::csv_file& table) {
    const std::string path = testing::TempDir() + "ox_slab_table.csv";
    EXPECT_TRUE(table.write(path));
    std::ifstream file(path);
    const std::string text((std::istreambuf_iterator<char>(file)), {});
    std::remove(path.c_str());
    return text;
}

TEST(SlabCsvFile, WritesColumnsUnderTheirHeaders) {
    slab::csv_file table;
    table.add_column("beam", {"west", "east"});
    table.add_column("load", {1.5, 20.126}, 2);
    EXPECT_EQ("beam;load\nwest;1,50\neast;20,13\n", written(table));
}

TEST(SlabCsvFile, TellsWhenTheFileCannotBeWritten) {
    slab::csv_file table;
    EXPECT_FALSE(table.write(testing::TempDir() + "no_such_folder/table.csv"));
}

} // namespace
