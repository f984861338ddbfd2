// The elementary functions as models get them, at ordinary and at hard arguments, against values worked out
// with many digits (expected/elementary.txt); and the error indicator stays untouched at all of them.

#include "protocol/errors.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <map>
#include <sstream>
#include <vector>

namespace ansatz {
namespace {

/// How many doubles lie between two of the same sign; a huge number otherwise.
double distance(double a, double b) {
    if (std::signbit(a) != std::signbit(b) || std::isnan(a) || std::isnan(b)) return 1e300;
    const auto place = [](double v) { return std::bit_cast<std::int64_t>(std::fabs(v)); };
    return std::fabs(static_cast<double>(place(a) - place(b)));
}

double evaluate(const std::string& function, const std::vector<double>& arguments) {
    static const std::map<std::string, double (*)(double)> functions = {
        {"exp", ansatz::exp},   {"log", ansatz::log},   {"sin", ansatz::sin},   {"cos", ansatz::cos},
        {"tanh", ansatz::tanh}, {"acos", ansatz::acos}, {"erfc", ansatz::erfc}, {"log1p", ansatz::log1p}};
    return function == "pow" ? ansatz::pow(arguments.at(0), arguments.at(1))
                             : functions.at(function)(arguments.at(0));
}

TEST(Elementary, FunctionsAreGoodToTheLastDigit) {
    std::ifstream in(ANSATZ_TEST_DATA "/expected/elementary.txt");
    std::map<std::string, double> worst;
    for (std::string text; std::getline(in, text);) {
        if (text[0] == '#') continue;
        std::istringstream line(text);
        std::string function;
        std::vector<double> numbers;
        line >> function;
        for (std::string word; line >> word;) numbers.push_back(std::strtod(word.c_str(), nullptr));
        const double want = numbers.back();
        numbers.pop_back();
        errno = 0;
        const double got = evaluate(function, numbers);
        EXPECT_EQ(errno, 0) << text;
        const double off = distance(got, want);
        const bool harder = function == "tanh" || function == "erfc"; // C libraries promise 2 ulp there
        EXPECT_LE(off, harder ? 2 : 1) << text << ", got " << got << " for " << want;
        worst[function] = std::max(worst[function], off);
    }
    EXPECT_EQ(worst.size(), 9u);
    for (const auto& [function, ulp] : worst) RecordProperty(function, std::to_string(ulp));
}

// Of all doubles the one closest to a multiple of pi/2. Not every C library has the last digit right.
TEST(Elementary, SineAndCosineAtTheHardestArgument) {
    const double t = 0x1.6ac5b262ca1ffp+849;
    EXPECT_NEAR(ansatz::cos(t), -4.68716592425462761112e-19, 1e-33);
    EXPECT_EQ(ansatz::sin(t), 1);
}

} // namespace
} // namespace ansatz
