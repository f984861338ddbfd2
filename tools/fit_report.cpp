#include "fit_report.hpp"

#include <ansatz/host/text.hpp>

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <cmath>

namespace ansatz::tools {
namespace {

std::vector<std::string> symbols(const host::Fit& fit, const std::vector<int>& indices) {
    std::vector<std::string> list;
    list.reserve(indices.size());
    for (const int k : indices) list.push_back(fit.parameters[static_cast<std::size_t>(k)].slot.symbol);
    return list;
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
        "errors\nmislead. Give --errors or --weights for each of the two columns.",
        host::printable(columns[first ? 0 : 1]), high / low, host::printable(columns[first ? 1 : 0]));
}

std::optional<double> finite(double limit) {
    return std::isfinite(limit) ? std::optional(limit) : std::nullopt;
}

template <class T> Json optional_json(const std::optional<T>& value) {
    return value ? Json(*value) : Json();
}

FitReport::Parameter reported(const host::Estimate& estimate, const host::Start& start) {
    return {.number = estimate.slot.number,
            .symbol = estimate.slot.symbol,
            .meaning = estimate.slot.meaning,
            .start = estimate.start,
            .value = estimate.value,
            .standard_error = estimate.error,
            .fixed = estimate.fixed,
            .bound = estimate.at_lower   ? "lower"
                     : estimate.at_upper ? "upper"
                                         : "",
            .lower = finite(start.lower),
            .upper = finite(start.upper)};
}

std::string parameter_table(const std::vector<FitReport::Parameter>& parameters) {
    TextTable table({{"", Align::left},
                     {"symbol", Align::left},
                     {"value", Align::right},
                     {"standard error", Align::right},
                     {"", Align::left}});
    for (const FitReport::Parameter& p : parameters) {
        std::string note = p.meaning;
        if (p.fixed || !p.bound.empty()) {
            note += fmt::format("{}({})", note.empty() ? "" : " ",
                                p.fixed ? "fixed" : fmt::format("at its {} bound", p.bound));
        }
        table.add({p.number, p.symbol == p.number ? "" : p.symbol, fmt::format("{:.10g}", p.value),
                   p.standard_error ? fmt::format("{:.8g}", *p.standard_error) : "-", note});
    }
    return table.text();
}

std::string statistics_text(const std::vector<FitReport::Statistic>& statistics) {
    std::string text;
    for (const auto& [key, label, value] : statistics) {
        if (label.empty()) continue;
        const std::string number = value.is_null()             ? "-"
                                   : value.is_number_integer() ? value.dump()
                                                               : fmt::format("{:.10g}", value.get<double>());
        text += fmt::format("{:<25}{}\n", label, number);
    }
    return text;
}

/// The lower triangle.
std::string correlation_table(const std::vector<std::string>& symbols, const Eigen::MatrixXd& correlation) {
    std::vector<std::pair<std::string, Align>> header = {{"", Align::left}};
    for (const std::string& symbol : symbols) header.emplace_back(symbol, Align::right);
    TextTable table(header);
    for (Eigen::Index i = 0; i < correlation.rows(); ++i) {
        std::vector<std::string> row = {symbols[static_cast<std::size_t>(i)]};
        for (Eigen::Index j = 0; j < correlation.cols(); ++j)
            row.push_back(j > i ? "" : fmt::format("{:.5f}", correlation(i, j)));
        table.add(std::move(row));
    }
    return table.text();
}

Json parameters_json(const std::vector<FitReport::Parameter>& parameters) {
    Json list = Json::array();
    for (const FitReport::Parameter& p : parameters) {
        list.push_back({{"number", p.number},
                        {"symbol", p.symbol},
                        {"meaning", p.meaning},
                        {"start", p.start},
                        {"value", p.value},
                        {"standard_error", optional_json(p.standard_error)},
                        {"fixed", p.fixed},
                        {"at_bound", p.bound.empty() ? Json() : Json(p.bound)},
                        {"lower", optional_json(p.lower)},
                        {"upper", optional_json(p.upper)}});
    }
    return list;
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

} // namespace

FitReport report_of(const host::Model& model, const host::Data& data, const std::vector<host::Start>& start,
                    const host::Fit& fit, const std::string& source, const ColumnNames& columns) {
    FitReport report{
        .model = model,
        .source = source,
        .columns = columns,
        .points = fit.points,
        .converged = fit.converged,
        .termination = fit.termination,
        .iterations = fit.iterations,
        .evaluations = fit.evaluations,
        .seconds = fit.seconds,
        .numerical = fit.numerical,
        .relative_offset = fit.relative_offset,
        .parameters = {},
        .statistics = {{"residual_sum_of_squares", "Residual sum of squares", fit.rss},
                       {"r_squared", "R squared", optional_json(fit.r_squared)},
                       {"reduced_chi_square", "Reduced chi-square", optional_json(fit.reduced_chi_square)},
                       {"free_parameters", "", fit.free},
                       {"degrees_of_freedom", "Degrees of freedom", fit.degrees_of_freedom}},
        .undetermined = symbols(fit, fit.undetermined),
        .varied = symbols(fit, fit.varied),
        .covariance = fit.covariance,
        .correlation = fit.correlation,
        .remark = scatter_remark(data, fit, columns.y)};
    for (std::size_t k = 0; k < start.size(); ++k)
        report.parameters.push_back(reported(fit.parameters[k], start[k]));
    return report;
}

std::string to_text(const FitReport& report) {
    std::string text = report.model.name();
    if (report.model.page()) text += fmt::format(":  {}", report.model.page()->formula);
    text += fmt::format("\n{} points from {}; {} after {} iterations{}\n\n", report.points,
                        host::printable(report.source), report.termination, report.iterations,
                        report.numerical ? ", derivatives by differences" : "");
    text += parameter_table(report.parameters) + "\n";
    if (!report.undetermined.empty()) {
        text += fmt::format("No standard errors: the covariance is singular, the data do not determine {}.\n\n",
                            fmt::join(report.undetermined, ", "));
    }
    if (!report.remark.empty()) text += report.remark + "\n\n";
    text += statistics_text(report.statistics);
    if (report.correlation.cols() >= 2)
        text += "\nCorrelations\n" + correlation_table(report.varied, report.correlation);
    return text;
}

Json to_json(const FitReport& report) {
    Json json = {{"model", describe_json(report.model)},
                 {"data",
                  {{"source", report.source},
                   {"points", report.points},
                   {"x", report.columns.x},
                   {"y", report.columns.y},
                   {"weights", report.columns.weights},
                   {"errors", report.columns.errors}}},
                 {"converged", report.converged},
                 {"termination", report.termination},
                 {"iterations", report.iterations},
                 {"evaluations", report.evaluations},
                 {"seconds", report.seconds},
                 {"numerical_derivatives", report.numerical},
                 {"relative_offset", report.relative_offset},
                 {"parameters", parameters_json(report.parameters)}};
    for (const auto& [key, label, value] : report.statistics) json[key] = value;
    json["undetermined"] = report.undetermined;
    json["varied"] = report.varied;
    json["covariance"] = matrix_json(report.covariance);
    json["correlation"] = matrix_json(report.correlation);
    return json;
}

} // namespace ansatz::tools
