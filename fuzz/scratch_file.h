#ifndef OX_FUZZ_SCRATCH_FILE_H
#define OX_FUZZ_SCRATCH_FILE_H

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include <fuzz/require.h>

#ifdef _WIN32
#include <process.h>
#define getpid _getpid
#else
#include <unistd.h>
#endif

namespace fuzz {

/// A file of this process that is rewritten for each input and removed at its end.
class scratch_file {
public:
    explicit scratch_file(const std::string& name)
        : path((std::filesystem::temp_directory_path() /
                ("ox_fuzz_" + std::to_string(getpid()) + "_" + name))
                   .string()) {}
    ~scratch_file() { std::remove(path.c_str()); }
    scratch_file(const scratch_file&) = delete;
    scratch_file& operator=(const scratch_file&) = delete;

    void write(const std::uint8_t* data, std::size_t size) const {
        std::FILE* const file = std::fopen(path.c_str(), "wb");
        require(file != nullptr);
        require(std::fwrite(data, 1, size, file) == size);
        require(std::fclose(file) == 0);
    }

    std::string read() const {
        std::ifstream file(path, std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    }

    const std::string path;
};

} // namespace fuzz

#endif
