#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <system_error>
#include <utility>

#if defined(_WIN32)
#include <io.h>
#else
#include <unistd.h>
#endif

#include <ox/internal/open_path.h>
#include <ox/io/internal/csv_detection.h>
#include <ox/io/internal/ox_csv_state.h>

namespace ox {

using namespace internal;

namespace {

bool is_terminal(std::FILE* file) {
#if defined(_WIN32)
    return _isatty(_fileno(file)) != 0;
#else
    return isatty(fileno(file)) != 0;
#endif
}

/// Gives each column its header cells, which follow each other even where a line has none.
void take_headers(std::vector<ox_csv_column>& columns, const cell_text& text,
                  std::size_t header_line_count) {
    for (std::size_t line = 0; line < header_line_count; ++line) {
        for (std::size_t i = 0; i < text.get_cell_count(line); ++i) {
            columns[i].headers.push_back(text.get_cell(line, i));
        }
    }
    for (ox_csv_column& column : columns) {
        column.header_count = column.headers.size();
    }
}

/// Each column ends at the last line that reaches into it: going up, every longer line ends more
/// columns.
void count_values(std::vector<ox_csv_column>& columns, const cell_text& text,
                  std::size_t header_line_count) {
    std::size_t counted = 0;
    for (std::size_t line = text.get_line_count(); line > header_line_count; --line) {
        for (; counted < text.get_cell_count(line - 1); ++counted) {
            columns[counted].value_count = line - header_line_count;
        }
    }
}

/// Replaces all columns by those of `text`, which the table keeps.
void read_text(ox_csv_state& state, std::string text) {
    const separator_choice choice = choose_separator(text);
    const auto kept = std::make_shared<const cell_text>(std::move(text), choice.separator,
                                                        choice.cell_count, choice.line_break_count);
    const std::size_t header_line_count = count_header_lines(*kept, choice.line_break_count);
    std::vector<ox_csv_column> columns(kept->get_column_count());
    for (std::size_t i = 0; i < columns.size(); ++i) {
        columns[i].text = kept;
        columns[i].place = i;
        columns[i].first_line = header_line_count;
    }
    take_headers(columns, *kept, header_line_count);
    count_values(columns, *kept, header_line_count);
    state.columns = std::move(columns);
    state.column_separator = choice.separator;
}

/// The longest file or stream that is read: what never ends must end somewhere.
constexpr std::size_t most_file_bytes = 2147483647;

/// The longest that a device may give, but for a terminal: those that are longer have no end.
constexpr std::size_t most_device_bytes = std::size_t{256} << 10;

std::size_t most_bytes_of(const std::string& path, std::FILE* file) {
    std::error_code error;
    const bool is_device = std::filesystem::is_character_file(path, error);
    return is_device && !is_terminal(file) ? most_device_bytes : most_file_bytes;
}

bool is_known_too_long(const std::string& path) {
    std::error_code error;
    const std::uintmax_t bytes = std::filesystem::file_size(path, error);
    return !error && bytes > most_file_bytes;
}

/// Reads all of a file. False when it cannot be opened or read, or is too long.
bool read_whole_file(const std::string& path, std::string& text) {
    const open_file file = open_stream(path);
    if (file == nullptr || is_known_too_long(path)) {
        return false;
    }
    const std::size_t most_bytes = most_bytes_of(path, file.get());
    char block[65536];
    std::size_t length = 0;
    while ((length = std::fread(block, 1, sizeof block, file.get())) > 0) {
        if (length > most_bytes - text.size()) {
            return false;
        }
        text.append(block, length);
    }
    return std::ferror(file.get()) == 0;
}

} // namespace

bool ox_csv::read_file(const std::string& path) {
    std::string text;
    if (!read_whole_file(path, text)) {
        return false;
    }
    read_text(*state, std::move(text));
    return true;
}

bool ox_csv::read_string(const std::string& text) {
    read_text(*state, text);
    return true;
}

} // namespace ox
