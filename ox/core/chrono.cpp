#include <ox/core/ox_chrono.h>

#include <chrono>
#include <cstdint>
#include <ctime>
#include <ratio>

namespace ox {

namespace {

constexpr double ticks_per_second = 1e7;
constexpr std::int64_t ticks_per_millisecond = 10000;

/// The system clock in steps of 100 ns.
std::int64_t current_ticks() {
    using ticks = std::chrono::duration<std::int64_t, std::ratio<1, 10000000>>;
    const auto since_epoch = std::chrono::system_clock::now().time_since_epoch();
    return std::chrono::duration_cast<ticks>(since_epoch).count();
}

} // namespace

struct ox_chrono_state {
    /// The length of the running span in seconds.
    double running_span() const {
        return static_cast<double>(current_ticks() - start_ticks) / ticks_per_second;
    }

    std::int64_t start_ticks = 0;
    bool running = false;
    double accumulated = 0.0; // seconds
};

ox_chrono::ox_chrono() : state(std::make_unique<ox_chrono_state>()) {}

ox_chrono::ox_chrono(const ox_chrono& other)
    : state(std::make_unique<ox_chrono_state>(*other.state)) {}

ox_chrono& ox_chrono::operator=(const ox_chrono& other) {
    *state = *other.state;
    return *this;
}

ox_chrono::ox_chrono(ox_chrono&& other) : ox_chrono() {
    swap(other);
}

ox_chrono& ox_chrono::operator=(ox_chrono&& other) noexcept {
    swap(other);
    return *this;
}

void ox_chrono::swap(ox_chrono& other) noexcept {
    state.swap(other.state);
}

ox_chrono::~ox_chrono() = default;

void ox_chrono::start() {
    if (!state->running) {
        state->running = true;
        state->start_ticks = current_ticks();
    }
}

void ox_chrono::pause() {
    if (state->running) {
        state->accumulated += state->running_span();
    }
    state->running = false;
}

void ox_chrono::reset() {
    state->accumulated = 0.0;
    state->running = false;
}

double ox_chrono::elapsed() const {
    return state->running ? state->accumulated + state->running_span() : state->accumulated;
}

long long ox_chrono::now() {
    return static_cast<long long>(std::time(nullptr));
}

long long ox_chrono::now_ms() {
    return current_ticks() / ticks_per_millisecond;
}

} // namespace ox
