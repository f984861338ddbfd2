#include "frame/listed.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>

namespace ansatz::test {
namespace {

Listed read() {
    Listed list;
    std::ifstream in(ANSATZ_TEST_DATA "/expected/catalogue.txt");
    for (std::string text; std::getline(in, text);) {
        if (text[0] == '#') continue;
        std::istringstream line(text);
        std::string name, ordinal;
        line >> name;
        if (name == "=") {
            line >> name >> ordinal;
        } else {
            ListedRow& row = list.rows.emplace_back();
            row.name = name;
            line >> row.nIndep >> row.nDep >> row.nParams >> row.export_name >> ordinal;
            name = row.export_name;
        }
        if (name != "-") list.exports[name] = std::stoi(ordinal);
    }
    if (list.rows.empty()) {
        std::fprintf(stderr, "no list of the catalogue under %s\n", ANSATZ_TEST_DATA);
        std::exit(2);
    }
    return list;
}

} // namespace

const Listed& listed() {
    static const Listed list = read();
    return list;
}

} // namespace ansatz::test
