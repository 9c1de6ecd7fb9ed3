#ifndef OX_BENCH_PEERS_TABLES_H
#define OX_BENCH_PEERS_TABLES_H

#include <memory>
#include <string>

#include <bench/support/contestant.h>

namespace peers {

/// Reads a table whose columns a semicolon separates, and keeps every cell as a string. Facts:
/// cells, characters in them.
bench::contestant libcsv_read(std::shared_ptr<const std::string> text);

} // namespace peers

#endif
