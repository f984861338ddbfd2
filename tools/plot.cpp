// Which picture suits a model.

#include "plot.hpp"

#include "gnuplot.hpp"

#include <fmt/format.h>

namespace ansatz::tools {
namespace {

using Drawing = void (*)(const Picture&);

/// Null where none suits.
Drawing drawing_of(const host::Model& model) {
    if (model.implicit()) return model.inputs() == 2 ? plot_implicit : nullptr;
    if (model.inputs() == 1) return plot_curves;
    if (model.inputs() != 2) return nullptr;
    if (model.outputs() == 1) return plot_surface;
    return model.page() && model.page()->paired ? plot_curves : nullptr;
}

} // namespace

void require_plottable(const host::Model& model, const std::string& file) {
    if (!drawing_of(model)) {
        throw host::Error(fmt::format("--plot: {} has {} x column{}, and there is no picture for that",
                                      model.name(), model.inputs(), model.inputs() == 1 ? "" : "s"));
    }
    gnuplot::require_writable(file);
}

void plot(const Picture& picture) {
    drawing_of(picture.model)(picture);
}

} // namespace ansatz::tools
