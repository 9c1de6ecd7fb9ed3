#ifndef TESTS_RELIABILITY_FAILURES_SCENARIO_H
#define TESTS_RELIABILITY_FAILURES_SCENARIO_H

#include <functional>
#include <memory>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include <ox/core/ox_list.h>
#include <ox/geometry/ox_2dvector.h>
#include <ox/geometry/ox_3dvector.h>

namespace failures {

/// An object, something that is done to it, and what it then holds.
class trial {
public:
    virtual ~trial() = default;

    /// Does it, and returns the answer; a text, so that any two can be compared.
    virtual std::string act() = 0;

    /// What the object holds.
    virtual std::string contents() = 0;
};

/// What becomes of the object where memory fails.
enum class promise {
    intact,     ///< it holds what it held, or all of what it was to hold
    some_of_it, ///< it may hold a part: several steps, each of which is done or not
};

/// What is tried with every allocation failing in turn.
struct scenario {
    std::string name;
    std::function<std::unique_ptr<trial>()> begin;
    promise kept = promise::intact;
    /// The answer, beside the usual one, that tells of a failure where no exception does.
    std::string refusal = "";
    /// It reaches the clipping library, which may free crossings twice, or the tessellator, which
    /// may read through a null pointer and loses its queue. Nobody who calls them can prevent that.
    bool meets_libraries = false;

    scenario& with(promise other) {
        kept = other;
        return *this;
    }
    scenario& or_refuses(const std::string& answer) {
        refusal = answer;
        return *this;
    }
    scenario& in_libraries() {
        meets_libraries = true;
        return *this;
    }
};

template <typename Object, typename Act, typename Contents>
class object_trial : public trial {
public:
    object_trial(Object made, Act how, Contents seen)
        : object(std::move(made)), act_on(how), contents_of(seen) {}

    std::string act() override { return act_on(object); }
    std::string contents() override { return contents_of(object); }

private:
    Object object;
    Act act_on;
    Contents contents_of;
};

/// `make` makes the object, `act` works on it and returns a text, `contents` looks at it.
template <typename Make, typename Act, typename Contents>
scenario on(const std::string& name, Make make, Act act, Contents contents) {
    using object = decltype(make());
    return scenario{name, [=]() -> std::unique_ptr<trial> {
                        return std::make_unique<object_trial<object, Act, Contents>>(make(), act,
                                                                                     contents);
                    }};
}

/// Something that works on no object of its own.
template <typename Act>
scenario of(const std::string& name, Act act) {
    return on(
        name, [] { return 0; }, [act](int&) { return act(); }, [](int&) { return std::string(); });
}

inline std::ostream& tell(std::ostream& out, const ox::ox_2dvector& v) {
    return out << v.x << ' ' << v.y << ' ';
}

inline std::ostream& tell(std::ostream& out, const ox::ox_3dvector& v) {
    return out << v.x << ' ' << v.y << ' ' << v.z << ' ';
}

template <typename T>
std::ostream& tell(std::ostream& out, const T& value) {
    return out << value << ' ';
}

template <typename T>
std::ostream& tell(std::ostream& out, const ox::ox_list<T>& list) {
    out << list.size() << ": ";
    for (const T& element : list) {
        tell(out, element);
    }
    return out;
}

/// All that is given, as one text, floats to their last bit. Memory that fails is told by the
/// exception, not by the stream's state.
template <typename... Things>
std::string told(const Things&... things) {
    std::ostringstream out;
    out.exceptions(std::ios::badbit);
    out << std::hexfloat;
    (tell(out, things), ...);
    return out.str();
}

std::vector<scenario> core_scenarios();
std::vector<scenario> geometry_scenarios();
std::vector<scenario> display_scenarios();
std::vector<scenario> polygon_scenarios();
std::vector<scenario> solid_scenarios();
std::vector<scenario> mesh_scenarios();
std::vector<scenario> progress_scenarios();
std::vector<scenario> table_scenarios();
std::vector<scenario> structure_scenarios();

} // namespace failures

#endif
