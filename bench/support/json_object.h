#ifndef OX_BENCH_SUPPORT_JSON_OBJECT_H
#define OX_BENCH_SUPPORT_JSON_OBJECT_H

#include <sstream>
#include <string>
#include <vector>

#include "measurement.h"

namespace bench {

inline std::string quoted(const std::string& text) {
    std::string result = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\') {
            result += '\\';
        }
        result += c;
    }
    return result + '"';
}

/// The fields of one JSON object.
class json_object {
public:
    json_object() { text.precision(6); }

    void add(const std::string& key, const std::string& value) { begin(key) << quoted(value); }
    void add(const std::string& key, double value) { begin(key) << value; }
    void add(const std::string& key, bool value) { begin(key) << (value ? "true" : "false"); }
    void add(const std::string& key, const std::vector<cost>& costs) {
        begin(key) << '[';
        for (std::size_t i = 0; i < costs.size(); ++i) {
            text << (i == 0 ? "" : ",") << "{\"name\":" << quoted(costs[i].name)
                 << ",\"seconds\":" << costs[i].seconds << ",\"mebibytes\":" << costs[i].mebibytes
                 << '}';
        }
        text << ']';
    }

    std::string str() const { return "{" + text.str() + "}"; }

private:
    std::ostream& begin(const std::string& key) {
        text << (is_first ? "" : ",") << quoted(key) << ':';
        is_first = false;
        return text;
    }

    std::ostringstream text;
    bool is_first = true;
};

} // namespace bench

#endif
