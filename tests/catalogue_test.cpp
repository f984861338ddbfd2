// The catalogue and the built library against a list kept apart from the library's own table.

#include "frame/call.h"
#include "frame/exports.h"
#include "frame/listed.h"

#include <gtest/gtest.h>

#include <cctype>
#include <cerrno>
#include <clocale>
#include <set>

namespace ansatz::test {
namespace {

std::vector<std::string> lines;
void ANSATZ_CALL keep_line(std::uint32_t, const char* line) {
    lines.emplace_back(line);
}

TEST(Lookup, FindsEveryRowWithItsDimensionsInOrderAndInAnyCase) {
    ASSERT_EQ(listed().rows.size(), 238u);
    lines.clear();
    const std::int32_t count = FuncTest(1, nullptr, keep_line, nullptr);
    EXPECT_EQ(count, std::ssize(lines));
    ASSERT_GE(lines.size(), listed().rows.size()); // later rows come after those that hosts know
    for (std::size_t i = 0; i < listed().rows.size(); ++i) {
        const ListedRow& row = listed().rows[i];
        SCOPED_TRACE(row.name);
        EXPECT_EQ(lines[i], "type " + row.name);
        std::string swapped = row.name;
        for (char& c : swapped) c = static_cast<char>(std::isupper(c) ? std::tolower(c) : std::toupper(c));
        std::uint16_t nIndep = 99, nDep = 99, nParams = 99, reserved = 99;
        const FitFunction function = Get_Func(swapped.c_str(), &nIndep, &nDep, &nParams, &reserved);
        ASSERT_TRUE(function);
        EXPECT_EQ(nIndep, row.nIndep);
        EXPECT_EQ(nDep, row.nDep);
        EXPECT_EQ(nParams, row.nParams);
        EXPECT_EQ(reserved, 0);
        EXPECT_EQ(function, get_funx(row.name.c_str()));
        EXPECT_EQ(function, Get_Func(row.name.c_str(), nullptr, nullptr, nullptr, nullptr));
    }
}

TEST(Lookup, UnknownNamesFindNothingAndStoreNothing) {
    // export names, prefixes and padded names are no row names
    for (const char* name :
         {"", "Poly", "Boltzman1", "Boltzman2", "Gaus", "Gausss", " Gauss", "Gauss ", "_Ellipse@40"}) {
        std::uint16_t kept = 7;
        EXPECT_EQ(Get_Func(name, &kept, &kept, &kept, &kept), nullptr) << name;
        EXPECT_EQ(kept, 7) << name;
        EXPECT_EQ(get_funx(name), nullptr) << name;
    }
    EXPECT_EQ(get_funx_list(-1), 0);
}

TEST(SharedLibrary, ExportsExactlyTheListAndEachNameIsItsRowsRoutine) {
    std::set<std::string> expected;
    for (const auto& [name, ordinal] : listed().exports) {
        if (exported_here(name)) expected.insert(name);
    }
    for (const ListedRow& row : listed().rows) {
        if (!expected.contains(row.export_name)) continue;
        EXPECT_EQ(exported_routine(row.export_name), get_funx(row.name.c_str())) << row.export_name;
    }
    EXPECT_EQ(exported_names(), expected);
}

// What the placeholders answer; none of them writes anything.
TEST(Placeholders, AnswerAndWriteNothing) {
    struct Answer {
        const char* name;
        int query, work, flags8;
    };
    std::vector<Answer> answers = {{"RationalEVP", 1, 0, 8}};
    for (const char* name : {"LangmuirTS1", "LangmuirTS2", "Rational4P", "ExpCSum1", "ExpCSum2", "ExpCSumEVP",
                             "Prunty", "BentHyperblSmp"}) {
        answers.push_back({name, 0, 0, 8});
    }
    for (const char* name : {"BelehradekEVP", "ChapmanEVP1", "ChapmanEVP2", "ChapmanEVP3"}) {
        answers.push_back({name, 0, 1, 8});
    }
    for (const Answer& answer : answers) {
        const Model model = find(answer.name);
        const std::vector<std::pair<unsigned, int>> requests = {{FF_QUERY_DERIV, answer.query},
                                                                {FF_QUERY_DERIV | FF_VALUE, answer.query},
                                                                {FF_VALUE, answer.work},
                                                                {FF_DERIV, answer.work},
                                                                {FF_VALUE | FF_DERIV, answer.work},
                                                                {FF_PROBE, answer.flags8},
                                                                {0xf0, 0xf0},
                                                                {0, 0}};
        for (const auto& [flags, status] : requests) {
            const Outcome outcome = call(model, {flags, 3, {1, 2, 3}, {1}, 33});
            EXPECT_EQ(outcome.status, status) << answer.name << " flags " << flags;
            EXPECT_TRUE(outcome.written.empty()) << answer.name << " flags " << flags;
            EXPECT_EQ(outcome.indicator, 33) << answer.name << " flags " << flags;
        }
    }
}

TEST(TestCommand, EvaluatesAModelAndReports) {
    const double P[] = {0, 1, 2, 3}, unknown_slot = 0;
    double x[] = {unknown_slot, 3}, y[3] = {}, dyda[4] = {};
    AnsatzTestRequest request = {"Lorentz", FF_DERIV, 1, P, x, y, dyda};
    lines.clear();
    EXPECT_EQ(FuncTest(2, nullptr, keep_line, &request), 0);
    EXPECT_EQ(lines, (std::vector<std::string>{"status 0", "y[1] = 1", "dyda[1] = 1, central difference 1"}));
    const double power[] = {0, -1e6, 3};
    request = {"Allometric1", FF_DERIV, 2, power, x, y, dyda};
    lines.clear();
    errno = 0;
    EXPECT_EQ(FuncTest(2, nullptr, keep_line, &request), 0);
    EXPECT_EQ(lines,
              (std::vector<std::string>{"status 0", "y[1] = -27000000", "dyda[1] = 27, central difference 27",
                                        "dyda[2] = -29662531.794038963, central difference -29662531.8"}));
    request.name = "NoSuchModel";
    lines.clear();
    EXPECT_EQ(FuncTest(2, nullptr, keep_line, &request), -1);
    EXPECT_EQ(lines, std::vector<std::string>{"unknown function: NoSuchModel"});
    EXPECT_EQ(FuncTest(2, nullptr, nullptr, &request), -1);
    EXPECT_EQ(FuncTest(7, nullptr, keep_line, &request), 0);
}

TEST(TestCommand, ReportsEveryOutput) {
    const double P[] = {0, 1, 2, 3, 4, 5};
    double x[] = {0, 0.5}, y[3] = {};
    ASSERT_EQ(find("LineExp").nDep, 2);
    AnsatzTestRequest request = {"LineExp", FF_VALUE, 5, P, x, y, nullptr};
    lines.clear();
    EXPECT_EQ(FuncTest(2, nullptr, keep_line, &request), 0);
    ASSERT_EQ(lines.size(), 3u);
    for (const int k : {1, 2}) {
        const std::string line = lines[static_cast<std::size_t>(k)], start = "y[" + std::to_string(k) + "] = ";
        ASSERT_TRUE(line.starts_with(start)) << line;
        EXPECT_EQ(std::stod(line.substr(start.size())), y[k]);
    }
}

void ANSATZ_CALL disturb(std::uint32_t, const char*) {
    errno = EINTR;
}

// A callback may well change errno, and so do the estimates of derivatives.
TEST(TestCommand, LeavesTheErrorIndicatorAsTheModelDid) {
    const double P[] = {0, 1, 2, 4};
    double x[] = {0, 3}, y[2], dyda[4];
    AnsatzTestRequest request = {"errtest", FF_DERIV, 3, P, x, y, dyda};
    for (const int before : {0, ERANGE, EDOM}) { // a line looks at no pending error
        errno = before;
        EXPECT_EQ(FuncTest(2, nullptr, disturb, &request), 0);
        EXPECT_EQ(errno, before);
    }
    const double failing[] = {0, 1, 2, 1};
    request.params = failing; // and a failure resets it
    errno = EDOM;
    EXPECT_EQ(FuncTest(2, nullptr, disturb, &request), 1);
    EXPECT_EQ(errno, 0);
}

TEST(TestCommand, RefusesARequestWithoutAName) {
    AnsatzTestRequest request = {};
    request.flags = FF_VALUE;
    lines.clear();
    EXPECT_EQ(FuncTest(2, nullptr, keep_line, &request), -1);
    EXPECT_EQ(lines, std::vector<std::string>{"no function named"});
    EXPECT_EQ(FuncTest(2, nullptr, keep_line, nullptr), 0);
}

TEST(TestCommand, WritesNumbersWithAPointInEveryLocale) {
    const std::string before = std::setlocale(LC_NUMERIC, nullptr);
    for (const char* name : {"de_DE.UTF-8", "fr_FR.UTF-8", "German"}) {
        if (std::setlocale(LC_NUMERIC, name)) break;
    }
    const std::string separator = std::localeconv()->decimal_point;
    const double P[] = {0, -0.5, 2.25};
    double x[] = {0, 1}, y[2], dyda[3];
    AnsatzTestRequest request = {"Line", FF_DERIV, 2, P, x, y, dyda};
    lines.clear();
    EXPECT_EQ(FuncTest(2, nullptr, keep_line, &request), 0);
    std::setlocale(LC_NUMERIC, before.c_str());
    EXPECT_EQ(lines.at(1), "y[1] = 1.75");
    EXPECT_TRUE(lines.at(2).starts_with("dyda[1] = 1, central difference ")) << lines.at(2);
    if (separator == ".") GTEST_SKIP() << "no locale with a decimal comma is installed";
}

TEST(TestCommand, GivesNoEstimatesForMoreParametersThanItCopies) {
    const std::vector<double> P(301, 1);
    std::vector<double> dyda(301);
    double x[] = {0, 1}, y[2] = {};
    AnsatzTestRequest request = {"PolyN", FF_DERIV, 300, P.data(), x, y, dyda.data()};
    lines.clear();
    EXPECT_EQ(FuncTest(2, nullptr, keep_line, &request), 0);
    ASSERT_EQ(lines.size(), 302u);
    EXPECT_EQ(lines[1], "y[1] = 300");
    EXPECT_EQ(lines.back(), "dyda[300] = 1, central difference nan");
}

} // namespace
} // namespace ansatz::test
