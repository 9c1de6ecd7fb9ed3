#include <examples/support/command_line.h>

#include <CLI/CLI.hpp>

#include <charconv>

namespace ox_examples {

namespace {

/// Whether the whole of `text` is a number from `lowest` to `highest`, in any locale.
template <typename T>
bool is_between(const std::string& text, T lowest, T highest) {
    T value = 0;
    const char* const end = text.data() + text.size();
    const std::from_chars_result result = std::from_chars(text.data(), end, value);
    return result.ec == std::errc() && result.ptr == end && value >= lowest && value <= highest;
}

} // namespace

CLI::Validator number_between(double lowest, double highest, const std::string& wanted) {
    return CLI::Validator(
        [=](const std::string& text) {
            return is_between(text, lowest, highest) ? "" : "'" + text + "' is no " + wanted;
        },
        "");
}

CLI::Validator count_up_to(int highest, const std::string& wanted) {
    const std::string whole = wanted + " from 1 to " + std::to_string(highest);
    return CLI::Validator(
        [=](const std::string& text) {
            return is_between(text, 1, highest) ? "" : "'" + text + "' is no " + whole;
        },
        "");
}

CLI::Option* add_output_folder(CLI::App& line, std::string& folder,
                               const std::string& explanation) {
    const CLI::Validator named(
        [](const std::string& text) { return text.empty() ? "the name is empty" : ""; }, "");
    return line.add_option("--out", folder, explanation)->type_name("FOLDER")->check(named);
}

void add_single_input(CLI::App& line, single_input& wanted) {
    line.add_option("DESCRIPTION", wanted.file, "the file to read")->required()->type_name("");
    add_output_folder(line, wanted.folder, "receives the files (the working folder)");
}

} // namespace ox_examples
