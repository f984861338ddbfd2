// Text that may hold any byte, made fit to be shown.

#include <ansatz/host/error.hpp>
#include <ansatz/host/text.hpp>

#include <gtest/gtest.h>

using ansatz::host::drawable;
using ansatz::host::printable;
using namespace std::string_view_literals;

TEST(Text, IsFitToBeShown) {
    constexpr std::string_view r = "\xef\xbf\xbd"; // U+FFFD
    const struct {
        std::string_view text, printed;
        int replaced; // how many characters a picture replaces; all of the text, or none
    } cases[] = {
        {"", "", 0},
        {"plain \\ ~", "plain \\ ~", 0},
        {"\xc2\xb0\xc3\xa9\xe2\x82\xac\xf0\x9f\x93\x88", "\xc2\xb0\xc3\xa9\xe2\x82\xac\xf0\x9f\x93\x88", 0},
        {"\0\t\n\x1b\x7f"sv, "\\x00\\x09\\x0a\\x1b\\x7f", 5},
        {"\xc2\x80\xc2\x9f", "\\xc2\\x80\\xc2\\x9f", 2}, // control characters of two bytes
        {"\xb0\xff", "\\xb0\\xff", 2},                   // Latin-1
        {"\xc3", "\\xc3", 1},                            // what is cut off
        {"\xe2\x82", "\\xe2\\x82", 2},
        {"\xf0\x9f\x93", "\\xf0\\x9f\\x93", 3},
        {"\xc0\xaf\xe0\x80\xaf", "\\xc0\\xaf\\xe0\\x80\\xaf", 5}, // a slash in too many bytes
        {"\xed\xa0\x80", "\\xed\\xa0\\x80", 3},                   // half of a surrogate pair
        {"\xf4\x90\x80\x80\xf5", "\\xf4\\x90\\x80\\x80\\xf5", 5}, // beyond Unicode
        {"\xef\xbf\xbf\xef\xb7\x90\xf0\x9f\xbf\xbe", "\xef\xbf\xbf\xef\xb7\x90\xf0\x9f\xbf\xbe", 3},
    };
    for (const auto& [text, printed, replaced] : cases) {
        EXPECT_EQ(printable(text), printed);
        std::string drawn(replaced == 0 ? text : "");
        for (int i = 0; i < replaced; ++i) drawn += r;
        EXPECT_EQ(drawable(text), drawn) << printed;
    }
    EXPECT_EQ(printable("a\xc3z"), "a\\xc3z") << "what follows a malformed byte stays";
    EXPECT_STREQ(ansatz::host::FitError("a\0\x1b[31m"sv).what(), "a\\x00\\x1b[31m");
}
