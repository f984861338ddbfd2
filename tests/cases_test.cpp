// The tables under cases/: one line per fault, limit or oddity of a model, in the form
//
//   NAME FLAGS [n COUNT] [errno N] P p1 p2 .. x x1 ..  ->  STATUS [errno N] [slot=value ..]
//
//   FLAGS   value, deriv, both, query, probe, none, or the flags byte as a number
//   n       nParams, by default the number of parameters given
//   errno   the error indicator on entry, and after the call (0 when not named)
//   slot    y1, d3, x2 ...; value a number (met to 4 ulp; 0, inf and nan exactly; +0 and -0 with their sign),
//           or missing. Slots not named must be left untouched. d0:CODE= stands for a 32-bit code at dyda[0].
//
// Numbers are worked out by hand or with many digits, never taken from a run.

#include "frame/golden.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <limits>
#include <map>
#include <set>
#include <sstream>

namespace ansatz::test {
namespace {

struct Case {
    std::string name;
    Request request;
    int status = 0, indicator = 0;
    std::map<std::string, double> writes;
    std::set<std::string> signed_zeros;
};

double number(const std::string& word) {
    if (word == "missing") return MISSING_VALUE;
    char* end = nullptr;
    const double v = std::strtod(word.c_str(), &end);
    if (*end != '\0') throw std::invalid_argument("not a number: " + word);
    return v;
}

Case parse(const std::string& text) {
    static const std::map<std::string, unsigned> flags = {
        {"value", FF_VALUE},       {"deriv", FF_DERIV}, {"both", FF_VALUE | FF_DERIV},
        {"query", FF_QUERY_DERIV}, {"probe", FF_PROBE}, {"none", 0}};
    Case c;
    std::istringstream line(text);
    std::string word;
    line >> c.name >> word;
    const auto named = flags.find(word);
    c.request.flags = named == flags.end() ? static_cast<unsigned>(std::stoul(word)) : named->second;
    bool counted = false;
    std::vector<double>* list = nullptr;
    while (line >> word && word != "->") {
        if (word == "n")
            counted = static_cast<bool>(line >> c.request.nParams);
        else if (word == "errno")
            line >> c.request.indicator;
        else if (word == "P")
            list = &c.request.P;
        else if (word == "x")
            list = &c.request.x;
        else
            list->push_back(number(word));
    }
    if (!counted) c.request.nParams = static_cast<int>(c.request.P.size());
    if (!(line >> c.status)) throw std::invalid_argument("no status");
    while (line >> word) {
        const auto equals = word.find('=');
        if (word == "errno")
            line >> c.indicator;
        else
            c.writes[word.substr(0, equals)] = word.back() == '=' ? 0 : number(word.substr(equals + 1));
        if (word.ends_with("=+0") || word.ends_with("=-0")) c.signed_zeros.insert(word.substr(0, equals));
    }
    return c;
}

bool agrees(double got, double want) {
    if (std::isnan(want)) return std::isnan(got);
    if (want == MISSING_VALUE || want == 0 || std::isinf(want)) return got == want;
    return std::fabs(got - want) <= 4 * std::numeric_limits<double>::epsilon() * std::fabs(want);
}

void check(const Case& c) {
    const Outcome outcome = call(find(c.name), c.request);
    if (c.request.flags == FF_VALUE) {
        Request value_alone = c.request;
        value_alone.null_dyda = true;
        EXPECT_TRUE(same_outcome(call(find(c.name), value_alone), outcome))
            << "without a place for derivatives";
    }
    EXPECT_EQ(outcome.status, c.status);
    EXPECT_EQ(outcome.indicator, c.indicator) << "the error indicator after the call";
    for (const auto& [slot, want] : c.writes) {
        const auto got = outcome.written.find(slot);
        if (got == outcome.written.end()) {
            ADD_FAILURE() << slot << " was not written";
        } else if (!slot.starts_with("d0:")) {
            EXPECT_TRUE(agrees(got->second, want)) << slot << " is " << got->second << ", not " << want;
        }
    }
    for (const std::string& slot : c.signed_zeros) {
        EXPECT_TRUE(same_bits(outcome.written.at(slot), c.writes.at(slot))) << slot << " has the wrong sign";
    }
    for (const auto& [slot, got] : outcome.written) {
        EXPECT_TRUE(c.writes.contains(slot)) << slot << " = " << got << " was written";
    }
}

bool is_case(const std::string& text) {
    return !text.empty() && text[0] != '#';
}

class Cases : public testing::TestWithParam<std::filesystem::path> {};

TEST_P(Cases, AreAsTheTableSays) {
    std::ifstream in(GetParam());
    int number_of_line = 0, cases = 0;
    for (std::string text; std::getline(in, text);) {
        ++number_of_line;
        if (!is_case(text)) continue;
        SCOPED_TRACE("line " + std::to_string(number_of_line) + ": " + text);
        ++cases;
        try {
            check(parse(text));
        } catch (const std::exception& error) {
            ADD_FAILURE() << "cannot read this line: " << error.what();
        }
    }
    EXPECT_GT(cases, 0);
}

std::vector<std::filesystem::path> tables() {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(ANSATZ_TEST_DATA "/cases")) {
        files.push_back(entry.path());
    }
    return files;
}

INSTANTIATE_TEST_SUITE_P(Tables, Cases, testing::ValuesIn(tables()),
                         [](const auto& table) { return table.param.stem().string(); });

// A law, its golden data, its cases and its code stand under the same name of a family.
TEST(Families, HaveTheSameModelsAmongTheLawsAndTheCases) {
    std::set<std::string> laws, cases;
    for (const GoldenRow& row : golden_rows()) laws.insert(row.family + "/" + row.name);
    for (const auto& table : tables()) {
        std::ifstream in(table);
        for (std::string text; std::getline(in, text);) {
            if (is_case(text)) cases.insert(table.stem().string() + "/" + text.substr(0, text.find(' ')));
        }
    }
    std::vector<std::string> differences;
    std::ranges::set_symmetric_difference(laws, cases, std::back_inserter(differences));
    EXPECT_EQ(differences, std::vector<std::string>());
}

#ifndef _WIN32 // where the sources may be out of sight
TEST(Families, AreTheFoldersOfTheModels) {
    std::set<std::string> families, folders;
    for (const GoldenRow& row : golden_rows()) families.insert(row.family);
    for (const auto& entry : std::filesystem::directory_iterator(ANSATZ_TEST_DATA "/../src/models")) {
        if (entry.is_directory() && !is_empty(entry)) folders.insert(entry.path().filename().string());
    }
    EXPECT_EQ(families, folders);
}
#endif

} // namespace
} // namespace ansatz::test
