// Tables of a million rows, Base64 of 64 MB and ten million empty steps, beside what the memory and
// the standard library need for the same bytes.

#include <benchmark/benchmark.h>

#include <ox/core/ox_log.h>
#include <ox/io/ox_csv.h>
#include <ox/ox_functions.h>
#include <ox/progress/ox_thread.h>

#include <cstring>
#include <sstream>
#include <string>
#include <vector>

namespace {

/// A million rows of 8 columns under a header line.
const std::string& big_table() {
    static const std::string text = [] {
        std::string rows = "a;b;c;d;e;f;g;h\n";
        for (long long row = 0; row < 1000000; ++row) {
            for (int column = 0; column < 8; ++column) {
                rows += std::to_string((row * 7919 + column * 104729) % 1000000);
                rows += column < 7 ? ';' : '\n';
            }
        }
        return rows;
    }();
    return text;
}

void count_bytes(benchmark::State& state, std::size_t bytes) {
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes));
}

void table_reading(benchmark::State& state) {
    ox_log_set(false);
    for (auto _ : state) {
        ox::ox_csv table;
        benchmark::DoNotOptimize(table.read_string(big_table()));
    }
    count_bytes(state, big_table().size());
}
BENCHMARK(table_reading)->Unit(benchmark::kMillisecond);

void table_writing(benchmark::State& state) {
    ox_log_set(false);
    ox::ox_csv table;
    table.read_string(big_table());
    for (auto _ : state) {
        benchmark::DoNotOptimize(table.write_string());
    }
    count_bytes(state, big_table().size());
}
BENCHMARK(table_writing)->Unit(benchmark::kMillisecond);

/// The plain way with the standard library, its separator given.
void table_splitting_by_getline(benchmark::State& state) {
    for (auto _ : state) {
        std::istringstream text(big_table());
        std::vector<std::vector<std::string>> columns(8);
        for (std::string line; std::getline(text, line);) {
            std::istringstream cells(line);
            std::size_t column = 0;
            for (std::string cell; std::getline(cells, cell, ';');) {
                columns[column++].push_back(cell);
            }
        }
        benchmark::DoNotOptimize(columns.data());
    }
    count_bytes(state, big_table().size());
}
BENCHMARK(table_splitting_by_getline)->Unit(benchmark::kMillisecond);

void table_bytes_copying(benchmark::State& state) {
    std::vector<char> copy(big_table().size());
    for (auto _ : state) {
        std::memcpy(copy.data(), big_table().data(), copy.size());
        benchmark::ClobberMemory();
    }
    count_bytes(state, copy.size());
}
BENCHMARK(table_bytes_copying)->Unit(benchmark::kMillisecond);

/// 64 MB of changing bytes.
const ox::ox_list<unsigned char>& big_bytes() {
    static const ox::ox_list<unsigned char> bytes = [] {
        ox::ox_list<unsigned char> list(64 * 1024 * 1024);
        unsigned int state = 1;
        for (unsigned char& byte : list) {
            state = state * 1664525u + 1013904223u;
            byte = static_cast<unsigned char>(state >> 24);
        }
        return list;
    }();
    return bytes;
}

void base64_encoding(benchmark::State& state) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(ox_to_b64(big_bytes()).get_data());
    }
    count_bytes(state, static_cast<std::size_t>(big_bytes().size()));
}
BENCHMARK(base64_encoding)->Unit(benchmark::kMillisecond);

void base64_decoding(benchmark::State& state) {
    const ox::ox_list<unsigned char> text = ox_to_b64(big_bytes());
    for (auto _ : state) {
        benchmark::DoNotOptimize(ox_from_b64(text).get_data());
    }
    count_bytes(state, static_cast<std::size_t>(big_bytes().size()));
}
BENCHMARK(base64_decoding)->Unit(benchmark::kMillisecond);

void base64_bytes_copying(benchmark::State& state) {
    std::vector<unsigned char> copy(static_cast<std::size_t>(big_bytes().size()));
    for (auto _ : state) {
        std::memcpy(copy.data(), big_bytes().get_data(), copy.size());
        benchmark::ClobberMemory();
    }
    count_bytes(state, copy.size());
}
BENCHMARK(base64_bytes_copying)->Unit(benchmark::kMillisecond);

constexpr unsigned int nb_empty_steps = 10000000;

class empty_steps : public ox::ox_thread {
    bool run(unsigned int step, unsigned int) override { return step < nb_empty_steps; }
};

/// The time for each step, by the number of threads.
void empty_steps_running(benchmark::State& state) {
    for (auto _ : state) {
        empty_steps work;
        benchmark::DoNotOptimize(work.start(static_cast<unsigned int>(state.range(0))));
    }
    state.SetItemsProcessed(state.iterations() * std::int64_t{nb_empty_steps});
    state.counters["per step"] =
        benchmark::Counter(nb_empty_steps, benchmark::Counter::kIsIterationInvariantRate |
                                               benchmark::Counter::kInvert);
}
BENCHMARK(empty_steps_running)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
