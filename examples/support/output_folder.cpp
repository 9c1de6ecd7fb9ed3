#include <examples/support/output_folder.h>

#include <stdexcept>

namespace ox_examples {

namespace fs = std::filesystem;

output_folder::output_folder(const std::string& path, const std::string& name)
    : folder(path), staging(folder / ("." + name + ".part")) {
    std::error_code error;
    fs::create_directories(staging, error);
    if (!fs::is_directory(staging)) {
        throw std::runtime_error(path + ": the output folder cannot be written");
    }
}

output_folder::~output_folder() {
    std::error_code ignored;
    fs::remove_all(staging, ignored);
}

std::string output_folder::add(const std::string& name) {
    if (fs::is_directory(folder / name)) {
        throw std::runtime_error((folder / name).string() + ": a folder is in the way");
    }
    names.push_back(name);
    return (staging / name).string();
}

void output_folder::publish() {
    for (const std::string& name : names) {
        std::error_code error;
        fs::rename(staging / name, folder / name, error);
        if (error) {
            throw std::runtime_error((folder / name).string() + ": " + error.message());
        }
    }
}

} // namespace ox_examples
