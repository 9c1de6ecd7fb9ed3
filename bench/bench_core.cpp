// Lists beside those of the standard library.

#include <bench/support/program.h>
#include <ox/core/ox_list.h>

#include <vector>

namespace {

/// Numbers appended to a growing list, and their sum.
template <class list_type>
struct summed_list {
    list_type list;
    long long sum = 0;
};

template <class list_type, class append_to>
bench::contestant list_contestant(const char* name, long count, const append_to& append) {
    return bench::make_contestant(
        name, [] { return summed_list<list_type>(); },
        [=](summed_list<list_type>& s) {
            for (int i = 0; i < static_cast<int>(count); ++i) {
                append(s.list, i);
            }
            for (const int number : s.list) {
                s.sum += number;
            }
        },
        [](const summed_list<list_type>& s) {
            return std::vector<bench::fact>{{"sum", static_cast<double>(s.sum), 0.0}};
        });
}

bench::contest append_and_iterate(long count) {
    bench::contest rules;
    rules.ours = list_contestant<ox::ox_list<int>>(
        "ox_list", count, [](ox::ox_list<int>& list, int i) { list.push_right(i); });
    rules.peers = {list_contestant<std::vector<int>>(
        "std::vector", count, [](std::vector<int>& list, int i) { list.push_back(i); })};
    rules.goal = 1.1;
    return rules;
}

} // namespace

int main(int argc, char** argv) {
    return bench::run_program(argc, argv,
                              {bench::workload{"list of numbers appended and iterated",
                                               "numbers",
                                               {100000, 1000000, 10000000},
                                               {10000, 100000, 1000000},
                                               append_and_iterate}
                                   .judged_from(10000000)});
}
