#include <ox/io/internal/ox_csv_state.h>

namespace ox {

ox_csv::ox_csv() : state(std::make_unique<ox_csv_state>()) {}

ox_csv::ox_csv(const ox_csv& other) : state(std::make_unique<ox_csv_state>(*other.state)) {}

ox_csv& ox_csv::operator=(const ox_csv& other) {
    if (this != &other) {
        state = std::make_unique<ox_csv_state>(*other.state);
    }
    return *this;
}

ox_csv::ox_csv(ox_csv&& other) : ox_csv() {
    swap(other);
}

ox_csv& ox_csv::operator=(ox_csv&& other) noexcept {
    swap(other);
    return *this;
}

void ox_csv::swap(ox_csv& other) noexcept {
    state.swap(other.state);
}

ox_csv::~ox_csv() = default;

char ox_csv::get_column_separator() const {
    return state->column_separator;
}

void ox_csv::set_column_separator(char separator) {
    state->column_separator = separator;
}

char ox_csv::get_float_separator() const {
    return state->float_separator;
}

void ox_csv::set_float_separator(char separator) {
    state->float_separator = separator;
}

ox_csv::encoding ox_csv::get_encoding() {
    return state->encoding;
}

void ox_csv::set_encoding(encoding value) {
    state->encoding = value;
}

void ox_csv::set_progress_manager(ox_progress_manager* manager, double min, double max) {
    state->manager = manager;
    state->progress_min = min;
    state->progress_max = max;
}

} // namespace ox
