#include <cstddef>
#include <gtest/gtest.h>
#include <ox/ox_functions.h>
#include <vector>

namespace {

constexpr double mebibyte = 1048576.0;

TEST(Memory, PeakIsNeverBelowTheCurrentOccupation) {
    const long long current = ox_get_memory_occupation();
    EXPECT_GE(current, 0);
    EXPECT_GE(ox_get_peak_memory_occupation(), current);
}

#ifdef __linux__
TEST(Memory, TouchedMemoryRaisesTheOccupation) {
    const long long before = ox_get_memory_occupation();
    EXPECT_GT(before, 0);
    const std::vector<char> touched(std::size_t{64} << 20, '\1');
    EXPECT_GT(ox_get_memory_occupation(), before + (32 << 20));
    EXPECT_EQ(touched.back(), '\1');
}
#endif

TEST(Memory, OccupationInMegabytesIsInUnitsOf1048576Bytes) {
    const double megabytes = static_cast<double>(ox_get_memory_occupation()) / mebibyte;
    EXPECT_NEAR(ox_get_memory_occupation_mb(), megabytes, 16.0);
}

TEST(Memory, QualifiedAndGlobalNamesAreOneFunction) {
    EXPECT_EQ(&ox::ox_get_memory_occupation, &::ox_get_memory_occupation);
    EXPECT_EQ(&ox::ox_get_memory_occupation_mb, &::ox_get_memory_occupation_mb);
    EXPECT_EQ(&ox::ox_get_peak_memory_occupation, &::ox_get_peak_memory_occupation);
}

} // namespace
