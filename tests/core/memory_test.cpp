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
    std::vector<char> memory(std::size_t{64} << 20);
    volatile char* const cells = memory.data(); // volatile, lest the optimiser leave it all out
    for (std::size_t i = 0; i < memory.size(); i += 1024) {
        cells[i] = 1;
    }
    EXPECT_GT(ox_get_memory_occupation(), before + (32 << 20));
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
