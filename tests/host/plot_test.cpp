// Pictures and messages where names hold what they should not, and where gnuplot or the disk fails.

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <sys/stat.h>
#include <sys/wait.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>

namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

struct Outcome {
    int status;
    std::string out, err;
};

/// One word of a shell's command.
std::string word(const std::string& text) {
    std::string result = "'";
    for (const char c : text) result += c == '\'' ? "'\\''"s : std::string(1, c);
    return result + "'";
}

/// One cell of a table.
std::string cell(const std::string& text) {
    std::string result = "\"";
    for (const char c : text) result += c == '"' ? "\"\""s : std::string(1, c);
    return result + "\"";
}

bool no_gnuplot() {
    return std::system("command -v gnuplot >/dev/null") != 0;
}

/// The command works in a directory of the test's own; what it prints goes elsewhere.
class Plot : public testing::Test {
protected:
    void SetUp() override {
        std::string name = (fs::temp_directory_path() / "ansatz-XXXXXX").string();
        ASSERT_NE(mkdtemp(name.data()), nullptr);
        outside_ = name;
        work_ = outside_ / "work";
        fs::create_directories(work_);
        fs::create_directories(outside_ / "bin");
    }
    void TearDown() override { fs::remove_all(outside_); }

    static std::string read(const fs::path& path) {
        std::ostringstream text;
        text << std::ifstream(path, std::ios::binary).rdbuf();
        return text.str();
    }
    void write_table(const std::string& name, const std::string& header) const {
        std::ofstream(work_ / name) << header << "\n5 3.1 2\n3 5 4\n1 2.9 2\n3 1 3.5\n4.4 4.4 2\n1.6 1.6 1\n";
    }
    std::set<std::string> files() const {
        std::set<std::string> names;
        for (const auto& entry : fs::directory_iterator(work_)) names.insert(entry.path().filename());
        return names;
    }
    Outcome run(const std::vector<std::string>& arguments, const std::string& before = "") const {
        std::string line = "cd " + word(work_) + " && " + before + " " + word(ANSATZ_COMMAND);
        for (const std::string& argument : arguments) line += " " + word(argument);
        line = "( " + line + " ) >" + word(outside_ / "out") + " 2>" + word(outside_ / "err");
        const int status = std::system(line.c_str());
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, read(outside_ / "out"), read(outside_ / "err")};
    }
    /// A program of this name goes before gnuplot.
    std::string instead_of_gnuplot(const std::string& text) const {
        std::ofstream(outside_ / "bin" / "gnuplot") << text;
        fs::permissions(outside_ / "bin" / "gnuplot", fs::perms::owner_all);
        return "PATH=" + word(outside_ / "bin") + ":\"$PATH\"";
    }
    /// The texts of an SVG, as an XML parser finds them.
    std::set<std::string> texts(const std::string& picture) const {
        const std::string line =
            "cd " + word(work_) + " && python3 -c '" +
            "import sys, xml.dom.minidom as m\n"
            "for t in m.parse(open(sys.argv[1], \"rb\")).getElementsByTagName(\"text\"):\n"
            "    sys.stdout.buffer.write(\"\".join(n.data for n in t.childNodes).encode() + b\"\\n\")' " +
            word(picture) + " >" + word(outside_ / "texts");
        EXPECT_EQ(std::system(line.c_str()), 0) << "not XML";
        std::istringstream lines(read(outside_ / "texts"));
        std::set<std::string> found;
        for (std::string text; std::getline(lines, text);) found.insert(text);
        return found;
    }

    fs::path outside_, work_;
};

} // namespace

TEST_F(Plot, ShowsHostileNamesAndRunsNoneOfThem) {
    if (no_gnuplot()) GTEST_SKIP() << "gnuplot is not installed";
    const std::string r = "\xef\xbf\xbd"; // U+FFFD
    const struct {
        std::string text, shown;
    } labels[] = {
        {"'begins with a quote", "'begins with a quote"},
        {"it''s \"quoted\"", "it''s \"quoted\""},
        {"`touch X` $(touch X) ${HOME} @touch", "`touch X` $(touch X) ${HOME} @touch"},
        {"\".system('touch X').\" !touch X", "\".system('touch X').\" !touch X"},
        {"<&> &lt; &#x41; &#; ]]> <!-- </text>", "<&> &lt; &#x41; &#; ]]> <!-- </text>"},
        {"\\n \\101 {/*9 a}_b^c %s 0.307 (1)", "\\n \\101 {/*9 a}_b^c %s 0.307 (1)"},
        {"\xc3\xa9 \xe2\x82\xac in \xb0\x43"s, "\xc3\xa9 \xe2\x82\xac in " + r + "C"},
        {"a\0b\x1b[31m\x07 \xc2\x9b"s, "a" + r + "b" + r + "[31m" + r + " " + r},
        {"\xef\xb7\x90\xef\xb7\x91 \xef\xbf\xbf", r + r + " " + r}, // noncharacters
    };
    const struct {
        std::vector<std::string> model;
        int columns; // whose names are in the picture
    } shapes[] = {{{"Line", "1,2"}, 2}, {{"Plane", "1,1,1"}, 3}, {{"Circle", "3,3,2"}, 2}};
    const std::string names[] = {"|touch X; true ", "new\nsystem 'touch X'\n", "`touch X`$(touch X)", "'\"",
                                 "-o"};
    int turn = 0;
    for (const auto& [model, columns] : shapes) {
        for (std::size_t i = 0; i < std::size(labels); i += 3) {
            const std::string name = names[static_cast<std::size_t>(turn++) % std::size(names)];
            const std::string data = name + ".csv", picture = name + ".svg";
            write_table(data,
                        cell(labels[i].text) + " " + cell(labels[i + 1].text) + " " + cell(labels[i + 2].text));
            const Outcome outcome =
                run({"fit", model[0], "./" + data, "--start", model[1], "--plot=" + picture}, "LC_ALL=C");
            ASSERT_EQ(outcome.status, 0) << outcome.err;
            EXPECT_EQ(outcome.err, "");
            EXPECT_EQ(files(), (std::set{data, picture}));
            const std::set<std::string> found = texts("./" + picture);
            for (int k = 0; k < columns; ++k) {
                EXPECT_TRUE(found.contains(labels[i + static_cast<std::size_t>(k)].shown))
                    << model[0] << " " << labels[i + static_cast<std::size_t>(k)].shown;
            }
            fs::remove(work_ / data);
            fs::remove(work_ / picture);
        }
    }
}

TEST_F(Plot, LeavesNothingWhereGnuplotFails) {
    const std::string shell = "#!/bin/sh\n";
    const struct {
        const char* message;
        std::string program;
    } cases[] = {
        {"it ended with status 3", shell + "exec <&-\nexit 3\n"},
        {"it was ended by signal 9", shell + "kill -9 $$\n"},
        {"line 7: \\x1b[31mno\\xb0",
         shell + "printf '\\nplot\\n  ^\\n  line 7: \\033[31mno\\260\\nmore\\n' >&2\nexit 1\n"},
        {"no such font", shell + "echo 'no such font' >&2\nexit 1\n"},
        {"the picture is not complete", shell},
        {"the picture is not complete", shell + "echo '<svg><text>half of'\n"},
        {"Exec format error", "no program\n"},
        {"Is a directory", shell + "mkdir fit.svg\necho '<svg></svg>'\n"},
    };
    write_table("t.csv", "x y z");
    for (const auto& [message, program] : cases) {
        const Outcome outcome =
            run({"fit", "Line", "t.csv", "--start", "1,2", "--plot", "fit.svg"}, instead_of_gnuplot(program));
        EXPECT_EQ(outcome.status, 1) << message;
        EXPECT_TRUE(outcome.err.starts_with("ansatz: --plot: ")) << outcome.err;
        EXPECT_NE(outcome.err.find(message), std::string::npos) << outcome.err << message;
        EXPECT_EQ(std::ranges::count(outcome.err, '\n'), 1) << outcome.err;
        EXPECT_NE(outcome.out.find("R squared"), std::string::npos) << "the fit itself is told of";
        if (fs::is_directory(work_ / "fit.svg")) fs::remove(work_ / "fit.svg");
        EXPECT_EQ(files(), std::set{"t.csv"s}) << message;
    }
}

TEST_F(Plot, ReplacesAPictureAsAWholeOrNotAtAll) {
    write_table("t.csv", "x y z");
    const std::vector<std::string> fit = {"fit", "Line", "t.csv", "--start", "1,2", "--plot", "fit.svg"};
    std::ofstream(work_ / "old.svg") << "old";
    fs::permissions(work_ / "old.svg", fs::perms::owner_read | fs::perms::owner_write);
    fs::create_symlink("old.svg", work_ / "fit.svg");
    const std::set<std::string> all = files();

    // The picture, of some 2 MB, is larger than a file may be; gnuplot itself is not held to that.
    const std::string large = instead_of_gnuplot(
        "#!/bin/sh\nulimit -S -f unlimited\necho '<svg>'\nhead -c 2000000 /dev/zero\necho '</svg>'\n");
    const Outcome full = run(fit, "ulimit -S -f 2000 && " + large);
    EXPECT_EQ(full.status, 1);
    EXPECT_NE(full.err.find("cannot write 'fit.svg': File too large"), std::string::npos) << full.err;
    EXPECT_EQ(read(work_ / "old.svg"), "old");
    EXPECT_EQ(files(), all);

    EXPECT_EQ(run(fit, large).status, 0);
    EXPECT_EQ(read(work_ / "old.svg").size(), 2000013u);
    EXPECT_TRUE(fs::is_symlink(work_ / "fit.svg"));
    EXPECT_EQ(fs::status(work_ / "old.svg").permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(files(), all);

    // Refused before the fit: what is no file, and a directory that does not exist.
    ASSERT_EQ(mkfifo((work_ / "pipe.svg").c_str(), 0600), 0);
    for (const char* picture : {"pipe.svg", "nowhere/fit.svg", "\x1b/fit.svg"}) {
        const Outcome refused = run({"fit", "Line", "t.csv", "--start", "1,2", "--plot", picture}, large);
        EXPECT_EQ(refused.status, 2) << picture;
        EXPECT_EQ(refused.out, "") << picture;
        EXPECT_EQ(std::ranges::count(refused.err, '\x1b'), 0) << picture;
    }
}

TEST_F(Plot, PrintsNoRawBytes) {
    const std::string name = "a\x1b\n\xb0.csv", column = "T \xb0\x43\x1b[31m";
    write_table(name, cell(column) + " " + cell("y\x7f\xc2\x9b") + " z\xff");
    std::ofstream(work_ / "bad\x1b.csv") << "1 2\n3 \x1b[31m\xb0\n";
    std::ofstream(work_ / "pair.csv") << "x " << cell("u\x1b")
                                      << " v\xb0\n0 1 909\n1 2 450\n2 3 380\n3 4 150\n4 5 110\n";
    const struct {
        std::vector<std::string> arguments;
        int status;
        const char* shown;
    } cases[] = {
        {{"fit", "Line", name, "--start", "1,2"}, 0, "a\\x1b\\x0a\\xb0.csv"},
        {{"fit", "Line", name, "--start", "1,2", "--x", column, "--json"}, 0, "T \\ufffdC\\u001b[31m"},
        {{"fit", "Line", name, "--start", "1,2", "--json"}, 0, "y\\u007f\\u009b"},
        {{"fit", "Line", name, "--start", "1,2", "--y", "\x1b"},
         2,
         "'\\x1b'; the columns are T \\xb0C\\x1b[31m, "},
        {{"fit", "Line", "bad\x1b.csv", "--start", "1,2"},
         2,
         "bad\\x1b.csv: line 2, column 2: '\\x1b[31m\\xb0' is"},
        {{"fit", "Line", "no\x1b.csv", "--start", "1,2"}, 2, "'no\\x1b.csv'"},
        {{"fit", "LineExp", "pair.csv", "--start", "1,1,1,900,-1"}, 0, "v\\xb0 scatters"},
        {{"fit", "Line", name, "--start", "1,2", "--bad\x1b\n"}, 2, "--bad\\x1b\\x0a"},
        {{"show", "G\x1b"}, 2, "unknown model 'G\\x1b'"},
        {{"list", "\xb0\n"}, 2, "'\\xb0\\x0a'"},
        {{"\x1b[31m"}, 2, "unknown command '\\x1b[31m'"},
    };
    for (const auto& [arguments, status, shown] : cases) {
        const Outcome outcome = run(arguments);
        const std::string printed = outcome.out + outcome.err;
        EXPECT_EQ(outcome.status, status) << shown << printed;
        EXPECT_NE(printed.find(shown), std::string::npos) << shown << printed;
        EXPECT_TRUE(std::ranges::all_of(printed, [](char c) { return c == '\n' || (c >= 0x20 && c < 0x7f); }))
            << shown;
    }
    const auto json = nlohmann::json::parse(run(cases[1].arguments).out);
    EXPECT_EQ(json["data"]["x"][0], "T \xef\xbf\xbd\x43\x1b[31m");
}
