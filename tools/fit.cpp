// ansatz fit: fits a model to a table.

#include "arguments.hpp"
#include "fit_report.hpp"
#include "options.hpp"
#include "plot.hpp"

#include <ansatz/host/fit.hpp>
#include <ansatz/host/table.hpp>
#include <ansatz/host/text.hpp>

#include <fmt/format.h>
#include <fmt/ranges.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>

namespace ansatz::tools {
namespace {

using host::Error;

constexpr const char* footer = R"(
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

struct Options {
    std::string model, data;
    std::vector<std::string> start, fix, free, lower, upper, x, y, weights, errors;
    std::string plot;
    int skip = 0, max_iterations = 1000;
    bool known_errors = false, numerical = false, progress = false, json = false;
};

/// The columns of a table that a fit works with.
struct Columns {
    std::vector<int> x, y, weights, errors;
};

std::vector<int> chosen(const host::Table& table, const std::vector<std::string>& names) {
    std::vector<int> result;
    for (const std::string& name : split_words(names)) result.push_back(table.column(name));
    return result;
}

/// Columns not named are the first ones that no other option names: x, then y.
Columns choose_columns(const host::Model& model, const host::Table& table, const Options& options) {
    Columns columns{chosen(table, options.x), chosen(table, options.y), chosen(table, options.weights),
                    chosen(table, options.errors)};
    std::vector<int> taken;
    for (const auto* list : {&columns.x, &columns.y, &columns.weights, &columns.errors}) {
        taken.insert(taken.end(), list->begin(), list->end());
    }
    const auto complete = [&](std::vector<int>& list, int needed, std::string_view what) {
        for (int c = 0; list.empty() || static_cast<int>(list.size()) < needed; ++c) {
            if (needed == 0) return;
            if (c >= table.columns()) {
                throw Error(fmt::format("{}: {} needs {} {} column(s), and there are {} columns in all",
                                        options.data, model.name(), needed, what, table.columns()));
            }
            if (std::ranges::find(taken, c) != taken.end()) continue;
            list.push_back(c);
            taken.push_back(c);
        }
    };
    const int outputs = model.implicit() ? 0 : model.outputs();
    for (const auto& [list, needed, option] :
         {std::tuple{&columns.x, model.inputs(), "--x"}, std::tuple{&columns.y, outputs, "--y"}}) {
        if (!list->empty() && static_cast<int>(list->size()) != needed) {
            throw Error(
                fmt::format("{}: {} needs {} column(s), {} given", option, model.name(), needed, list->size()));
        }
    }
    complete(columns.x, model.inputs(), "x");
    complete(columns.y, outputs, "y");
    for (const auto& [list, option] :
         {std::pair{&columns.weights, "--weights"}, std::pair{&columns.errors, "--errors"}}) {
        if (list->size() > 1 && static_cast<int>(list->size()) != outputs) {
            throw Error(fmt::format("{}: give one column, or one per y column", option));
        }
    }
    return columns;
}

Eigen::MatrixXd read(const host::Table& table, const std::vector<int>& columns) {
    Eigen::MatrixXd result(columns.empty() ? 0 : table.rows(), std::ssize(columns));
    for (std::size_t j = 0; j < columns.size(); ++j) {
        result.col(static_cast<Eigen::Index>(j)) = table.numbers(columns[j]);
    }
    return result;
}

std::vector<std::string> names(const host::Table& table, const std::vector<int>& columns) {
    std::vector<std::string> result;
    result.reserve(columns.size());
    for (const int column : columns) result.push_back(table.name(column));
    return result;
}

/// Start values, fixed parameters and bounds from the arguments.
std::vector<host::Start> read_starts(const host::Model& model, const Options& options) {
    const auto fixed = parse_items(options.fix, "--fix");
    const auto given = parse_items(options.start, "--start");
    auto start = host::starts(model, parameter_values(model, given, fixed, "--start"));
    const auto slots = model.slots(static_cast<int>(start.size()));
    const auto at = [&](const Item& item, std::string_view option, bool needs_value) -> host::Start& {
        if (item.name.empty() || (needs_value && !item.value)) {
            throw Error(fmt::format("{}: give {}", option, needs_value ? "NAME=NUMBER" : "a parameter's name"));
        }
        return start[static_cast<std::size_t>(host::Model::slot_index(slots, item.name))];
    };
    for (const Item& item : fixed) at(item, "--fix", false).fixed = true;
    for (const Item& item : parse_items(options.free, "--free")) at(item, "--free", false).fixed = false;
    for (const Item& item : parse_items(options.lower, "--lower"))
        at(item, "--lower", true).lower = *item.value;
    for (const Item& item : parse_items(options.upper, "--upper"))
        at(item, "--upper", true).upper = *item.value;
    return start;
}

/// Tells of a long fit on standard error, from its first full second on.
std::function<bool(const host::Progress&)> progress_line(bool wanted) {
    const bool terminal = isatty(STDERR_FILENO) != 0;
    if (!wanted && !terminal) return {};
    return [terminal, last = 0.0](const host::Progress& progress) mutable {
        if (progress.seconds - last < (last == 0 ? 1.0 : 0.25)) return true;
        last = progress.seconds;
        fmt::print(stderr, "{}ansatz: iteration {}, sum of squares {:.10g}{}", terminal ? "\r\x1b[K" : "",
                   progress.iteration, progress.rss, terminal ? "" : "\n");
        return true;
    };
}

int fit(const Options& options) {
    const host::Model model = host::Model::find(options.model);
    if (!options.plot.empty()) require_plottable(model, options.plot);
    if (!options.weights.empty() && !options.errors.empty()) throw Error("give either --weights or --errors");
    if (options.known_errors && options.errors.empty()) throw Error("--known-errors goes with --errors");
    const std::vector<host::Start> start = read_starts(model, options);

    const host::Table table = host::Table::load(options.data, options.skip);
    const std::string source = options.data == "-" ? "standard input" : options.data;
    const Columns columns = choose_columns(model, table, options);
    host::Data data{read(table, columns.x), read(table, columns.y), read(table, columns.weights)};
    const Eigen::MatrixXd deviations = read(table, columns.errors);
    if (deviations.size() > 0) {
        if (!(deviations.array() > 0).all()) throw Error("--errors: standard deviations must be positive");
        data.weights = deviations.cwiseAbs2().cwiseInverse();
    }

    host::FitOptions settings;
    settings.max_iterations = options.max_iterations;
    settings.known_errors = options.known_errors;
    settings.derivatives = options.numerical ? host::Derivatives::numerical : host::Derivatives::best;
    settings.progress = progress_line(options.progress);
    const host::Fit result = host::fit(model, data, start, settings);
    if (isatty(STDERR_FILENO) != 0 && result.seconds > 1) fmt::print(stderr, "\r\x1b[K");

    const ColumnNames named{names(table, columns.x), names(table, columns.y), names(table, columns.weights),
                            names(table, columns.errors)};
    const FitReport report = report_of(model, data, start, result, source, named);
    fmt::print("{}", options.json ? json_text(to_json(report)) + "\n" : to_text(report));
    std::fflush(stdout);
    if (!options.plot.empty()) plot({model, data, result, deviations, {named.x, named.y}, options.plot});
    if (result.converged) return done;
    fmt::print(stderr, "ansatz: the fit did not converge: {}\n", result.termination);
    return failed;
}

} // namespace

void add_fit(CLI::App& app, Command& chosen) {
    auto& command = *app.add_subcommand("fit", "Fit a model to data.");
    const auto options = std::make_shared<Options>();
    command.footer(footer);
    command.add_option("MODEL", options->model, "The model's name")->required();
    command.add_option("DATA", options->data, "The file of data, or - for standard input")->required();
    const auto lists = [&](const char* name, std::vector<std::string>& values, const char* type,
                           const char* help) { return add_lists(command, name, values, type, help); };
    lists("--start", options->start, "LIST", "Start values: LIST or NAME=VALUE,...")->required();
    lists("--fix", options->fix, "NAME[=VALUE]", "Hold a parameter at a value, or at its start value");
    lists("--free", options->free, "NAME", "Estimate a reference position, fixed otherwise");
    lists("--lower", options->lower, "NAME=VALUE", "Lower bound of a parameter");
    lists("--upper", options->upper, "NAME=VALUE", "Upper bound of a parameter");
    lists("--x", options->x, "COLUMN[,..]", "Columns of the independent variables");
    lists("--y", options->y, "COLUMN[,..]", "Columns of the dependent variables");
    lists("--weights", options->weights, "COLUMN", "Column of weights");
    lists("--errors", options->errors, "COLUMN", "Column of standard deviations: weights are 1/sd^2");
    command.add_option("--skip", options->skip, "Skip so many lines of text above the table")
        ->check(CLI::NonNegativeNumber)
        ->type_name("NUMBER");
    command.add_flag("--known-errors", options->known_errors,
                     "Take --errors as known: do not scale standard errors by the scatter found");
    command.add_flag("--numerical", options->numerical, "Take derivatives by differences");
    command.add_option("--max-iterations", options->max_iterations, "Give up after so many")
        ->capture_default_str()
        ->check(CLI::NonNegativeNumber)
        ->type_name("NUMBER");
    command.add_option("--plot", options->plot, "Draw the fit, with gnuplot")->type_name("FILE.svg|png");
    command.add_flag("--progress", options->progress, "Tell of a long fit even without a terminal");
    command.add_flag("--json", options->json, "Write JSON");
    run_where_chosen<Options>(command, chosen, options, fit);
}

} // namespace ansatz::tools
