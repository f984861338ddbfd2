// The developer test command: lists the catalogue and evaluates one model with a report.

#include "catalogue/catalogue.h"
#include "protocol/host_arithmetic.h"

#include <algorithm>
#include <cerrno>
#include <cfenv>
#include <cmath>
#include <cstdarg>
#include <cstdio>
#include <cstring>

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

/// A number as printf writes it where numbers are rounded to nearest and have a decimal point: in other locales
/// the separator may be several bytes.
struct Number {
    Number(double v, int digits) {
        std::fenv_t hosts;
        std::feholdexcept(&hosts);
        std::fesetround(FE_TONEAREST);
        std::snprintf(text, sizeof text, "%.*g", digits, v);
        std::fesetenv(&hosts);
        char* end = text;
        for (const char* c = text; *c != '\0'; ++c) {
            if (std::strchr("+-0123456789einfa", *c)) {
                *end++ = *c;
            } else if (end[-1] != '.') { // never the first
                *end++ = '.';
            }
        }
        *end = '\0';
    }
    char text[40];
};

std::int32_t list(const Report& report) {
    for (const FunctionEntry& row : FunctionCatalogue) report.line("type %s", row.name);
    return catalogue_size;
}

constexpr int most_params = 255; // with more there are no estimates

/// The central difference of y[1] by params[k], on copies of the inputs; NaN where the model fails, and for
/// more parameters than the copy holds. It has room for the models that read after those supplied.
double central_difference(const FunctionEntry& row, const AnsatzTestRequest& request, int n, int k) {
    if (n > most_params) return std::nan("");
    double P[2 * most_params] = {}, x[4] = {}, y[most_params + 2];
    std::copy_n(request.params + 1, n, P + 1);
    std::copy_n(request.x + 1, row.nIndep, x + 1);
    const double at = P[k], step = 6e-6 * std::fmax(std::fabs(at), 1e-3);
    const auto value = [&](double shifted) {
        P[k] = shifted;
        errno = 0;
        return row.function(FF_VALUE, 0, request.nParams, 0, 0, P, 0, x, y, nullptr) == 0 ? y[1] : std::nan("");
    };
    const double up = at + step, down = at - step;
    return (value(up) - value(down)) / (up - down);
}

std::int32_t evaluate(const Report& report, const AnsatzTestRequest& request) {
    if (!request.name) {
        report.line("no function named");
        return -1;
    }
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
        for (int k = 1; k <= row->nDep; ++k) report.line("y[%d] = %s", k, Number(request.y[k], 17).text);
    }
    if (request.flags & FF_DERIV) {
        const int supplied = static_cast<std::int16_t>(request.nParams);
        const int n = supplied > 0 ? supplied : row->nParams;
        for (int k = 1; k <= n; ++k) {
            report.line("dyda[%d] = %s, central difference %s", k, Number(request.dyda[k], 17).text,
                        Number(central_difference(*row, request, n, k), 9).text);
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
