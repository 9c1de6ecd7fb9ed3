// Files from strangers: every prefix of twenty seeds, every change of one of their first 200 bytes
// (a part of the values; all of them with OX_CHECK=1), every count in every place of a count, and
// what is no file at all. None may take more memory than twice its size and a mebibyte; a watchdog
// ends what does not come to an end.

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <ox/core/ox_log.h>
#include <ox/io/ox_csv.h>
#include <ox/mesh/ox_triangle_set.h>
#include <ox/progress/ox_progress_manager.h>
#include <tests/support/all_cases.h>
#include <tests/support/allocation_meter.h>
#include <tests/support/generator.h>
#include <tests/support/log_capture.h>

namespace {

constexpr std::size_t mebibyte = std::size_t{1} << 20;
constexpr int seed_count = 20;

/// What is read from a file, and whether that was possible.
using reader = std::function<bool(const std::string& path)>;

bool read_raw(const std::string& path) {
    ox::ox_triangle_set set;
    return set.read_binary_raw(path.c_str());
}

bool read_stl(const std::string& path) {
    ox::ox_triangle_set set;
    return set.read_binary_stl(path.c_str());
}

bool read_table(const std::string& path) {
    ox::ox_csv table;
    return table.read_file(path);
}

bool read_experience(const std::string& path) {
    ox::ox_progress_manager manager;
    manager.set_experience_learning_file(path);
    return true;
}

/// Ends the process when it is still at the same test after this many seconds.
class watchdog {
public:
    explicit watchdog(unsigned int seconds) { alarm(seconds); }
    ~watchdog() { alarm(0); }
    watchdog(const watchdog&) = delete;
    watchdog& operator=(const watchdog&) = delete;
};

class HostileFile : public ::testing::Test {
protected:
    HostileFile() : path(folder() + support::own_file(".file")) { ox_log_set(false); }
    ~HostileFile() override {
        std::remove(path.c_str());
        ox_log_set(true);
    }

    /// In memory where the system has such a folder: millions of files are written.
    static std::string folder() { return access("/dev/shm", W_OK) == 0 ? "/dev/shm/" : ""; }

    /// Reads `bytes` within the memory that a file of that size may take.
    void read(const std::string& bytes, const reader& read_file) {
        std::FILE* const file = std::fopen(path.c_str(), "wb");
        ASSERT_NE(file, nullptr);
        ASSERT_EQ(std::fwrite(bytes.data(), 1, bytes.size(), file), bytes.size());
        ASSERT_EQ(std::fclose(file), 0);
        measure(path, bytes.size(), read_file);
        ++files;
    }

    bool measure(const std::string& of, std::size_t size, const reader& read_file) {
        allocation_meter::start(64 * mebibyte);
        const bool is_read = read_file(of);
        EXPECT_LE(allocation_meter::stop(), 2 * size + mebibyte);
        return is_read;
    }

    void read_prefixes(const std::string& seed, const reader& read_file) {
        for (std::size_t length = 0; length <= seed.size(); ++length) {
            read(seed.substr(0, length), read_file);
        }
    }

    void read_changes(std::string seed, const reader& read_file) {
        const int stride = support::all_or(1, 85);
        for (std::size_t i = 0; i < std::min<std::size_t>(200, seed.size()); ++i) {
            const char before = seed[i];
            for (int value = static_cast<int>(i) % stride; value < 256; value += stride) {
                seed[i] = static_cast<char>(value);
                read(seed, read_file);
            }
            seed[i] = before;
        }
    }

    /// The counts are 32-bit numbers at `places`.
    void read_counts(std::string seed, const std::vector<std::size_t>& places,
                     const reader& read_file) {
        for (const std::size_t place : places) {
            std::uint32_t right = 0;
            std::memcpy(&right, &seed[place], sizeof right);
            for (const std::uint32_t count :
                 {0u, 1u, right - 1, right + 1, 65536u, 2147483647u, 2147483648u, 4294967295u}) {
                std::memcpy(&seed[place], &count, sizeof count);
                read(seed, read_file);
            }
            std::memcpy(&seed[place], &right, sizeof right);
        }
    }

    void TearDown() override { std::printf("%d files read\n", files); }

    watchdog guard{support::all_or(3000u, 500u)};
    std::string path;
    int files = 0;
};

std::string bytes_of(std::uint32_t count) {
    return std::string(reinterpret_cast<const char*>(&count), sizeof count);
}

std::string random_bytes(support::generator& random, std::size_t count) {
    std::string bytes;
    while (bytes.size() < count) {
        bytes += static_cast<char>(random.between(0, 255));
    }
    return bytes;
}

TEST_F(HostileFile, RawFilesAreReadWithinTheirBounds) {
    support::generator random(1);
    for (std::uint32_t i = 0; i < seed_count; ++i) {
        const std::uint32_t triangles = i % 5;
        const std::string seed = "binaryra" + bytes_of(i) + bytes_of(triangles) +
                                 random_bytes(random, 12 * std::size_t{i + triangles});
        read_prefixes(seed, read_raw);
        read_changes(seed, read_raw);
        read_counts(seed, {8, 12}, read_raw);
    }
}

TEST_F(HostileFile, StlFilesAreReadWithinTheirBounds) {
    support::generator random(2);
    for (std::uint32_t i = 0; i < seed_count; ++i) {
        const std::string seed =
            std::string(80, 's') + bytes_of(i % 6) + random_bytes(random, 50 * (i % 6));
        read_prefixes(seed, read_stl);
        read_changes(seed, read_stl);
        read_counts(seed, {80}, read_stl);
    }
}

/// Lines of a few characters, so that separators and line breaks are frequent.
std::string random_text(support::generator& random, const std::string& characters, int count) {
    std::string text;
    for (int i = 0; i < count; ++i) {
        text += characters[static_cast<std::size_t>(
            random.between(0, static_cast<int>(characters.size()) - 1))];
    }
    return text;
}

TEST_F(HostileFile, TablesAreReadWithinTheirBounds) {
    support::generator random(3);
    for (int i = 0; i < seed_count; ++i) {
        const std::string seed = random_text(random, "abc019.-;;,,\t\n\n\r\"", 12 * i);
        read_prefixes(seed, read_table);
        read_changes(seed, read_table);
    }
}

TEST_F(HostileFile, ExperienceFilesAreReadWithinTheirBounds) {
    support::generator random(4);
    for (int i = 0; i < seed_count; ++i) {
        const std::string seed = random_text(random, "abc019.-e  \n\n", 12 * i);
        read_prefixes(seed, read_experience);
        read_changes(seed, read_experience);
    }
}

const reader readers[] = {read_raw, read_stl, read_table, read_experience};

TEST_F(HostileFile, FoldersPipesAndDevicesTakeNoMemoryAndNoTime) {
    const std::string pipe = support::own_file(".pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    std::vector<std::string> paths{".", "/dev/zero", "/dev/full", "/dev/urandom", "/dev/null"};
    for (const std::string& some : paths) {
        for (const reader& read_file : readers) {
            measure(some, 0, read_file);
        }
    }
    for (const reader& read_file : {readers[0], readers[1], readers[3]}) { // a table would wait
        measure(pipe, 0, read_file);
    }
    EXPECT_FALSE(read_raw(pipe) || read_stl("/dev/zero") || read_table("/dev/zero"));
    EXPECT_TRUE(read_table("/dev/null"));
}

TEST_F(HostileFile, FileWithoutPermissionIsNotRead) {
    support::write_text(path, "binaryra");
    ASSERT_EQ(chmod(path.c_str(), 0), 0);
    const uid_t user = geteuid();
    const bool is_root = user == 0;
    ASSERT_TRUE(!is_root || seteuid(65534) == 0); // root may read everything
    EXPECT_FALSE(read_raw(path) || read_stl(path) || read_table(path));
    EXPECT_TRUE(read_experience(path));
    ASSERT_TRUE(!is_root || seteuid(user) == 0);
}

TEST_F(HostileFile, SparseFileOfTenGigabytesTakesNoMemory) {
    support::write_text(path, "");
    constexpr std::uintmax_t size = std::uintmax_t{10} << 30;
    std::error_code error;
    std::filesystem::resize_file(path, size, error);
    if (error) {
        GTEST_SKIP() << "this file system has no sparse files of 10 GB: " << error.message();
    }
    for (const reader& read_file : readers) {
        measure(path, 0, read_file);
    }
    EXPECT_FALSE(read_raw(path) || read_table(path)); // no magic; too long
}

TEST_F(HostileFile, FullDeviceIsToldWhereWritingCanFail) {
    if (!std::filesystem::exists("/dev/full")) {
        GTEST_SKIP() << "this system has no /dev/full";
    }
    ox::ox_triangle_set set(3, 1);
    EXPECT_FALSE(set.write_binary_raw("/dev/full"));
    ox::ox_csv table;
    EXPECT_TRUE(table.write_file("/dev/full"));
    ox::ox_progress_manager manager;
    manager.set_experience_learning_file("/dev/full");
    manager.finalize();
    ox_log_set(true);
    ox_set_log_file("/dev/full");
    ox_log("lost");
    ox_set_log_file(nullptr);
}

} // namespace
