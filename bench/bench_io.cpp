// Tables of a million rows, Base64 of 64 MB, steps of threads and lists of ten million numbers,
// beside what the memory, the standard library and, where they are installed, libcsv and OpenSSL
// need for the same.

#include <benchmark/benchmark.h>

#include <ox/core/ox_log.h>
#include <ox/io/ox_csv.h>
#include <ox/ox_functions.h>
#include <ox/progress/ox_thread.h>

#ifdef OX_HAS_LIBCSV
#include <csv.h>
#endif
#ifdef OX_HAS_OPENSSL
#include <openssl/evp.h>
#endif

#include <algorithm>
#include <chrono>
#include <cstring>
#include <ctime>
#include <limits>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace {

/// Seconds of the processor, which other programs on the machine hardly change.
double processor_time() {
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

/// Seconds on the clock.
double clock_time() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration<double>(now).count();
}

/// Runs `work` and returns the seconds of the fastest run.
template <typename Work>
double fastest(benchmark::State& state, const Work& work, double (*time)() = processor_time) {
    double shortest = std::numeric_limits<double>::infinity();
    for (auto _ : state) {
        const double start = time();
        work();
        shortest = std::min(shortest, time() - start);
    }
    return shortest;
}

/// Shows the library's fastest time as a multiple of a peer's, when both were run.
void compare(benchmark::State& state, double ours, double peer) {
    if (ours > 0.0) {
        state.counters["ox/this"] = ours / peer;
    }
}

/// The library's fastest times, in seconds; 0 for what was not run.
struct fastest_times {
    double reading = 0.0;
    double encoding = 0.0;
    double decoding = 0.0;
    double list = 0.0;
    double short_steps_alone = 0.0;
};

fastest_times ours;

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
    ours.reading = fastest(state, [] {
        ox::ox_csv table;
        benchmark::DoNotOptimize(table.read_string(big_table()));
    });
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

/// Reading, and every column taken out as texts.
void table_reading_and_taking_out(benchmark::State& state) {
    ox_log_set(false);
    for (auto _ : state) {
        ox::ox_csv table;
        table.read_string(big_table());
        for (int column = 0; column < table.get_nb_columns(); ++column) {
            ox::ox_list<std::string> cells;
            benchmark::DoNotOptimize(table.get_column(column, cells));
        }
    }
    count_bytes(state, big_table().size());
}
BENCHMARK(table_reading_and_taking_out)->Unit(benchmark::kMillisecond);

#ifdef OX_HAS_LIBCSV

/// The cells of a table as libcsv hands them over.
struct collected_cells {
    std::vector<std::vector<std::string>> columns;
    std::size_t next = 0;
};

void collect_cell(void* text, std::size_t length, void* collected) {
    collected_cells& cells = *static_cast<collected_cells*>(collected);
    if (cells.next >= cells.columns.size()) {
        cells.columns.emplace_back();
    }
    cells.columns[cells.next++].emplace_back(static_cast<const char*>(text), length);
}

void end_row(int, void* collected) {
    static_cast<collected_cells*>(collected)->next = 0;
}

/// The separator is given, the cells are kept as strings.
void table_reading_by_libcsv(benchmark::State& state) {
    const double peer = fastest(state, [] {
        collected_cells cells;
        csv_parser parser;
        csv_init(&parser, 0);
        csv_set_delim(&parser, ';');
        csv_parse(&parser, big_table().data(), big_table().size(), collect_cell, end_row, &cells);
        csv_fini(&parser, collect_cell, end_row, &cells);
        csv_free(&parser);
        benchmark::DoNotOptimize(cells.columns.data());
    });
    compare(state, ours.reading, peer);
    count_bytes(state, big_table().size());
}
BENCHMARK(table_reading_by_libcsv)->Unit(benchmark::kMillisecond);

#endif

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
    ours.encoding =
        fastest(state, [] { benchmark::DoNotOptimize(ox_to_b64(big_bytes()).get_data()); });
    count_bytes(state, static_cast<std::size_t>(big_bytes().size()));
}
BENCHMARK(base64_encoding)->Unit(benchmark::kMillisecond);

void base64_decoding(benchmark::State& state) {
    const ox::ox_list<unsigned char> text = ox_to_b64(big_bytes());
    ours.decoding =
        fastest(state, [&text] { benchmark::DoNotOptimize(ox_from_b64(text).get_data()); });
    count_bytes(state, static_cast<std::size_t>(big_bytes().size()));
}
BENCHMARK(base64_decoding)->Unit(benchmark::kMillisecond);

#ifdef OX_HAS_OPENSSL

using byte_array = std::unique_ptr<unsigned char[]>;

void base64_encoding_by_openssl(benchmark::State& state) {
    const int n = big_bytes().size();
    const double peer = fastest(state, [n] {
        const byte_array text(new unsigned char[static_cast<std::size_t>(n) / 3 * 4 + 5]);
        benchmark::DoNotOptimize(EVP_EncodeBlock(text.get(), big_bytes().get_data(), n));
    });
    compare(state, ours.encoding, peer);
    count_bytes(state, static_cast<std::size_t>(n));
}
BENCHMARK(base64_encoding_by_openssl)->Unit(benchmark::kMillisecond);

void base64_decoding_by_openssl(benchmark::State& state) {
    const ox::ox_list<unsigned char> text = ox_to_b64(big_bytes());
    const double peer = fastest(state, [&text] {
        const byte_array bytes(new unsigned char[static_cast<std::size_t>(text.size())]);
        benchmark::DoNotOptimize(EVP_DecodeBlock(bytes.get(), text.get_data(), text.size()));
    });
    compare(state, ours.decoding, peer);
    count_bytes(state, static_cast<std::size_t>(big_bytes().size()));
}
BENCHMARK(base64_decoding_by_openssl)->Unit(benchmark::kMillisecond);

#endif

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

constexpr unsigned int nb_short_steps = 1000000;

/// Steps that each keep their thread busy for a microsecond of its own.
class short_steps : public ox::ox_thread {
    bool run(unsigned int step, unsigned int) override {
        if (step >= nb_short_steps) {
            return false;
        }
        double x = step;
        for (int turn = 0; turn < nb_turns; ++turn) {
            x = x * 0.999 + 1.0;
        }
        benchmark::DoNotOptimize(x);
        return true;
    }

    static const int nb_turns;
};

/// How many turns of the loop above take a microsecond, when nothing else keeps the machine busy.
int count_turns_of_a_microsecond() {
    using clock = std::chrono::steady_clock;
    constexpr int nb_turns = 100000;
    double shortest = 1e9; // microseconds
    for (int trial = 0; trial < 100; ++trial) {
        const clock::time_point start = clock::now();
        double x = 1.0;
        for (int turn = 0; turn < nb_turns; ++turn) {
            x = x * 0.999 + 1.0;
        }
        benchmark::DoNotOptimize(x);
        const std::chrono::duration<double, std::micro> taken = clock::now() - start;
        shortest = std::min(shortest, taken.count());
    }
    return static_cast<int>(nb_turns / shortest);
}

const int short_steps::nb_turns = count_turns_of_a_microsecond();

void short_steps_running(benchmark::State& state) {
    const unsigned int nb_threads = static_cast<unsigned int>(state.range(0));
    const double taken = fastest(
        state,
        [nb_threads] {
            short_steps work;
            benchmark::DoNotOptimize(work.start(nb_threads));
        },
        clock_time);
    if (nb_threads == 1) {
        ours.short_steps_alone = taken;
    } else if (ours.short_steps_alone > 0.0) {
        state.counters["speedup"] = ours.short_steps_alone / taken;
    }
}
BENCHMARK(short_steps_running)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond)->UseRealTime();

constexpr int nb_numbers = 10000000;

/// Appends numbers one by one and adds them up.
void list_appending_and_adding(benchmark::State& state) {
    ours.list = fastest(state, [] {
        ox::ox_list<int> numbers;
        for (int i = 0; i < nb_numbers; ++i) {
            numbers.push_right(i);
        }
        long long sum = 0;
        for (const int number : numbers) {
            sum += number;
        }
        benchmark::DoNotOptimize(sum);
    });
}
BENCHMARK(list_appending_and_adding)->Unit(benchmark::kMillisecond);

void vector_appending_and_adding(benchmark::State& state) {
    const double peer = fastest(state, [] {
        std::vector<int> numbers;
        for (int i = 0; i < nb_numbers; ++i) {
            numbers.push_back(i);
        }
        long long sum = 0;
        for (const int number : numbers) {
            sum += number;
        }
        benchmark::DoNotOptimize(sum);
    });
    compare(state, ours.list, peer);
}
BENCHMARK(vector_appending_and_adding)->Unit(benchmark::kMillisecond);

} // namespace
