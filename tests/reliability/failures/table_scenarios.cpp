#include <tests/reliability/failures/scenario.h>

#include <fstream>

#include <ox/io/ox_csv.h>

namespace failures {

namespace {

using ox::ox_csv;
using ox::ox_list;

const char* const table_path = "failing_memory.csv";

ox_csv table() {
    ox_csv made;
    made.read_string("width;a header that is longer than a string object holds\n1;2\n3;4\n");
    return made;
}

std::string contents_of(ox_csv& object) {
    ox_csv copy(object);
    return told(object.get_nb_columns(), object.get_column_separator(), copy.write_string());
}

template <typename Act>
scenario on_table(const std::string& name, Act act) {
    return on(name, table, act, contents_of);
}

void add_reading_and_writing(std::vector<scenario>& all) {
    all.push_back(on_table("TableReadsAText", [](ox_csv& object) {
        return told(object.read_string("a,b,c\n1,2,3\n4,5,6\n7,8,9\n"));
    }));
    all.push_back(on_table("TableReadsAFile", [](ox_csv& object) {
                      std::ofstream(table_path) << "a,b,c\n1,2,3\n4,5,6\n7,8,9\n";
                      return told(object.read_file(table_path));
                  }).or_refuses("0 "));
    all.push_back(on_table("TableIsWritten", [](ox_csv& object) { return object.write_string(); }));
    all.push_back(on_table("TableIsWrittenToAFile", [](ox_csv& object) {
                      return told(object.write_file(table_path));
                  }).or_refuses("0 "));
    all.push_back(on_table("TableIsWrittenAsAnsi", [](ox_csv& object) {
        object.set_encoding(ox_csv::encoding_ansi);
        return object.write_string();
    }));
}

void add_columns(std::vector<scenario>& all) {
    all.push_back(on_table("TableGainsWholeNumbers", [](ox_csv& object) {
        object.add_column("a header that is longer than a string object holds",
                          ox::ox_make_list({1, -2, 3}));
        return std::string();
    }));
    all.push_back(on_table("TableGainsNumbers", [](ox_csv& object) {
        object.add_column("height", ox::ox_make_list({1.5f, 2.5f}), 40);
        return std::string();
    }));
    all.push_back(on_table("TableGainsTexts", [](ox_csv& object) {
        object.add_column(ox::ox_make_list<std::string>({"two", "lines"}),
                          ox::ox_make_list<std::string>({"a", "b"}));
        return std::string();
    }));
    all.push_back(on_table("TableGainsFlags", [](ox_csv& object) {
        object.add_column("is", ox::ox_make_list({true, false}));
        return std::string();
    }));
    all.push_back(on_table("TableGivesAColumn", [](ox_csv& object) {
        ox_list<std::string> headers;
        ox_list<float> values;
        object.get_column(1, headers, values);
        return told(headers, values);
    }));
    all.push_back(on_table("TableIsAssigned", [](ox_csv& object) {
        object = ox_csv();
        return std::string();
    }));
}

} // namespace

std::vector<scenario> table_scenarios() {
    std::vector<scenario> all;
    add_reading_and_writing(all);
    add_columns(all);
    return all;
}

} // namespace failures
