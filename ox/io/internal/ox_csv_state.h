#ifndef OX_IO_INTERNAL_OX_CSV_STATE_H
#define OX_IO_INTERNAL_OX_CSV_STATE_H

#include <ox/io/internal/sparse_cells.h>
#include <ox/io/ox_csv.h>
#include <vector>

namespace ox {

struct ox_csv_column {
    sparse_cells headers;
    sparse_cells values;
};

struct oxp_csv_state {
    std::vector<ox_csv_column> columns;
    char column_separator = ';';
    char float_separator = ',';
    ox_csv::encoding encoding = ox_csv::encoding_as_held;
    ox_progress_manager* manager = nullptr;
    double progress_min = 0.0;
    double progress_max = 1.0;
};

} // namespace ox

#endif
