#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <new>
#include <string>
#include <utility>

#include <ox/internal/plain_numbers.h>
#include <ox/io/internal/ox_csv_state.h>

namespace ox {

using namespace internal;

namespace {

/// The C library's number of decimals where none, or a negative one, is asked for.
constexpr int default_precision = 6;

/// No float has more than 149 decimals; the zeros after them are written up to this number.
constexpr int largest_precision = 1000;

/// The sign, the 39 digits before the point of the largest float, the point and the end.
constexpr int longest_float = 1 + 39 + 1 + largest_precision + 1;

/// The text of a number with `separator` in place of the point.
std::string format_float(float value, int precision, char separator) {
    char text[longest_float];
    const int decimals = precision < 0 ? default_precision : std::min(precision, largest_precision);
    std::snprintf(text, sizeof text, "%.*f", decimals, static_cast<double>(value));
    std::string cell = text;
    const std::size_t point = cell.find('.');
    if (point != std::string::npos) {
        cell[point] = separator;
    }
    return cell;
}

/// A column whose value cells are the texts that `format` gives for `values`.
template <typename Value, typename Format>
ox_csv_column make_column(const ox_list<std::string>& headers, const ox_list<Value>& values,
                          const Format& format) {
    cell_text cells;
    for (const std::string& header : headers) {
        cells.add_line(header);
    }
    const std::size_t header_count = cells.get_line_count();
    for (const Value& value : values) {
        cells.add_line(format(value));
    }
    ox_csv_column column;
    column.text = std::make_shared<const cell_text>(std::move(cells));
    column.first_line = header_count;
    for (std::size_t line = 0; line < header_count; ++line) {
        column.headers.push_back(column.text->get_cell(line, 0));
    }
    column.header_count = header_count;
    column.value_count = column.text->get_line_count() - header_count;
    return column;
}

/// The number of cells as lists count them; more fail as their allocation would.
int list_size(std::size_t cell_count) {
    if (cell_count > static_cast<std::size_t>((std::numeric_limits<int>::max)())) {
        throw std::bad_array_new_length();
    }
    return static_cast<int>(cell_count);
}

ox_list<std::string> headers_of(const ox_csv_column& column) {
    ox_list<std::string> list(list_size(column.header_count));
    std::copy(column.headers.begin(), column.headers.end(), list.begin());
    return list;
}

} // namespace

void ox_csv::add_column(const std::string& header, const ox_list<int>& values) {
    add_column(ox_make_list({header}), values);
}

void ox_csv::add_column(const ox_list<std::string>& headers, const ox_list<int>& values) {
    state->columns.push_back(
        make_column(headers, values, [](int value) { return std::to_string(value); }));
}

void ox_csv::add_column(const std::string& header, const ox_list<float>& values, int precision) {
    add_column(ox_make_list({header}), values, precision);
}

void ox_csv::add_column(const ox_list<std::string>& headers, const ox_list<float>& values,
                        int precision) {
    const plain_numbers with_a_point;
    const char separator = state->float_separator;
    state->columns.push_back(make_column(headers, values, [precision, separator](float value) {
        return format_float(value, precision, separator);
    }));
}

void ox_csv::add_column(const std::string& header, const ox_list<std::string>& values) {
    add_column(ox_make_list({header}), values);
}

void ox_csv::add_column(const ox_list<std::string>& headers, const ox_list<std::string>& values) {
    state->columns.push_back(make_column(
        headers, values, [](const std::string& value) -> const std::string& { return value; }));
}

void ox_csv::add_column(const std::string& header, const ox_list<bool>& values) {
    add_column(ox_make_list({header}), values);
}

void ox_csv::add_column(const ox_list<std::string>& headers, const ox_list<bool>& values) {
    state->columns.push_back(
        make_column(headers, values, [](bool value) { return std::string(value ? "1" : "0"); }));
}

bool ox_csv::get_column(int index, ox_list<std::string>& cells) {
    if (index < 0 || index >= get_nb_columns()) {
        return false;
    }
    const ox_csv_column& column = state->columns[static_cast<std::size_t>(index)];
    ox_list<std::string> found(list_size(column.header_count + column.value_count));
    std::copy(column.headers.begin(), column.headers.end(), found.begin());
    std::string* cell = found.begin() + column.header_count;
    for (std::size_t row = 0; row < column.value_count; ++row) {
        *cell++ = column.get_value(row);
    }
    cells = std::move(found);
    return true;
}

bool ox_csv::get_column(int index, ox_list<std::string>& headers, ox_list<float>& values) {
    if (index < 0 || index >= get_nb_columns()) {
        return false;
    }
    const ox_csv_column& column = state->columns[static_cast<std::size_t>(index)];
    ox_list<float> found_values(list_size(column.value_count));
    const plain_numbers with_a_point;
    for (std::size_t row = 0; row < column.value_count; ++row) {
        const std::string cell(column.get_value(row));
        found_values[static_cast<int>(row)] = static_cast<float>(std::atof(cell.c_str()));
    }
    headers = headers_of(column);
    values = std::move(found_values);
    return true;
}

int ox_csv::get_nb_columns() {
    return static_cast<int>(state->columns.size());
}

void ox_csv::clear() {
    state->columns.clear();
}

} // namespace ox
