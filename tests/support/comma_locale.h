#ifndef OX_TESTS_SUPPORT_COMMA_LOCALE_H
#define OX_TESTS_SUPPORT_COMMA_LOCALE_H

#include <clocale>
#include <cstdlib>
#include <filesystem>
#include <string>

namespace support {

/// Gives the process a locale with a decimal comma while it lives: one of the system, or one made
/// in the working folder. Neither need be possible.
class comma_locale {
public:
    comma_locale() {
        if (choose()) {
            return;
        }
#if !defined(_WIN32)
        const std::filesystem::path folder = std::filesystem::current_path() / "comma_locale";
        std::filesystem::create_directories(folder);
        const std::string make = "localedef -i de_DE -f UTF-8 " +
                                 (folder / "de_DE.UTF-8").string() + " 2>" +
                                 (folder / "messages").string();
        if (std::system(make.c_str()) == 0) {
            setenv("LOCPATH", folder.c_str(), 1);
            choose();
        }
#endif
    }
    ~comma_locale() {
        std::setlocale(LC_ALL, "C");
    }
    comma_locale(const comma_locale&) = delete;
    comma_locale& operator=(const comma_locale&) = delete;

    /// True if numbers have a comma now.
    bool is_chosen() const {
        return std::localeconv()->decimal_point[0] == ',';
    }

private:
    static bool choose() {
        return std::setlocale(LC_ALL, "de_DE.UTF-8") != nullptr;
    }
};

} // namespace support

#endif
