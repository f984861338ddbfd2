// The command `ansatz`: looks models up, evaluates them and fits them to data.

#include "arguments.hpp"
#include "commands.hpp"

#include <ansatz/ansatz.h>
#include <ansatz/host/error.hpp>
#include <ansatz/host/text.hpp>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <algorithm>
#include <exception>

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

int run(const std::vector<std::string>& arguments) {
    CLI::App app{"Ansatz: model functions for curve and surface fitting.", "ansatz"};
    app.set_version_flag("--version", std::string("ansatz ") + ANSATZ_VERSION);
    app.require_subcommand(1);
    app.footer(std::string(main_footer) + status_text);
    app.get_formatter()->column_width(34);
    Command command;
    add_list(app, command);
    add_show(app, command);
    add_eval(app, command);
    add_fit(app, command);

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
