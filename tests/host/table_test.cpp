// The dialects of tables, and what is wrong with a table that cannot be read.

#include <ansatz/host/table.hpp>

#include <gtest/gtest.h>

#include <sstream>

using ansatz::host::Error;
using ansatz::host::Table;

namespace {

Table read(const std::string& text) {
    std::istringstream in(text);
    return Table::read(in, "table");
}

} // namespace

TEST(Table, ReadsEveryDialectAlike) {
    const char* const dialects[] = {
        "a,b\n1,2.5\n-3,4e2\n",
        "1,2.5\n-3,4e2\n",
        "a;b\n1;2,5\n-3;4e2",
        "a\tb\n1\t2,5\n-3\t400\n",
        "  a   b\n 1    2.5\n-3  +400  \n\n",
        "1 \t 2.5\r\n-3 \t 400\r\n",
        "# a comment\n\n\"a\",\"b\"\r\n1, 2.5 # the first\r\n\r\n-3 , 400\r\n",
        "\xef\xbb\xbf"
        "1,2.5\n-3,400\n",
        "\"2020\",\"2021\"\n1,2.5\n-3,400\n",
    };
    for (const char* const text : dialects) {
        const Table table = read(text);
        ASSERT_EQ(table.columns(), 2) << text;
        ASSERT_EQ(table.rows(), 2) << text;
        EXPECT_EQ(table.numbers(0)[0], 1) << text;
        EXPECT_EQ(table.numbers(0)[1], -3) << text;
        EXPECT_EQ(table.numbers(1)[0], 2.5) << text;
        EXPECT_EQ(table.numbers(1)[1], 400) << text;
    }
}

TEST(Table, FindsColumnsByNameAndNumber) {
    const Table table = read("time;\"signal, \"\"raw\"\" #1\";2\n1;2;3\n");
    EXPECT_EQ(table.name(1), "signal, \"raw\" #1");
    EXPECT_EQ(read("\"t\" ; \" s \"\n1;2\n").name(1), " s ") << "blanks within quotes belong to a name";
    EXPECT_EQ(table.column("TIME"), 0);
    EXPECT_EQ(table.column("signal, \"raw\" #1"), 1);
    EXPECT_EQ(table.column("3"), 2);
    EXPECT_EQ(table.column("2"), 2) << "a header's name goes before a number";
    EXPECT_THROW(table.column("4"), Error);
    EXPECT_THROW(table.column("0"), Error);
    EXPECT_EQ(read("1 2\n").name(1), "column 2");
    EXPECT_EQ(read("\xef\xbb\xbftime,y\n1,2\n").name(0), "time") << "behind a byte order mark";
}

TEST(Table, PassesOverTextAbove) {
    std::istringstream in("Certified: 1,2,3\n\nx y # above is text\n1 2\n");
    const Table table = Table::read(in, "table", 2);
    EXPECT_EQ(table.name(1), "y");
    EXPECT_EQ(table.numbers(1)[0], 2);
    std::istringstream short_text("above\n");
    EXPECT_THROW(Table::read(short_text, "table", 2), Error);
}

TEST(Table, LeavesColumnsThatNobodyReadsAlone) {
    const Table table = read("sample,x\nfirst,1\nsecond,2\n");
    EXPECT_EQ(table.numbers(1)[1], 2);
    EXPECT_THROW(table.numbers(0), Error);
}

TEST(Table, SaysWhatIsWrongAndWhere) {
    const struct {
        const char* text;
        const char* message;
    } faults[] = {
        {"x,y\n1,2\n\n3,oops\n", "table: line 4, column 2: 'oops' is not a number"},
        {"1,2\n3,\n", "table: line 2, column 2: no number"},
        {"1,2\n3,nan\n", "table: line 2, column 2: 'nan' is not a number"},
        {"1,2\n3,1e999\n", "table: line 2, column 2: '1e999' is not a number"},
        {"1,2\n3,4 5\n", "table: line 2, column 2: '4 5' is not a number"},
        {"1,2\n3\n", "table: line 2 has 1 column, the lines before have 2; is there text above the table?"},
        {"# nothing\n\n", "table: no data"},
        {"x,y\n", "table: no data"},
    };
    for (const auto& [text, message] : faults) {
        try {
            read(text).numbers(1);
            ADD_FAILURE() << text;
        } catch (const Error& error) {
            EXPECT_STREQ(error.what(), message);
        }
    }
}
