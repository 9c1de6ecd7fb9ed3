#include <gmock/gmock.h>
#include <gtest/gtest.h>

#ifdef _WIN32
#include <cstdio>

#include <windows.h>
#endif

#include <ox/polygon/ox_polygon.h>
#include <ox/solid/ox_solid.h>

namespace {

/// Fails every test that leaves polygons or solids alive: the library counts them, so a
/// forgotten owner shows up in the test that forgot it, without any leak checker.
class live_instance_guard : public ::testing::EmptyTestEventListener {
    void OnTestStart(const ::testing::TestInfo&) override {
        polygons = ox::ox_polygon::get_instanced();
        solids = ox::ox_solid::get_instanced();
    }

    void OnTestEnd(const ::testing::TestInfo&) override {
        EXPECT_EQ(polygons, ox::ox_polygon::get_instanced()) << "polygons were leaked";
        EXPECT_EQ(solids, ox::ox_solid::get_instanced()) << "solids were leaked";
    }

    int polygons = 0;
    int solids = 0;
};

/// Ends the process at once. MinGW's threads may keep one that ends by itself waiting for ever:
/// when a team of OpenMP becomes smaller, its threads end one by one, and one that is stopped on
/// the way seems to keep a lock of their runtime.
int end(int status) {
#ifdef _WIN32
    std::fflush(nullptr);
    TerminateProcess(GetCurrentProcess(), static_cast<UINT>(status));
#endif
    return status;
}

} // namespace

int main(int argc, char** argv) {
    ::testing::InitGoogleMock(&argc, argv);
    // The list of listeners takes ownership.
    ::testing::UnitTest::GetInstance()->listeners().Append(new live_instance_guard);
    return end(RUN_ALL_TESTS());
}
