#include <cstdio>
#include <cstring>
#include <memory>
#include <numeric>

#include <bench/peers/tables.h>
#include <ox/io/ox_csv.h>

#include "workloads.h"

namespace bench {
namespace {

using ox::ox_csv;

constexpr int nb_columns = 8;
constexpr int decimals = 2;

std::shared_ptr<const std::string> table_text(long rows) {
    const auto text = std::make_shared<std::string>("a;b;c;d;e;f;g;h\n");
    for (long row = 0; row < rows; ++row) {
        for (long column = 0; column < nb_columns; ++column) {
            *text += std::to_string((row * 7919 + column * 104729) % 1000000);
            *text += column + 1 < nb_columns ? ';' : '\n';
        }
    }
    return text;
}

std::vector<fact> cell_facts(ox_csv& table) {
    long long cells = 0, characters = 0;
    for (int i = 0; i < table.get_nb_columns(); ++i) {
        ox::ox_list<std::string> column;
        table.get_column(i, column);
        cells += column.size();
        for (const std::string& cell : column) {
            characters += static_cast<long long>(cell.size());
        }
    }
    return {{"cells", static_cast<double>(cells), 0.0},
            {"characters", static_cast<double>(characters), 0.0}};
}

contest read_table(long rows) {
    const std::shared_ptr<const std::string> text = table_text(rows);
    contest rules;
    rules.ours = make_contestant(
        "ox_csv", [] { return ox_csv(); }, [=](ox_csv& table) { table.read_string(*text); },
        cell_facts);
    rules.peers = {peers::libcsv_read(text)};
    rules.goal = 0.6;
    return rules;
}

std::vector<fact> text_facts(const std::string& text) {
    return {{"bytes", static_cast<double>(text.size()), 0.0},
            {"sum", std::accumulate(text.begin(), text.end(), 0.0), 0.0}};
}

struct written_table {
    ox_csv table;
    std::string text;
};

std::vector<fact> written_facts(const written_table& done) {
    return text_facts(done.text);
}

// Cells that are texts already need no formatting: their yardstick is the copy of the bytes.
contest write_texts(long rows) {
    const std::shared_ptr<const std::string> text = table_text(rows);
    const auto read = std::make_shared<ox_csv>();
    read->read_string(*text);
    contest rules;
    rules.ours = make_contestant(
        "ox_csv",
        [=] {
            return written_table{*read, {}};
        },
        [](written_table& w) { w.text = w.table.write_string(); }, written_facts);
    rules.peers = {make_contestant(
        "memcpy into fresh memory", [] { return std::string(); },
        [=](std::string& copy) { copy = *text; }, text_facts)};
    rules.goal = 3.0;
    return rules;
}

struct number_columns {
    ox::ox_list<int> whole;
    ox::ox_list<float> decimal;
};

std::shared_ptr<const number_columns> make_numbers(long rows) {
    const auto made = std::make_shared<number_columns>();
    for (long row = 0; row < rows; ++row) {
        made->whole.push_right(static_cast<int>(row * 7919 % 1000000));
        made->decimal.push_right(static_cast<float>(row * 104729 % 1000000) / 64.0f);
    }
    return made;
}

std::string write_numbers(const number_columns& numbers) {
    ox_csv table;
    table.set_float_separator('.');
    for (int i = 0; i < nb_columns / 2; ++i) {
        table.add_column("whole", numbers.whole);
        table.add_column("decimal", numbers.decimal, decimals);
    }
    return table.write_string();
}

/// Every number formatted once by the C library, each where the next one overwrites it, and the
/// text copied into fresh memory.
std::string format_and_copy(const number_columns& numbers, const std::string& text) {
    char cell[32];
    int characters = 0;
    for (int i = 0; i < nb_columns / 2; ++i) {
        for (const int value : numbers.whole) {
            characters += std::snprintf(cell, sizeof cell, "%d", value);
        }
        for (const float value : numbers.decimal) {
            characters +=
                std::snprintf(cell, sizeof cell, "%.*f", decimals, static_cast<double>(value));
        }
    }
    return characters > 0 ? text : std::string();
}

contest write_table(long rows) {
    const std::shared_ptr<const number_columns> numbers = make_numbers(rows);
    const auto text = std::make_shared<const std::string>(write_numbers(*numbers));
    contest rules;
    rules.ours = make_contestant(
        "ox_csv", [] { return std::string(); },
        [=](std::string& made) { made = write_numbers(*numbers); }, text_facts);
    rules.peers = {make_contestant(
        "memcpy plus formatting", [] { return std::string(); },
        [=](std::string& made) { made = format_and_copy(*numbers, *text); }, text_facts)};
    rules.goal = 3.0;
    return rules;
}

} // namespace

std::vector<workload> table_workloads() {
    const std::vector<long> sizes = {10000, 100000, 1000000};
    const std::vector<long> quick_sizes = {10000, 30000, 100000};
    const std::string rows = "rows of 8";
    return {workload{"table read", rows, sizes, quick_sizes, read_table}.judged_from(1000000),
            workload{"table of texts written", rows, sizes, quick_sizes, write_texts}.judged_from(
                1000000),
            workload{"table of numbers made and written", rows, sizes, quick_sizes, write_table}
                .judged_from(1000000)};
}

} // namespace bench
