#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ox/io/internal/ox_csv_state.h>
#include <ox/io/internal/plain_numbers.h>
#include <utility>

namespace ox {

namespace {

/// The C library's number of decimals where none, or a negative one, is asked for.
constexpr int default_precision = 6;

/// No float has more than 149 decimals; the zeros after them are written up to this number.
constexpr int largest_precision = 1000;

/// The sign, the 39 digits before the point of the largest float, the point and the end.
constexpr int longest_float = 1 + 39 + 1 + largest_precision + 1;

ox_list<std::string> list_of(const std::string& header) {
    ox_list<std::string> headers;
    headers.push_right(header);
    return headers;
}

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
    ox_csv_column column;
    for (const std::string& header : headers) {
        column.headers.append(header);
    }
    column.values.reserve(static_cast<std::size_t>(values.end() - values.begin()));
    for (const Value& value : values) {
        column.values.append(format(value));
    }
    return column;
}

} // namespace

void ox_csv::add_column(const std::string& header, const ox_list<int>& values) {
    add_column(list_of(header), values);
}

void ox_csv::add_column(const ox_list<std::string>& headers, const ox_list<int>& values) {
    state->columns.push_back(
        make_column(headers, values, [](int value) { return std::to_string(value); }));
}

void ox_csv::add_column(const std::string& header, const ox_list<float>& values, int precision) {
    add_column(list_of(header), values, precision);
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
    add_column(list_of(header), values);
}

void ox_csv::add_column(const ox_list<std::string>& headers, const ox_list<std::string>& values) {
    state->columns.push_back(make_column(
        headers, values, [](const std::string& value) -> const std::string& { return value; }));
}

void ox_csv::add_column(const std::string& header, const ox_list<bool>& values) {
    add_column(list_of(header), values);
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
    ox_list<std::string> found = column.headers.to_list();
    for (const std::string& value : column.values.to_list()) {
        found.push_right(value);
    }
    cells = std::move(found);
    return true;
}

bool ox_csv::get_column(int index, ox_list<std::string>& headers, ox_list<float>& values) {
    if (index < 0 || index >= get_nb_columns()) {
        return false;
    }
    const ox_csv_column& column = state->columns[static_cast<std::size_t>(index)];
    ox_list<float> found_values(column.values.list_size());
    std::fill(found_values.begin(), found_values.end(), 0.0f);
    const plain_numbers with_a_point;
    for (const sparse_cells::filled_cell& cell : column.values.filled()) {
        found_values[static_cast<int>(cell.row)] = static_cast<float>(std::atof(cell.text.c_str()));
    }
    headers = column.headers.to_list();
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
