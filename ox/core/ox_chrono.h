#ifndef OX_CORE_OX_CHRONO_H
#define OX_CORE_OX_CHRONO_H

#include <memory>
#include <string>

#include <ox/core/ox_export.h>

namespace ox {

struct ox_chrono_state;

/// A stopwatch that can be paused, with helpers for time stamps and date-time texts.
///
/// Representation: one pointer to a private record (start, running flag, accumulated seconds). Time
/// is read from the system clock in steps of 100 ns, so a clock that is set back while the
/// stopwatch runs shortens the measured span.
///
/// Copies are independent: a copy of a running stopwatch runs on by itself.
///
///     ox::ox_chrono chrono;
///     chrono.start();
///     work();
///     chrono.pause();
///     double seconds = chrono.elapsed();
class OX_EXPORT ox_chrono {
public:
    /// A stopped stopwatch at 0.
    ox_chrono();

    /// An independent stopwatch in the same state.
    ox_chrono(const ox_chrono& other);

    /// Takes the state of `other`.
    ox_chrono& operator=(const ox_chrono& other);

    /// Takes the state of `other`, which becomes a stopped stopwatch at 0.
    ox_chrono(ox_chrono&& other);

    /// Exchanges the contents with those of `other`. O(1).
    ox_chrono& operator=(ox_chrono&& other) noexcept;

    /// Exchanges the contents with those of `other`. O(1).
    void swap(ox_chrono& other) noexcept;

    /// Deletes the state.
    ~ox_chrono();

    /// Starts or resumes measuring. Nothing happens while it is running: the span goes on.
    void start();

    /// Stops measuring and keeps the time so far. Nothing happens when it is not running.
    void pause();

    /// Stops measuring and forgets the time so far.
    void reset();

    /// The time measured so far in seconds, the running span included.
    double elapsed() const;

    /// The current time in whole seconds since 1970-01-01T00:00:00 UTC.
    static long long now();

    /// The current time of the stopwatch's clock in whole milliseconds since the same moment.
    static long long now_ms();

    /// The time `t`, in seconds since 1970-01-01T00:00:00 UTC, as `YYYY-MM-DDThh:mm:ssZ`. The
    /// fields are LOCAL time in spite of the `Z`. Empty when the system's calendar has no such
    /// time or the year needs more than four characters.
    static std::string to_xsd_datetime(long long t);

    /// The time that a text as `to_xsd_datetime` writes it stands for, in seconds since
    /// 1970-01-01T00:00:00 UTC. The fields are read as LOCAL time; whatever follows the seconds (a
    /// `Z`, fractions, an offset) is ignored. Fields outside their calendar range carry over (month
    /// 13 is next January), and numbers that do not fit an int count as the nearest one that does.
    /// 0 when fewer than six numbers are found, -1 when the system's calendar has no such time.
    ///
    /// `from_xsd_datetime(to_xsd_datetime(t))` is `t`, except within the hour that a change from
    /// daylight-saving time repeats and where `to_xsd_datetime` gives an empty text.
    static long long from_xsd_datetime(const std::string& s);

private:
    std::unique_ptr<ox_chrono_state> state;
};

/// Exchanges the contents of two stopwatches. O(1).
inline void swap(ox_chrono& a, ox_chrono& b) noexcept {
    a.swap(b);
}

} // namespace ox

#endif
