// The developer test command: lists the catalogue and evaluates one model with a report.

#include "catalogue/catalogue.h"
#include "protocol/host_arithmetic.h"

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstdarg>
#include <cstdio>

#ifdef _WIN32
#define WIN32_LEAN_AND_MEAN
#include <windows.h>
#endif

namespace ansatz {
namespace {

constexpr std::uint32_t line_message = 1024;

/// Where the lines of a report go.
struct Report {
    void* window;
    AnsatzTestCallback callback;

    [[gnu::format(printf, 2, 3)]] void line(const char* format, ...) const {
        char text[256];
        std::va_list arguments;
        va_start(arguments, format);
        // NOLINTNEXTLINE(clang-analyzer-valist.Uninitialized): va_start is just above
        std::vsnprintf(text, sizeof text, format, arguments);
        va_end(arguments);
        if (window) {
#ifdef _WIN32
            SendMessageA(static_cast<HWND>(window), line_message, 0, reinterpret_cast<LPARAM>(text));
#endif
        } else if (callback) {
            callback(line_message, text);
        }
    }
};

std::int32_t list(const Report& report) {
    for (const FunctionEntry& row : FunctionCatalogue) report.line("type %s", row.name);
    return catalogue_size;
}

constexpr int most_params = 255; // parameters beyond have no estimate

/// The central difference of y[1] by params[k], on copies of the inputs; NaN where the model fails.
double central_difference(const FunctionEntry& row, const AnsatzTestRequest& request, int n, int k) {
    double P[most_params + 1] = {}, x[4] = {}, y[most_params + 2], dyda[1];
    std::copy_n(request.params + 1, std::min(n, most_params), P + 1);
    std::copy_n(request.x + 1, row.nIndep, x + 1);
    const double at = P[k], step = 6e-6 * std::fmax(std::fabs(at), 1e-3);
    const auto value = [&](double shifted) {
        P[k] = shifted;
        errno = 0;
        return row.function(FF_VALUE, 0, request.nParams, 0, 0, P, 0, x, y, dyda) == 0 ? y[1] : std::nan("");
    };
    const double up = at + step, down = at - step;
    return (value(up) - value(down)) / (up - down);
}

std::int32_t evaluate(const Report& report, const AnsatzTestRequest& request) {
    const FunctionEntry* row = find_row(request.name);
    if (!row) {
        report.line("unknown function: %s", request.name);
        return -1;
    }
    const Status status = row->function(request.flags, 0, request.nParams, 0, 0, request.params, 0, request.x,
                                        request.y, request.dyda);
    const int indicator = errno;
    report.line("status %d", static_cast<int>(status));
    if (request.flags & (FF_VALUE | FF_DERIV)) {
        for (int k = 1; k <= row->nDep; ++k) report.line("y[%d] = %.17g", k, request.y[k]);
    }
    if (request.flags & FF_DERIV) {
        const int supplied = static_cast<std::int16_t>(request.nParams);
        const int n = supplied > 0 ? supplied : row->nParams;
        for (int k = 1; k <= std::min(n, most_params); ++k) {
            report.line("dyda[%d] = %.17g, central difference %.9g", k, request.dyda[k],
                        central_difference(*row, request, n, k));
        }
    }
    errno = indicator;
    return status;
}

} // namespace
} // namespace ansatz

std::int32_t ANSATZ_CALL FuncTest(std::uint32_t message, void* window, AnsatzTestCallback callback,
                                  void* data) {
    const ansatz::OwnArithmetic own_arithmetic;
    const ansatz::Report report{window, callback};
    switch (message) {
    case 1: return ansatz::list(report);
    case 2: return data ? ansatz::evaluate(report, *static_cast<const AnsatzTestRequest*>(data)) : 0;
    default: return 0;
    }
}
