// ansatz fit: fits a model to a table.

#include "arguments.hpp"
#include "commands.hpp"
#include "plot.hpp"
#include "report.hpp"

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
Columns choose_columns(const host::Model& model, const host::Table& table, const FitCommandOptions& options) {
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
std::vector<host::Start> read_starts(const host::Model& model, const FitCommandOptions& options) {
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

/// "y0, w, A": the symbols of the parameters of these indices.
std::string symbols(const host::Fit& fit, const std::vector<int>& indices) {
    std::vector<std::string> list;
    list.reserve(indices.size());
    for (const int k : indices) list.push_back(fit.parameters[static_cast<std::size_t>(k)].slot.symbol);
    return fmt::format("{}", fmt::join(list, ", "));
}

/// A remark where the data of two y columns scatter differently and nothing tells the fit so.
std::string scatter_remark(const host::Data& data, const host::Fit& fit,
                           const std::vector<std::string>& columns) {
    if (data.y.cols() != 2) return "";
    double scatter[2];
    for (Eigen::Index d = 0; d < 2; ++d) {
        const Eigen::VectorXd residuals = data.y.col(d) - fit.fitted.col(d);
        const bool weighted = data.weights.size() > 0;
        const Eigen::Index w = weighted ? std::min(d, data.weights.cols() - 1) : 0;
        scatter[d] =
            weighted ? residuals.cwiseProduct(data.weights.col(w).cwiseSqrt()).norm() : residuals.norm();
    }
    const bool first = scatter[0] > scatter[1];
    const double low = std::min(scatter[0], scatter[1]), high = std::max(scatter[0], scatter[1]);
    const bool exact = high <= 1e-9 * data.y.norm();
    if (exact || !(high > 3 * low)) return "";
    return fmt::format(
        "{} scatters {:.0f} times as much as {}, and the fit takes both as equally good: the standard "
        "errors\nmislead. Give --errors or --weights for each of the two columns.\n\n",
        host::printable(columns[first ? 0 : 1]), high / low, host::printable(columns[first ? 1 : 0]));
}

void print_text(const host::Model& model, const host::Fit& fit, const std::string& source,
                const std::string& scatter) {
    fmt::print("{}", model.name());
    if (model.page()) fmt::print(":  {}", model.page()->formula);
    fmt::print("\n{} points from {}; {} after {} iterations{}\n\n", fit.points, host::printable(source),
               fit.termination, fit.iterations, fit.numerical ? ", derivatives by differences" : "");

    TextTable table({{"", Align::left},
                     {"symbol", Align::left},
                     {"value", Align::right},
                     {"standard error", Align::right},
                     {"", Align::left}});
    for (const host::Estimate& p : fit.parameters) {
        std::string note = p.slot.meaning;
        const char* const remark = p.fixed ? "fixed" : p.at_lower ? "at its lower bound" : "at its upper bound";
        if (p.fixed || p.at_lower || p.at_upper) note += fmt::format("{}({})", note.empty() ? "" : " ", remark);
        table.add({p.slot.number, p.slot.symbol == p.slot.number ? "" : p.slot.symbol,
                   fmt::format("{:.10g}", p.value), p.error ? fmt::format("{:.8g}", *p.error) : "-", note});
    }
    fmt::print("{}\n", table.text());
    if (!fit.undetermined.empty()) {
        fmt::print("No standard errors: the covariance is singular, the data do not determine {}.\n\n",
                   symbols(fit, fit.undetermined));
    }

    fmt::print("{}", scatter);

    const auto number = [](std::optional<double> value, int digits) {
        return value ? fmt::format("{:.{}g}", *value, digits) : std::string("-");
    };
    fmt::print("Residual sum of squares  {}\nR squared                {}\nReduced chi-square       {}\n"
               "Degrees of freedom       {}\n",
               number(fit.rss, 10), number(fit.r_squared, 10), number(fit.reduced_chi_square, 10),
               fit.degrees_of_freedom);

    if (fit.varied.size() < 2 || fit.correlation.size() == 0) return;
    std::vector<std::pair<std::string, Align>> header = {{"", Align::left}};
    for (const int k : fit.varied) header.emplace_back(symbols(fit, {k}), Align::right);
    TextTable correlations(header);
    for (std::size_t i = 0; i < fit.varied.size(); ++i) {
        std::vector<std::string> row = {symbols(fit, {fit.varied[i]})};
        for (std::size_t j = 0; j < fit.varied.size(); ++j) {
            const double r = fit.correlation(static_cast<Eigen::Index>(i), static_cast<Eigen::Index>(j));
            row.push_back(j > i ? "" : fmt::format("{:.5f}", r));
        }
        correlations.add(std::move(row));
    }
    fmt::print("\nCorrelations\n{}", correlations.text());
}

template <class T> Json optional_json(const std::optional<T>& value) {
    return value ? Json(*value) : Json();
}

Json matrix_json(const Eigen::MatrixXd& matrix) {
    Json rows = Json::array();
    for (Eigen::Index i = 0; i < matrix.rows(); ++i) {
        Json row = Json::array();
        for (Eigen::Index j = 0; j < matrix.cols(); ++j) row.push_back(matrix(i, j));
        rows.push_back(std::move(row));
    }
    return rows;
}

Json fit_json(const host::Model& model, const host::Table& table, const Columns& columns,
              const std::vector<host::Start>& start, const host::Fit& fit, const std::string& source) {
    const auto symbol_list = [&](const std::vector<int>& indices) {
        Json list = Json::array();
        for (const int k : indices) list.push_back(symbols(fit, {k}));
        return list;
    };
    Json parameters = Json::array();
    for (std::size_t k = 0; k < start.size(); ++k) {
        const host::Estimate& p = fit.parameters[k];
        const auto bound = [](double limit) { return std::isfinite(limit) ? Json(limit) : Json(); };
        parameters.push_back({{"number", p.slot.number},
                              {"symbol", p.slot.symbol},
                              {"meaning", p.slot.meaning},
                              {"start", p.start},
                              {"value", p.value},
                              {"standard_error", optional_json(p.error)},
                              {"fixed", p.fixed},
                              {"at_bound", p.at_lower   ? Json("lower")
                                           : p.at_upper ? Json("upper")
                                                        : Json()},
                              {"lower", bound(start[k].lower)},
                              {"upper", bound(start[k].upper)}});
    }
    return {{"model", describe_json(model)},
            {"data",
             {{"source", source},
              {"points", fit.points},
              {"x", names(table, columns.x)},
              {"y", names(table, columns.y)},
              {"weights", names(table, columns.weights)},
              {"errors", names(table, columns.errors)}}},
            {"converged", fit.converged},
            {"termination", fit.termination},
            {"iterations", fit.iterations},
            {"evaluations", fit.evaluations},
            {"seconds", fit.seconds},
            {"numerical_derivatives", fit.numerical},
            {"relative_offset", fit.relative_offset},
            {"parameters", std::move(parameters)},
            {"residual_sum_of_squares", fit.rss},
            {"r_squared", optional_json(fit.r_squared)},
            {"reduced_chi_square", optional_json(fit.reduced_chi_square)},
            {"free_parameters", fit.free},
            {"degrees_of_freedom", fit.degrees_of_freedom},
            {"undetermined", symbol_list(fit.undetermined)},
            {"varied", symbol_list(fit.varied)},
            {"covariance", matrix_json(fit.covariance)},
            {"correlation", matrix_json(fit.correlation)}};
}

} // namespace

int fit(const FitCommandOptions& options) {
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

    if (options.json) {
        fmt::print("{}\n", json_text(fit_json(model, table, columns, start, result, source)));
    } else {
        print_text(model, result, source, scatter_remark(data, result, names(table, columns.y)));
    }
    std::fflush(stdout);
    if (!options.plot.empty()) {
        plot({model,
              data,
              result,
              deviations,
              {names(table, columns.x), names(table, columns.y)},
              options.plot});
    }
    if (result.converged) return done;
    fmt::print(stderr, "ansatz: the fit did not converge: {}\n", result.termination);
    return failed;
}

} // namespace ansatz::tools
