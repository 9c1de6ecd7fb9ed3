#include <bench/peers/tables.h>

namespace {

constexpr char libcsv_name[] = "libcsv, cells kept as strings";

} // namespace

#ifdef OX_BENCH_HAS_LIBCSV

#include <csv.h>

namespace peers {
namespace {

struct table {
    std::vector<std::vector<std::string>> columns;
    std::size_t next = 0; // column of the next cell
};

void keep_cell(void* text, std::size_t length, void* target) {
    table& kept = *static_cast<table*>(target);
    if (kept.next >= kept.columns.size()) {
        kept.columns.emplace_back();
    }
    kept.columns[kept.next++].emplace_back(static_cast<const char*>(text), length);
}

void end_row(int, void* target) {
    static_cast<table*>(target)->next = 0;
}

void read(const std::string& text, table& kept) {
    csv_parser parser;
    csv_init(&parser, 0);
    csv_set_delim(&parser, ';');
    csv_parse(&parser, text.data(), text.size(), keep_cell, end_row, &kept);
    csv_fini(&parser, keep_cell, end_row, &kept);
    csv_free(&parser);
}

std::vector<bench::fact> facts_of(const table& kept) {
    std::size_t cells = 0, characters = 0;
    for (const std::vector<std::string>& column : kept.columns) {
        cells += column.size();
        for (const std::string& cell : column) {
            characters += cell.size();
        }
    }
    return {{"cells", static_cast<double>(cells), 0.0},
            {"characters", static_cast<double>(characters), 0.0}};
}

} // namespace

bench::contestant libcsv_read(std::shared_ptr<const std::string> text) {
    return bench::make_contestant(
        libcsv_name, [] { return table(); }, [=](table& kept) { read(*text, kept); }, facts_of);
}

} // namespace peers

#else

namespace peers {

bench::contestant libcsv_read(std::shared_ptr<const std::string>) {
    return bench::absent(libcsv_name);
}

} // namespace peers

#endif
