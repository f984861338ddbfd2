// The command from outside: exit statuses, messages, output for scripts.

#include <ansatz/page.hpp>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <sys/wait.h>
#include <unistd.h>

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace {

namespace fs = std::filesystem;

struct Outcome {
    int status;
    std::string out, err;
};

/// A directory of its own for each test, with a few files of data, as the working directory.
class Command : public testing::Test {
protected:
    void SetUp() override {
        std::string name = (fs::temp_directory_path() / "ansatz-XXXXXX").string();
        ASSERT_NE(mkdtemp(name.data()), nullptr);
        directory_ = name;
        fs::copy_file(fs::path(ANSATZ_EXAMPLES) / "eckerle4.csv", directory_ / "e.csv");
        write("bad.csv", "x,y\n1,2\n2,abc\n3,4\n");
        write("ragged.csv", "1 2\n2 3 4\n");
        write("few.csv", "1 2\n2 3\n3 4\n");
        write("peak.csv", "sd;signal;position\n1;3;-2\n1;4;-1\n1;6;0\n1;4;1\n2;3;2\n2;2.5;3\n");
        write("empty.csv", "");
        std::string surface = "east north height\n", circle = "east north\n", pair = "time warm loud even\n",
                    own = "dose depth uptake yield\n";
        for (int i = 0; i < 36; ++i) {
            const double t = 0.1 * i, wave = 0.01 * std::cos(7.0 * i);
            const double x = i % 6, y = i / 6;
            const auto line = [](std::initializer_list<double> numbers) {
                std::ostringstream text;
                for (const double number : numbers) text << number << " ";
                return text.str() + "\n";
            };
            surface += line({x, y, 1 + 2 * x - y + wave});
            circle += line({3 + (2 + wave) * std::cos(t), 1 + (2 + wave) * std::sin(t)});
            pair += line({t, 1 + 2 * t + wave, 500 + 900 * std::exp(-t) + 1000 * wave, 1});
            own += line({t, 2 * t, 9 * t / (2 + t) + wave, (1 + t) / 3 - wave});
        }
        write("surface.txt", surface);
        write("circle.txt", circle);
        write("pair.txt", pair);
        write("own.txt", own);
    }
    void TearDown() override { fs::remove_all(directory_); }

    void write(const std::string& name, const std::string& text) const {
        std::ofstream(directory_ / name) << text;
    }
    std::string read(const std::string& name) const {
        std::ostringstream text;
        text << std::ifstream(directory_ / name, std::ios::binary).rdbuf();
        return text.str();
    }

    Outcome run(const std::string& arguments, const std::string& before = "") const {
        const char* const other = std::getenv("ANSATZ_COMMAND"); // to be tested in place of the one built
        const std::string line = "cd '" + directory_.string() + "' && " + before + " '" +
                                 (other ? other : ANSATZ_COMMAND) + "' " + arguments + " >out 2>err";
        const int status = std::system(line.c_str());
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, read("out"), read("err")};
    }

    fs::path directory_;
};

} // namespace

TEST_F(Command, RefusesWithOneClearLine) {
    const struct {
        const char* arguments;
        int status;
        const char* message;
    } cases[] = {
        {"", 2, "subcommand is required"},
        {"frobnicate", 2, "unknown command 'frobnicate'"},
        {"list zzzzz", 2, "no model's name contains or matches 'zzzzz'"},
        {"show Gaus", 2, "unknown model 'Gaus'; did you mean Gauss"},
        {"eval Gauss --params 0,1,1 --x 1", 2, "Gauss needs 1 (y0), then 3 per peak (xc, w, A)"},
        {"eval Gauss --params 0,1,1,1 --x one", 2, "--x: 'one' is not a number"},
        {"eval Plane --params 1,2,3 --x 1", 2, "takes 2 x values per point"},
        {"eval Gauss --params 0,1,0,1 --x 1", 1, "Gauss fails at 1 of 1 points"},
        {"eval Gauss --params 0,1,-1,1 --x 1,2 --derivatives", 1,
         "the derivatives of Gauss fail at 2 of 2 points"},
        {"fit Gauss nofile.csv --start 0,1,1,1", 2, "cannot read the file 'nofile.csv'"},
        {"fit Gauss empty.csv --start 0,1,1,1", 2, "empty.csv: the file is empty"},
        {"fit Gauss bad.csv --start 0,1,1,1", 2, "bad.csv: line 3, column 2: 'abc' is not a number"},
        {"fit Gauss ragged.csv --start 0,1,1,1", 2,
         "ragged.csv: line 2 has 3 columns, the lines before have 2; is there text above the table?"},
        {"fit Gauss few.csv --start 0,1,1,1", 2, "3 data value(s) cannot determine 4 free parameters"},
        {"fit Gauss e.csv", 2, "--start is required"},
        {"fit ExpDec1 few.csv --start 0,1,0", 1,
         "ansatz: ExpDec1 cannot be computed for the start values at x = 1"},
        {"fit YldFert1 few.csv --start 1,1,-1", 1,
         "the derivatives of YldFert1 cannot be computed for the start values at x = 1 (data point 1); "
         "change them, or take numerical derivatives"},
        {"fit Gauss e.csv --start 0,450,10", 2, "4 or 7 parameters and so on, 3 given"},
        {"fit Gauss e.csv --start 0,450,wide,4", 2, "--start: 'wide' is not a number"},
        {"fit Gauss e.csv --start xc=450,w=10", 2, "--start: no value for y0, A"},
        {"eval Gauss --params y0=0,xc=1,w=1,A=1,Q=2 --x 1", 2,
         "the parameters are P1 or y0, P2 or xc, P3 or w"},
        {"fit Gauss e.csv --start 0,450,10,4 --fix Q=0", 2,
         "unknown parameter 'Q'; the parameters are P1 or y0"},
        {"fit Gauss e.csv --start 0,450,10,4 --lower w", 2, "--lower: give NAME=NUMBER"},
        {"fit Gauss e.csv --start 0,450,10,4 --lower w=20", 2, "the start value 10 of w is outside its bounds"},
        {"fit Gauss e.csv --start 0,450,10,4 --y height", 2, "no column 'height'; the columns are wavelength"},
        {"fit Gauss e.csv --start 0,450,10,4 --errors 3", 2, "no column 3"},
        {"fit Gauss e.csv --start 0,450,10,4 --plot fit.pdf", 2, "'fit.pdf' must end in .svg or .png"},
        {"fit PlaneMod surface.txt --start 1,1,1 --plot fit.svg", 2,
         "PlaneMod has 3 x columns, and there is no picture for that"},
        {"fit Circle circle.txt --start 3,1,1 --y 2", 2, "--y: Circle needs 0 column(s), 1 given"},
        {"fit LineExp circle.txt --start 1,1,1,1,1", 2, "circle.txt: LineExp needs 2 y column(s)"},
        {"fit Gauss e.csv --start 0,450,0,4", 1, "at x = 400 (data point 1)"},
        {"fit Gauss e.csv --start 0,450,10,4 --max-iterations 1", 1, "the fit did not converge"},
        {"fit Prunty e.csv --start 1,2,3,4", 2, "reserved name that computes nothing"},
        {"fit Gauss e.csv --start 0,450,10,4 --speed 3", 2, "--speed"},
    };
    for (const auto& [arguments, status, message] : cases) {
        const Outcome outcome = run(arguments);
        EXPECT_EQ(outcome.status, status) << arguments;
        EXPECT_TRUE(outcome.err.starts_with("ansatz: ")) << arguments << "\n" << outcome.err;
        EXPECT_NE(outcome.err.find(message), std::string::npos) << arguments << "\n" << outcome.err;
        EXPECT_EQ(std::ranges::count(outcome.err, '\n'), 1) << arguments << "\n" << outcome.err;
    }
}

TEST_F(Command, HelpsEverywhere) {
    const struct {
        const char *command, *example;
    } cases[] = {{"", "ansatz COMMAND --help"},
                 {"list ", "names that begin with"},
                 {"show ", "ansatz show Lorentz"},
                 {"eval ", "--x 0,0 0,1 1,1"},
                 {"fit ", "zcat data.gz | ansatz fit"}};
    for (const auto& [command, example] : cases) {
        const Outcome outcome = run(std::string(command) + "--help");
        EXPECT_EQ(outcome.status, 0) << command;
        EXPECT_NE(outcome.out.find(example), std::string::npos) << command;
        EXPECT_EQ(outcome.err, "") << command;
    }
    EXPECT_TRUE(run("--version").out.starts_with("ansatz "));
    EXPECT_NE(run("fit --help").out.find("--upper NAME=VALUE "), std::string::npos);
}

TEST_F(Command, FitsTheExample) {
    const Outcome outcome = run("fit Gauss e.csv --start 0,450,10,4 --fix P1=0 --json");
    ASSERT_EQ(outcome.status, 0) << outcome.err;
    const auto json = nlohmann::json::parse(outcome.out);
    EXPECT_NEAR(json["parameters"][1]["value"].get<double>(), 451.54121844, 1e-7);
    EXPECT_NEAR(json["parameters"][1]["standard_error"].get<double>(), 4.6800518816e-2, 1e-10);
    EXPECT_TRUE(json["parameters"][0]["standard_error"].is_null());
    EXPECT_EQ(json["data"]["y"][0], "transmittance");
    const Outcome text = run("fit gauss e.csv --start 0,450,10,4 --fix y0");
    EXPECT_NE(text.out.find("451.5412184"), std::string::npos) << text.out;
    EXPECT_NE(text.out.find("(fixed)"), std::string::npos);
}

TEST_F(Command, TakesStartValuesInEveryForm) {
    // Forms of one start, with a negative number in first place.
    for (const char* start :
         {"--start -1,450,10,4", "--start=-1,450,10,4", "--start -1 450 10 4", "--start y0=-1,xc=450,w=10,A=4",
          "--start P4=4 w=10 P2=450 --fix y0=-1 --free y0", "--start 5,450,10,4 --fix P1=-1 --free P1"}) {
        const Outcome outcome = run(std::string("fit Gauss ") + start + " e.csv --json");
        ASSERT_EQ(outcome.status, 0) << start << outcome.err;
        const auto json = nlohmann::json::parse(outcome.out);
        const double expected[] = {-1, 450, 10, 4};
        for (std::size_t k = 0; k < 4; ++k) EXPECT_EQ(json["parameters"][k]["start"], expected[k]) << start;
    }
}

TEST_F(Command, ChoosesColumns) {
    // Without names, the columns not taken by --errors serve in their order.
    const auto free = nlohmann::json::parse(run("fit Lorentz peak.csv --errors 1 --start 0,4,2,1 --json").out);
    EXPECT_EQ(free["data"]["x"][0], "signal");
    EXPECT_EQ(free["data"]["y"][0], "position");
}

TEST_F(Command, WeighsAndBoundsALineAsItsClosedFormSays) {
    write("line.csv", "x,y,sd,w\n1,1.5,1,1\n2,2,0.5,4\n3,4,2,0.25\n5,5,4,0.0625\n");
    const double x[] = {1, 2, 3, 5}, y[] = {1.5, 2, 4, 5}, w[] = {1, 4, 0.25, 0.0625};
    double Sw = 0, Sx = 0, Sy = 0, Sxx = 0, Sxy = 0, Syy = 0;
    for (int i = 0; i < 4; ++i) {
        Sw += w[i], Sx += w[i] * x[i], Sy += w[i] * y[i];
        Sxx += w[i] * x[i] * x[i], Sxy += w[i] * x[i] * y[i], Syy += w[i] * y[i] * y[i];
    }
    const double D = Sw * Sxx - Sx * Sx, a = (Sxx * Sy - Sx * Sxy) / D, b = (Sw * Sxy - Sx * Sy) / D;
    const double rss = Syy - a * Sy - b * Sxy;
    const auto fitted = [&](const std::string& options) {
        return nlohmann::json::parse(run("fit Line line.csv --json " + options).out);
    };
    for (const auto& [options, scale] :
         {std::pair{"--errors sd", rss / 2}, {"--weights w", rss / 2}, {"--errors sd --known-errors", 1.0}}) {
        const auto json = fitted(std::string("--start 0,1 ") + options);
        EXPECT_NEAR(json["parameters"][0]["value"].get<double>(), a, 1e-12) << options;
        EXPECT_NEAR(json["parameters"][1]["value"].get<double>(), b, 1e-12) << options;
        EXPECT_NEAR(json["parameters"][1]["standard_error"].get<double>(), std::sqrt(scale * Sw / D), 1e-12)
            << options;
        EXPECT_NEAR(json["covariance"][0][1].get<double>(), -scale * Sx / D, 1e-12) << options;
        EXPECT_EQ(json["covariance"][0].size(), 2) << options;
        EXPECT_NEAR(json["r_squared"].get<double>(), 1 - rss / (Syy - Sy * Sy / Sw), 1e-12) << options;
        EXPECT_TRUE(json["parameters"][1]["at_bound"].is_null()) << options;
    }
    for (const auto& [side, other, bound] : {std::tuple{"upper", "lower", "0.25"}, {"lower", "upper", "4"}}) {
        const std::string option = std::string("--weights w --start 0,") + bound + " --" + side + " b=" + bound;
        const auto json = fitted(option);
        EXPECT_EQ(json["parameters"][1]["at_bound"], side);
        EXPECT_EQ(json["parameters"][1][side], std::stod(bound));
        EXPECT_TRUE(json["parameters"][1][other].is_null());
        EXPECT_TRUE(json["parameters"][0]["at_bound"].is_null());
        EXPECT_NEAR(json["parameters"][0]["value"].get<double>(), (Sy - std::stod(bound) * Sx) / Sw, 1e-12);
        EXPECT_NE(run("fit Line line.csv " + option).out.find(std::string("(at its ") + side + " bound)"),
                  std::string::npos);
    }
}

TEST_F(Command, PrintsAlignedTables) {
    EXPECT_EQ(run("eval Line --params 1,2 --x 3 0.5 --derivatives").out, "  x  y  dy/da  dy/db\n"
                                                                         "  3  7      1      3\n"
                                                                         "0.5  2      1    0.5\n");
    EXPECT_EQ(run("eval Plane --params 1,2,3 --x 1,2").out, "x1  x2  y\n 1   2  9\n");
    // Of these data the sum of squares is 1.8 about the line and 5 about the mean; the spread of x is 5.
    write("four.csv", "x,y\n0,1\n1,3\n2,2\n3,4\n");
    const std::string fit = run("fit Line four.csv --start 0,0").out;
    EXPECT_TRUE(fit.starts_with("Line:  y = a + b x\n4 points from four.csv; converged")) << fit;
    EXPECT_TRUE(fit.ends_with("      symbol  value  standard error\n"
                              "  P1  a         1.3      0.79372539  intercept: y at x = 0\n"
                              "  P2  b         0.8      0.42426407  slope\n\n"
                              "Residual sum of squares  1.8\n"
                              "R squared                0.64\n"
                              "Reduced chi-square       0.9\n"
                              "Degrees of freedom       2\n\n"
                              "Correlations\n"
                              "            a        b\n"
                              "  a   1.00000\n"
                              "  b  -0.80178  1.00000\n"))
        << fit;
    EXPECT_TRUE(run("list LORENT?")
                    .out.starts_with("Peaks\n"
                                     "  model    x  y  parameters      formula\n"
                                     "  Lorentz  1  1  1 + 3 per peak  y = "));
    const std::string show = run("show gauss").out;
    EXPECT_TRUE(show.starts_with("Gauss  (Peaks)\n\n  y = ")) << show;
    for (const char* part :
         {"\nParameters (1 + 3 per peak)\n      symbol  meaning\n  P1  y0      offset\n",
          "  With several peaks the symbols are numbered: xc1, xc2, ...\n",
          "\nx columns    1\ny columns    1\nDerivatives  analytic\nComponents   one per peak"}) {
        EXPECT_NE(show.find(part), std::string::npos) << part << show;
    }
}

TEST_F(Command, WritesEverythingIntoJson) {
    const auto json = nlohmann::json::parse(
        run("fit Lorentz peak.csv --x position --y signal --errors sd --start 2,0,2,10 --json").out);
    const nlohmann::json data = {{"source", "peak.csv"},
                                 {"points", 6},
                                 {"x", {"position"}},
                                 {"y", {"signal"}},
                                 {"weights", nlohmann::json::array()},
                                 {"errors", {"sd"}}};
    EXPECT_EQ(json["data"], data);
    EXPECT_EQ(json["converged"], true);
    EXPECT_EQ(json["free_parameters"], 4);
    EXPECT_EQ(json["degrees_of_freedom"], 2);
    EXPECT_EQ(json["varied"], (nlohmann::json{"y0", "xc", "w", "A"}));
    EXPECT_NEAR(json["residual_sum_of_squares"].get<double>() / json["reduced_chi_square"].get<double>(), 2,
                1e-12);
    for (const char* key : {"termination", "iterations", "evaluations", "seconds", "covariance",
                            "numerical_derivatives", "relative_offset", "correlation", "undetermined"}) {
        EXPECT_TRUE(json.contains(key)) << key;
    }
    const std::pair<const char*, nlohmann::json> shapes[] = {
        {"Gauss", {1, 1, 4, true, true, false, false}},
        {"Circle", {2, 1, 3, false, false, true, false}},
        {"LineExp", {1, 2, 5, false, false, false, false}}};
    for (const auto& [name, expected] : shapes) {
        const auto shown = nlohmann::json::parse(run(std::string("show --json ") + name).out);
        nlohmann::json shape;
        for (const char* key : {"inputs", "outputs", "default_parameters", "analytic_derivatives", "replicated",
                                "implicit", "reserved"}) {
            shape.push_back(shown[key]);
        }
        EXPECT_EQ(shape, expected) << name;
        EXPECT_EQ(shown["name"], name);
    }
    // The number of peaks follows from the names.
    const auto two = nlohmann::json::parse(
        run("eval Gauss --params y0=1,xc1=450,w1=8,A1=4,xc2=900,w2=8,A2=2 --x 450 --json").out)["points"][0];
    EXPECT_NEAR(two["y"].get<double>(), 1 + 4 / (8 * std::sqrt(M_PI / 2)), 1e-12);
    EXPECT_EQ(two["peak2"], 0.0);
}

TEST_F(Command, ReadsStandardInput) {
    EXPECT_EQ(run("fit Gauss - --start 0,450,10,4 <e.csv").status, 0);
}

TEST_F(Command, EvaluatesPoints) {
    const Outcome table = run("eval Gauss --params 0,-450,8,4 --x -450 -460 --derivatives");
    EXPECT_EQ(std::ranges::count(table.out, '\n'), 3) << table.out;
    const auto json = nlohmann::json::parse(run("eval Gauss --params 0,450,8,4 --x 450,1e9 --json").out);
    EXPECT_NEAR(json["points"][0]["y"].get<double>(), 4 / (8 * std::sqrt(M_PI / 2)), 1e-12);
    EXPECT_EQ(json["points"][1]["y"], 0.0);
    const Outcome missing = run("eval Gauss --params 0,1,0,1 --x 1");
    EXPECT_NE(missing.out.find("missing"), std::string::npos);
    EXPECT_TRUE(
        nlohmann::json::parse(run("eval Gauss --params 0,1,0,1 --x 1 --json").out)["points"][0]["y"].is_null());
}

TEST_F(Command, ListsTheCatalogue) {
    EXPECT_EQ(nlohmann::json::parse(run("list --json").out).size(), ansatz::pages().size());
    EXPECT_EQ(nlohmann::json::parse(run("list 'LORENT?' --json").out)[0]["name"], "Lorentz");
    EXPECT_EQ(nlohmann::json::parse(run("show lorentz --json").out)["block"][1]["symbol"], "w");
}

TEST_F(Command, DrawsWithGnuplotOrSaysThatItIsMissing) {
    const std::string fit = "fit Gauss e.csv --start 0,450,10,4 --plot fit.";
    EXPECT_NE(run(fit + "svg", "PATH=/nowhere").err.find("needs gnuplot"), std::string::npos);
    if (std::system("command -v gnuplot >/dev/null") != 0) GTEST_SKIP() << "gnuplot is not installed";
    ASSERT_EQ(run(fit + "svg").status, 0);
    EXPECT_NE(read("fit.svg").find("transmittance"), std::string::npos);
    ASSERT_EQ(run(fit + "png").status, 0);
    EXPECT_TRUE(read("fit.png").starts_with("\x89PNG"));
}

TEST_F(Command, DrawsEveryShape) {
    if (std::system("command -v gnuplot >/dev/null") != 0) GTEST_SKIP() << "gnuplot is not installed";
    const struct {
        const char* arguments;
        std::vector<const char*> words;
    } cases[] = {
        {"fit Plane surface.txt --start 0,0,0",
         {"Fit of Plane", "east", "north", "height above the fit", "residuals"}},
        {"fit Circle circle.txt --start 3,1,1", {"Fit of Circle", "east", "north", "residual", "data point"}},
        {"fit LineExp pair.txt --start 1,1,500,900,-1", {"LineExp, y1", "LineExp, y2", "time", "warm", "loud"}},
        {"fit HillBurk own.txt --start 8,1,2,1", {"HillBurk, y2", "dose", "depth", "yield"}},
    };
    for (const auto& [arguments, words] : cases) {
        const Outcome outcome = run(std::string(arguments) + " --plot shape.svg");
        EXPECT_EQ(outcome.status, 0) << arguments << outcome.err;
        EXPECT_EQ(outcome.err, "") << arguments; // gnuplot has nothing to complain about
        const std::string picture = read("shape.svg");
        for (const char* word : words) EXPECT_NE(picture.find(word), std::string::npos) << arguments << word;
        fs::remove(directory_ / "shape.svg");
    }
}

TEST_F(Command, TellsOfColumnsThatScatterDifferently) {
    const std::string fit = "fit LineExp pair.txt --start 1,1,500,900,-1";
    // The scatter of the one is that of the other a thousandfold, but for what the parameters take up.
    for (const char* weights : {"", " --weights even"}) {
        const std::string out = run(fit + weights).out;
        const auto remark = out.find("loud scatters ");
        ASSERT_NE(remark, std::string::npos) << out;
        EXPECT_NEAR(std::stod(out.substr(remark + 14)), 1000, 200) << weights;
        EXPECT_NE(out.find(" times as much as warm"), std::string::npos) << out;
    }
    // What is but rounding of the data is no scatter.
    std::ostringstream rounded;
    rounded.precision(17);
    for (int i = 0; i < 12; ++i) {
        const double t = 0.3 * i, wave = 1e-9 * std::cos(7.0 * i);
        rounded << t << " " << 1 + 2 * t + wave << " " << 500 + 900 * std::exp(-t) + 100 * wave << "\n";
    }
    write("rounded.txt", rounded.str());
    EXPECT_EQ(run("fit LineExp rounded.txt --start 1,1,500,900,-1").out.find("scatters"), std::string::npos);
    write("equal.csv", "x,u,v\n0,1,9.01\n1,2.01,5\n2,2.99,3.01\n3,4.01,2\n4,5,1.5\n");
    EXPECT_EQ(run("fit LineExp equal.csv --start 1,1,1,8,-1.5").out.find("scatters"), std::string::npos);
}
