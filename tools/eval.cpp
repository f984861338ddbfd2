// ansatz eval: a model's outputs at given points.

#include "arguments.hpp"
#include "options.hpp"
#include "report.hpp"

#include <ansatz/host/evaluate.hpp>

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

namespace ansatz::tools {
namespace {

constexpr const char* footer = R"(
Examples, with the parameters in their order, or each by its number or symbol:
  ansatz eval Gauss --params 0,450,8,4 --x 445,450,455
  ansatz eval Gauss --params y0=0,xc=450,w=8,A=4 --x 450 --derivatives
Two peaks, as three more parameters:
  ansatz eval Gauss --params 0,440,8,4,460,8,2 --x 440 450 460
Models of two variables take one pair per point:
  ansatz eval Plane --params 1,2,3 --x 0,0 0,1 1,1

A point at which the model fails is shown as "missing", and the exit status is 1.)";

struct Options {
    std::string model;
    std::vector<std::string> params, x;
    bool derivatives = false, json = false;
};

std::string indexed(std::string_view name, Eigen::Index index, Eigen::Index count) {
    return count == 1 ? std::string(name) : fmt::format("{}{}", name, index + 1);
}

int eval(const Options& options) {
    const host::Model model = host::Model::find(options.model);
    const auto values = parameter_values(model, parse_items(options.params, "--params"), {}, "--params");
    const Eigen::MatrixXd x = parse_points(model, options.x);
    const Eigen::VectorXd P = Eigen::Map<const Eigen::VectorXd>(values.data(), std::ssize(values));
    const host::Evaluation result = host::evaluate(model, P, x, options.derivatives);
    const auto slots = model.slots(static_cast<int>(values.size()));

    // All columns in one matrix, whatever they are.
    std::vector<std::string> names;
    std::vector<Eigen::VectorXd> columns;
    const auto add = [&](std::string name, const Eigen::VectorXd& column) {
        names.push_back(std::move(name));
        columns.push_back(column);
    };
    for (Eigen::Index i = 0; i < x.cols(); ++i) add(indexed("x", i, x.cols()), x.col(i));
    for (Eigen::Index d = 0; d < result.y.cols(); ++d) add(indexed("y", d, result.y.cols()), result.y.col(d));
    if (result.components.cols() > 1) {
        for (Eigen::Index i = 0; i < result.components.cols(); ++i) {
            add(fmt::format("{}{}", model.page()->block_name, i + model.page()->first_block),
                result.components.col(i));
        }
    }
    for (std::size_t d = 0; d < result.jacobian.size(); ++d) {
        for (std::size_t k = 0; k < slots.size(); ++k) {
            add(fmt::format("d{}/d{}", indexed("y", static_cast<Eigen::Index>(d), result.y.cols()),
                            slots[k].symbol),
                result.jacobian[d].col(static_cast<Eigen::Index>(k)));
        }
    }

    if (options.json) {
        Json points = Json::array();
        for (Eigen::Index i = 0; i < x.rows(); ++i) {
            Json point = Json::object();
            for (std::size_t j = 0; j < names.size(); ++j) point[names[j]] = columns[j][i];
            point["ok"] = result.ok[static_cast<std::size_t>(i)] != 0;
            points.push_back(std::move(point));
        }
        Json parameters = Json::object();
        for (std::size_t k = 0; k < slots.size(); ++k) parameters[slots[k].symbol] = values[k];
        fmt::print("{}\n",
                   json_text({{"model", model.name()}, {"parameters", parameters}, {"points", points}}));
    } else {
        std::vector<std::pair<std::string, Align>> header;
        for (const std::string& name : names) header.emplace_back(name, Align::right);
        TextTable table(header);
        for (Eigen::Index i = 0; i < x.rows(); ++i) {
            std::vector<std::string> row;
            for (const Eigen::VectorXd& column : columns) {
                row.push_back(std::isnan(column[i]) ? "missing" : fmt::format("{:.12g}", column[i]));
            }
            table.add(std::move(row));
        }
        fmt::print("{}", table.text(""));
    }
    const auto failures = std::ranges::count(result.ok, char{0});
    if (failures == 0) return done;
    std::fflush(stdout);
    const auto without_value = result.y.col(0).array().isNaN().count();
    if (without_value > 0) {
        fmt::print(stderr, "ansatz: {} fails at {} of {} points\n", model.name(), without_value, x.rows());
    }
    if (failures > without_value) {
        fmt::print(stderr, "ansatz: the derivatives of {} fail at {} of {} points where it has a value\n",
                   model.name(), failures - without_value, x.rows());
    }
    return failed;
}

} // namespace

void add_eval(CLI::App& app, Command& chosen) {
    auto& command = *app.add_subcommand("eval", "Evaluate a model at given points.");
    const auto options = std::make_shared<Options>();
    command.footer(footer);
    command.add_option("MODEL", options->model, "The model's name")->required();
    add_lists(command, "--params", options->params, "LIST", "Parameter values: LIST or NAME=VALUE,...")
        ->required();
    add_lists(command, "--x", options->x, "LIST", "Points: LIST, or X1,X2 per point of a surface")->required();
    command.add_flag("--derivatives", options->derivatives, "Add the derivatives by every parameter");
    command.add_flag("--json", options->json, "Write JSON");
    run_where_chosen<Options>(command, chosen, options, eval);
}

} // namespace ansatz::tools
