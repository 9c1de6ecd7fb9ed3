#ifndef OX_TESTS_IO_CELLS_H
#define OX_TESTS_IO_CELLS_H

#include <initializer_list>
#include <ox/io/ox_csv.h>
#include <string>
#include <vector>

using cells = std::vector<std::string>;

/// All cells of a column, header first.
inline cells column_of(ox::ox_csv& table, int index) {
    ox::ox_list<std::string> list;
    table.get_column(index, list);
    return cells(list.begin(), list.end());
}

/// How many of a column's cells are header cells.
inline int count_headers(ox::ox_csv& table, int index) {
    ox::ox_list<std::string> headers;
    ox::ox_list<float> values;
    table.get_column(index, headers, values);
    return headers.size();
}

template <typename T>
ox::ox_list<T> list_of(std::initializer_list<T> values) {
    ox::ox_list<T> list;
    for (const T& value : values) {
        list.push_right(value);
    }
    return list;
}

#endif
