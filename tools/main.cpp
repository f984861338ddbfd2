// The command `ansatz`: looks models up, evaluates them and fits them to data.

#include "arguments.hpp"
#include "commands.hpp"

#include <ansatz/host/error.hpp>
#include <ansatz/host/text.hpp>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <algorithm>
#include <exception>
#include <functional>

namespace {

using namespace ansatz::tools;
using ansatz::host::printable;

constexpr const char* status_text = R"(
Exit status: 0 success, 1 a fit, an evaluation or a picture failed, 2 wrong usage or input.)";

constexpr const char* main_footer = R"(
Examples:
  ansatz list gauss
  ansatz show Gauss
  ansatz eval Gauss --params 0,450,8,4 --x 445,450,455
  ansatz fit Gauss eckerle4.csv --start 0,450,10,4 --fix P1=0 --plot fit.svg

`ansatz COMMAND --help` tells more about a command.)";

constexpr const char* list_footer = R"(
Examples:
  ansatz list               all models
  ansatz list gauss         names that contain "gauss", in any mix of upper and lower case
  ansatz list 'exp*'        names that begin with "exp"
  ansatz list --json        for scripts

The columns x and y give the numbers of independent and of dependent variables.)";

constexpr const char* show_footer = R"(
Example:
  ansatz show Lorentz)";

constexpr const char* eval_footer = R"(
Examples, with the parameters in their order, or each by its number or symbol:
  ansatz eval Gauss --params 0,450,8,4 --x 445,450,455
  ansatz eval Gauss --params y0=0,xc=450,w=8,A=4 --x 450 --derivatives
Two peaks, as three more parameters:
  ansatz eval Gauss --params 0,440,8,4,460,8,2 --x 440 450 460
Models of two variables take one pair per point:
  ansatz eval Plane --params 1,2,3 --x 0,0 0,1 1,1

A point at which the model fails is shown as "missing", and the exit status is 1.)";

constexpr const char* fit_footer = R"(
DATA is a table with commas, semicolons, tabs or blanks between the columns, with or without a header; text after
# is a comment, and --skip passes over text above. The first columns are x, the next y, unless --x and --y name
others, by header or by number from 1.

Parameters are addressed by number (P3) or by the symbol that `ansatz show MODEL` gives (w). The number of start
values decides the number of peaks of a model with peaks.

Examples:
  ansatz fit Gauss eckerle4.csv --start 0,450,10,4 --fix P1=0
  ansatz fit Gauss eckerle4.csv --start xc=450,w=10,A=4 --fix y0=0 --lower w=0 --plot fit.png
  ansatz fit Gauss two.csv --start 0,440,8,4,460,8,2 --x time --y signal --errors sd --json
  ansatz fit Gauss Eckerle4.dat --skip 60 --x 2 --y 1 --start 0,450,10,4
  ansatz fit Gauss2D map.csv --x east,north --y height --start 0,5,1,1,2,1 --plot map.png
  ansatz fit Circle points.csv --start 0,0,1       (an implicit curve has no y column)
  zcat data.gz | ansatz fit Lorentz - --start -1,2,0.5,3

Exit status: 0 success, 1 the fit or the picture failed, or the fit did not converge, 2 wrong usage or input.)";

int run(const std::vector<std::string>& arguments) {
    CLI::App app{"Ansatz: model functions for curve and surface fitting.", "ansatz"};
    app.set_version_flag("--version", std::string("ansatz ") + ANSATZ_VERSION);
    app.require_subcommand(1);
    app.footer(std::string(main_footer) + status_text);
    app.get_formatter()->column_width(34);
    std::function<int()> command;
    const auto list_option = [](CLI::App* to, const std::string& name, std::vector<std::string>& values,
                                const std::string& help) {
        return to->add_option(name, values, help)
            ->expected(1)
            ->allow_extra_args(false)
            ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
    };

    ListOptions list_options;
    auto* list_command = app.add_subcommand("list", "List the models, by family.")->footer(list_footer);
    list_command->add_option("PATTERN", list_options.pattern, "Part of a name, or a pattern with * and ?");
    list_command->add_flag("--json", list_options.json, "Write JSON");
    list_command->callback([&] { command = [&] { return list(list_options); }; });

    ShowOptions show_options;
    auto* show_command =
        app.add_subcommand("show", "Show a model's formula, parameters and limits.")->footer(show_footer);
    show_command->add_option("MODEL", show_options.model, "The model's name")->required();
    show_command->add_flag("--json", show_options.json, "Write JSON");
    show_command->callback([&] { command = [&] { return show(show_options); }; });

    EvalOptions eval_options;
    auto* eval_command = app.add_subcommand("eval", "Evaluate a model at given points.")->footer(eval_footer);
    eval_command->add_option("MODEL", eval_options.model, "The model's name")->required();
    list_option(eval_command, "--params", eval_options.params, "Parameter values: LIST or NAME=VALUE,...")
        ->required()
        ->type_name("LIST");
    list_option(eval_command, "--x", eval_options.x, "Points: LIST, or X1,X2 per point of a surface")
        ->required()
        ->type_name("LIST");
    eval_command->add_flag("--derivatives", eval_options.derivatives, "Add the derivatives by every parameter");
    eval_command->add_flag("--json", eval_options.json, "Write JSON");
    eval_command->callback([&] { command = [&] { return eval(eval_options); }; });

    FitCommandOptions fit_options;
    auto* fit_command = app.add_subcommand("fit", "Fit a model to data.")->footer(fit_footer);
    fit_command->add_option("MODEL", fit_options.model, "The model's name")->required();
    fit_command->add_option("DATA", fit_options.data, "The file of data, or - for standard input")->required();
    list_option(fit_command, "--start", fit_options.start, "Start values: LIST or NAME=VALUE,...")
        ->required()
        ->type_name("LIST");
    const struct {
        const char* name;
        std::vector<std::string>& values;
        const char* type;
        const char* help;
    } lists[] = {
        {"--fix", fit_options.fix, "NAME[=VALUE]", "Hold a parameter at a value, or at its start value"},
        {"--free", fit_options.free, "NAME", "Estimate a reference position, fixed otherwise"},
        {"--lower", fit_options.lower, "NAME=VALUE", "Lower bound of a parameter"},
        {"--upper", fit_options.upper, "NAME=VALUE", "Upper bound of a parameter"},
        {"--x", fit_options.x, "COLUMN[,..]", "Columns of the independent variables"},
        {"--y", fit_options.y, "COLUMN[,..]", "Columns of the dependent variables"},
        {"--weights", fit_options.weights, "COLUMN", "Column of weights"},
        {"--errors", fit_options.errors, "COLUMN", "Column of standard deviations: weights are 1/sd^2"},
    };
    for (const auto& [name, values, type, help] : lists) {
        list_option(fit_command, name, values, help)->type_name(type);
    }
    fit_command->add_option("--skip", fit_options.skip, "Skip so many lines of text above the table")
        ->check(CLI::NonNegativeNumber)
        ->type_name("NUMBER");
    fit_command->add_flag("--known-errors", fit_options.known_errors,
                          "Take --errors as known: do not scale standard errors by the scatter found");
    fit_command->add_flag("--numerical", fit_options.numerical, "Take derivatives by differences");
    fit_command->add_option("--max-iterations", fit_options.max_iterations, "Give up after so many")
        ->capture_default_str()
        ->check(CLI::NonNegativeNumber)
        ->type_name("NUMBER");
    fit_command->add_option("--plot", fit_options.plot, "Draw the fit, with gnuplot")
        ->type_name("FILE.svg|png");
    fit_command->add_flag("--progress", fit_options.progress, "Tell of a long fit even without a terminal");
    fit_command->add_flag("--json", fit_options.json, "Write JSON");
    fit_command->callback([&] { command = [&] { return ansatz::tools::fit(fit_options); }; });

    if (!arguments.empty() && !arguments[0].starts_with("-") &&
        std::ranges::none_of(app.get_subcommands({}),
                             [&](const CLI::App* c) { return c->get_name() == arguments[0]; })) {
        fmt::print(stderr, "ansatz: unknown command '{}'; the commands are list, show, eval and fit\n",
                   printable(arguments[0]));
        return usage;
    }
    try {
        std::vector<std::string> reversed = attach_lists(arguments); // as the parser wants them
        std::ranges::reverse(reversed);
        app.parse(std::move(reversed));
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() == 0) return app.exit(error); // help and version
        const auto chosen = app.get_subcommands();
        const std::string name = chosen.empty() ? "ansatz" : "ansatz " + chosen.front()->get_name();
        fmt::print(stderr, "ansatz: {}; see {} --help\n", printable(error.what()), name);
        return usage;
    }
    return command();
}

} // namespace

int main(int argc, char** argv) {
    try {
        return run({argv + 1, argv + argc});
    } catch (const ansatz::host::FitError& error) {
        fmt::print(stderr, "ansatz: {}\n", error.what());
        return failed;
    } catch (const Failure& error) {
        fmt::print(stderr, "ansatz: {}\n", error.what());
        return failed;
    } catch (const ansatz::host::Error& error) {
        fmt::print(stderr, "ansatz: {}\n", error.what());
    } catch (const std::exception& error) {
        fmt::print(stderr, "ansatz: unexpected failure: {}\n", printable(error.what()));
    }
    return usage;
}
