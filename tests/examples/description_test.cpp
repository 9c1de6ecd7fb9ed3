#include <examples/building/description.h>

#include <cstdio>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

namespace {

using namespace building;

/// A description in a file that lives as long as the object.
class temporary_description {
public:
    explicit temporary_description(const std::string& text)
        : path(testing::TempDir() + "ox_description_" +
               testing::UnitTest::GetInstance()->current_test_info()->name() + ".txt") {
        std::ofstream(path, std::ios::binary) << text;
    }
    ~temporary_description() { std::remove(path.c_str()); }

    const std::string path;
};

TEST(BuildingDescription, RecordsHoldWhatTheLinesSay) {
    const temporary_description file(
        "building hut # the smallest\n"
        "storey 0 level 0.5\n"
        "wall south storey 0 from 0 1 to 6 1 thickness 0.3 height 2.5\n"
        "opening door wall south at 1 sill 0 width 0.9 height 2\n"
        "slab floor level 0.5 thickness 0.2 outline 0 0 6 0 6 6 0 6\n"
        "hole floor outline 1 2 2 2 2 3 1 3\n"
        "roof lid storey 0 level 3 thickness 0.2 outline 0 0 6 0 6 6 0 6\n"
        "slope lid from 0 0 to 6 0 level 3.5 rise 0.25\n");
    const description d = read_description(file.path);
    EXPECT_EQ(d.name, "hut");
    ASSERT_EQ(d.walls.size(), 1u);
    EXPECT_EQ(d.walls[0].name, "south");
    EXPECT_EQ(d.walls[0].to.x, 6);
    EXPECT_EQ(d.walls[0].height, 2.5);
    ASSERT_EQ(d.openings.size(), 1u);
    EXPECT_EQ(d.openings[0].wall, 0u);
    EXPECT_EQ(d.openings[0].width, 0.9);
    ASSERT_EQ(d.slabs.size(), 1u);
    EXPECT_EQ(d.slabs[0].outline.size(), 4u);
    EXPECT_EQ(d.slabs[0].holes.size(), 1u);
    ASSERT_EQ(d.roofs.size(), 1u);
    EXPECT_EQ(d.roofs[0].slopes[0].rise, 0.25);
}

TEST(BuildingDescription, LinesMayEndAsOnWindowsAndTheLastWithoutABreak) {
    const temporary_description file("building hut\r\nstorey 0 level 0\r\n\r\nwall south storey 0 "
                                     "from 0 0 to 6 0 thickness 0.3 height 2.5");
    EXPECT_EQ(read_description(file.path).walls.size(), 1u);
}

TEST(BuildingDescription, BytesThatCannotBePrintedAreNotRepeated) {
    const temporary_description file(std::string("\x1b[2J\0\xff", 6));
    try {
        read_description(file.path);
        FAIL();
    } catch (const description_error& error) {
        EXPECT_EQ(error.what(), file.path + ":1: unknown keyword '?[2J?" + "?'");
    }
}

TEST(BuildingDescription, FileOfMoreThanAMegabyteIsRefused) {
    const temporary_description file(std::string((1 << 20) + 1, '#'));
    EXPECT_THROW(read_description(file.path), description_error);
}

TEST(BuildingDescription, EveryPrefixOfTheHouseIsReadOrRefused) {
    std::ifstream house(OX_DESCRIPTIONS_DIR "/house.txt");
    const std::string text((std::istreambuf_iterator<char>(house)), {});
    ASSERT_FALSE(text.empty());
    for (std::size_t length = 0; length < text.size(); length += 17) {
        const temporary_description file(text.substr(0, length));
        try {
            read_description(file.path);
        } catch (const description_error&) {
        }
    }
}

TEST(BuildingDescription, HouseHasTwoStoreysSixteenWallsAndTwentyFourOpenings) {
    const description house = read_description(OX_DESCRIPTIONS_DIR "/house.txt");
    EXPECT_GE(house.storeys.size(), 2u);
    EXPECT_GE(house.walls.size(), 16u);
    EXPECT_GE(house.openings.size(), 24u);
}

} // namespace
