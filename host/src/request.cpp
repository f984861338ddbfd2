#include "request.hpp"

#include <fmt/format.h>

#include <cmath>

namespace ansatz::host {
namespace {

void require_columns(const Model& model, const Data& data) {
    if (data.x.cols() != model.inputs()) {
        throw Error(
            fmt::format("{} needs {} x column(s), {} given", model.name(), model.inputs(), data.x.cols()));
    }
    if (model.implicit()) {
        if (data.y.size() > 0) {
            throw Error(
                fmt::format("{} is implicit: its value is fitted to zero and takes no y column", model.name()));
        }
    } else if (data.y.cols() != model.outputs() || data.y.rows() != data.x.rows()) {
        throw Error(
            fmt::format("{} needs {} y column(s), {} given", model.name(), model.outputs(), data.y.cols()));
    }
}

void require_weights(const Model& model, const Data& data) {
    if (data.weights.size() == 0) return;
    if (data.weights.rows() != data.x.rows() ||
        (data.weights.cols() != 1 && data.weights.cols() != model.outputs())) {
        throw Error("weights need one value per data point");
    }
    if (!(data.weights.array() >= 0).all()) throw Error("weights must not be negative");
}

void require_start(const Start& start, const std::string& symbol) {
    const auto& [value, fixed, lower, upper] = start;
    if (!std::isfinite(value)) throw Error(fmt::format("the start value of {} is not a finite number", symbol));
    if (fixed) return;
    if (!(lower < upper)) {
        throw Error(fmt::format("the bounds of {}, {} and {}, leave no room", symbol, lower, upper));
    }
    if (value < lower || value > upper) {
        throw Error(fmt::format("the start value {} of {} is outside its bounds", value, symbol));
    }
}

} // namespace

void require_consistent(const Model& model, const Data& data, const std::vector<Start>& start) {
    const int n = static_cast<int>(start.size());
    model.require_size(n);
    require_columns(model, data);
    require_weights(model, data);
    const auto slots = model.slots(n);
    for (std::size_t k = 0; k < start.size(); ++k) require_start(start[k], slots[k].symbol);
}

void require_determinable(int data_values, int free) {
    if (free == 0) throw Error("every parameter is fixed: there is nothing to fit");
    if (data_values < free) {
        throw Error(fmt::format("{} data value(s) cannot determine {} free parameters", data_values, free));
    }
}

} // namespace ansatz::host
