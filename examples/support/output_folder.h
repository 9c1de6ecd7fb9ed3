#ifndef OX_EXAMPLES_SUPPORT_OUTPUT_FOLDER_H
#define OX_EXAMPLES_SUPPORT_OUTPUT_FOLDER_H

#include <filesystem>
#include <string>
#include <vector>

namespace ox_examples {

/// A folder that receives all files of a run or none: they are written into a folder beside their
/// place, and moved there once everything has succeeded.
class output_folder {
public:
    /// Makes `folder` when there is none. Throws `std::runtime_error` when it cannot be written.
    output_folder(const std::string& folder, const std::string& name);

    /// Removes what has not been published.
    ~output_folder();

    output_folder(const output_folder&) = delete;
    output_folder& operator=(const output_folder&) = delete;

    /// The path to write the file `name` to.
    std::string add(const std::string& name);

    /// Moves all files to their place. Throws `std::runtime_error` when one cannot be moved.
    void publish();

private:
    std::filesystem::path folder;
    std::filesystem::path staging;
    std::vector<std::string> names;
};

} // namespace ox_examples

#endif
