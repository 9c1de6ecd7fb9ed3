#include <ox/ox_functions.h>

#include <cctype>

namespace ox {

std::string ox_to_lower(const std::string& s) {
    std::string lower = s;
    for (char& c : lower) {
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    }
    return lower;
}

std::string ox_to_upper(const std::string& s) {
    std::string upper = s;
    for (char& c : upper) {
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    }
    return upper;
}

std::string ox_hex_ansi_to_ansi(const std::string& hex) {
    return "&#x" + hex + ";";
}

} // namespace ox
