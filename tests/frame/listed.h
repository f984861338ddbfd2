// The list of rows and exports that is kept apart from the library's own table (expected/catalogue.txt).
#pragma once

#include <map>
#include <string>
#include <vector>

namespace ansatz::test {

struct ListedRow {
    std::string name, export_name; ///< "-" where the row has no export of its own
    int nIndep = 0, nDep = 0, nParams = 0;
};

struct Listed {
    std::vector<ListedRow> rows;
    std::map<std::string, int> exports; ///< every export name, those of rows among them, with its ordinal
};

const Listed& listed();

} // namespace ansatz::test
