#include <tests/reliability/failures/scenario.h>

#include <ox/core/ox_chrono.h>
#include <ox/core/ox_hash.h>
#include <ox/core/ox_log.h>
#include <ox/core/ox_mutex.h>
#include <ox/core/ox_random.h>
#include <ox/ox_functions.h>

namespace failures {

namespace {

using ox::ox_hash;
using ox::ox_list;
using table = ox_hash<int, std::string>;

const char* const long_text = "a text that is too long to lie within the string object itself";

/// Full to its capacity, so that whatever comes next needs memory.
ox_list<std::string> full_list() {
    return ox::ox_make_list<std::string>({"first", long_text, "third"});
}

table entries(int count) {
    table made;
    for (int i = 0; i < count; ++i) {
        made.set(i, long_text);
    }
    return made;
}

std::string contents_of(table& object) {
    std::string last = "none";
    object.get(1000, last);
    return told(object.size(), object.get_keys(), last);
}

void add_list_scenarios(std::vector<scenario>& all) {
    const auto contents = [](ox_list<std::string>& list) { return told(list); };
    const auto add = [&](const std::string& name, auto act) {
        all.push_back(on(name, full_list, act, contents));
    };
    add("ListGrows", [](auto& list) {
        list.push_right(long_text);
        return std::string();
    });
    add("ListTakesInItsMiddle", [](auto& list) {
        list.insert(1, list[1]);
        return std::string();
    });
    add("ListIsResized", [](auto& list) {
        list.set_size(9);
        return std::string();
    });
    add("ListReservesRoom", [](auto& list) {
        list.reserve(100);
        return std::string();
    });
    add("ListIsAssigned", [](auto& list) {
        list = ox::ox_make_list<std::string>({long_text, long_text});
        return std::string();
    });
}

void add_hash_scenarios(std::vector<scenario>& all) {
    all.push_back(on(
        "HashGainsAnEntryAndIsRebalanced", [] { return entries(999); },
        [](table& object) {
            object.set(1000, long_text);
            return std::string();
        },
        contents_of));
    all.push_back(on(
        "HashLosesAnEntryAndIsRebalanced", [] { return entries(1001); },
        [](table& object) {
            object.remove(1000);
            return std::string();
        },
        contents_of));
    all.push_back(on(
        "HashIsCopied", [] { return entries(5); },
        [](table& object) {
            object = table(entries(3));
            return std::string();
        },
        contents_of));
    all.push_back(on(
        "HashListsItsKeys", [] { return entries(20); },
        [](table& object) { return told(object.get_keys()); }, contents_of));
}

void add_text_scenarios(std::vector<scenario>& all) {
    const std::string latin = std::string(60, '\xe9');
    all.push_back(of("BytesBecomeBase64AndBack",
                     [] { return told(ox_from_b64(ox_to_b64(ox_from_stdstring(long_text)))); }));
    all.push_back(
        of("BytesBecomeHexadecimal", [] { return ox_to_hexa(ox_from_char_ptr(long_text, 40)); }));
    all.push_back(of("TextBecomesUtf8AndBack", [latin] { return ox_to_ansi(ox_to_utf8(latin)); }));
    all.push_back(of("TextChangesItsCase", [] { return ox_to_lower(ox_to_upper(long_text)); }));
    all.push_back(of("CharactersComeOfTheirCode",
                     [] { return ox_hex_ansi_to_ansi(long_text) + ox_hex_ansi_to_utf8("20AC"); }));
    all.push_back(of("IdentifierIsMade", [] { return told(ox_uuid().size()); }));
    all.push_back(of("DateIsWrittenAndRead", [] {
        return told(ox::ox_chrono::from_xsd_datetime(ox::ox_chrono::to_xsd_datetime(86400000)));
    }));
}

void add_object_scenarios(std::vector<scenario>& all) {
    all.push_back(on(
        "ChronoIsCopied", [] { return ox::ox_chrono(); },
        [](ox::ox_chrono& object) {
            const ox::ox_chrono copy(object);
            object = copy;
            return std::string();
        },
        [](ox::ox_chrono& object) { return told(object.elapsed()); }));
    all.push_back(on(
        "RandomIsCopied", [] { return ox::ox_random(7); },
        [](ox::ox_random& object) {
            object = ox::ox_random(8);
            return std::string();
        },
        [](ox::ox_random& object) { return told(ox::ox_random(object).dice(0, 1000000)); }));
    all.push_back(of("MutexIsMadeAndLocked", [] {
        ox::ox_mutex mutex;
        const ox::ox_mutex copy(mutex);
        mutex.lock();
        mutex.unlock();
        return std::string();
    }));
}

void add_log_scenarios(std::vector<scenario>& all) {
    all.push_back(of("LineIsLogged", [] {
        ox_log_set(true);
        ox_log_thread_safe(long_text);
        ox_log_set(false);
        return std::string();
    }));
    all.push_back(of("LogFileIsChosen", [] {
        ox_set_log_file("a_log_file_of_its_own_with_a_long_name.txt");
        ox_set_log_file(nullptr);
        return std::string();
    }));
}

} // namespace

std::vector<scenario> core_scenarios() {
    std::vector<scenario> all;
    add_list_scenarios(all);
    add_hash_scenarios(all);
    add_text_scenarios(all);
    add_object_scenarios(all);
    add_log_scenarios(all);
    return all;
}

} // namespace failures
