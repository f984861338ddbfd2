// Exponential decay, growth, association and pulses.

#include "families.hpp"

namespace ansatz::host::descriptions {
namespace {

constexpr ParameterText offset = {"y0", "offset"};
constexpr ParameterText baseline = {"y0", "baseline, the value at x = 0"};
constexpr ParameterText start = {"x0", "start time"};
constexpr ParameterText pulse_start = {"x0", "start of the pulse"};
constexpr ParameterText rise_time = {"t1", "rise time, unit of x"};
constexpr ParameterText power = {"p", "power of the rise"};
constexpr ParameterText decay_time = {"t2", "decay time, unit of x"};

} // namespace

Family exponentials() {
    return {
        .title = "Exponentials",
        .models = {
            {.name = "ExpDec1",
             .formula = "y = y0 + A1 exp(-x/t1)",
             .parameters = {offset,
                            {"A1", "amplitude, height above the offset at x = 0"},
                            {"t1", "decay time, unit of x; half-life t1 ln 2"}},
             .notes = "Fails for t1 = 0 and where the exponential overflows. A negative t1 makes it a growth."},
            {.name = "ExpDec2",
             .formula = "y = y0 + A1 exp(-x/t1) + A2 exp(-x/t2)",
             .parameters = {offset,
                            {"A1", "first amplitude, at x = 0"},
                            {"t1", "first decay time, unit of x"},
                            {"A2", "second amplitude"},
                            {"t2", "second decay time"}},
             .notes =
                 "Fails for a time of 0 and where an exponential overflows. Negative times are accepted. Start "
                 "a fit with times that differ."},
            {.name = "ExpDec3",
             .formula = "y = y0 + A1 exp(-x/t1) + A2 exp(-x/t2) + A3 exp(-x/t3)",
             .parameters = {offset,
                            {"A1", "first amplitude, at x = 0"},
                            {"t1", "first decay time, unit of x"},
                            {"A2", "second amplitude"},
                            {"t2", "second decay time"},
                            {"A3", "third amplitude"},
                            {"t3", "third decay time"}},
             .notes =
                 "Fails for a time of 0 and where an exponential overflows. Negative times are accepted. Start "
                 "a fit with times that differ by factors: three terms are hard to tell apart."},
            {.name = "Lanczos3",
             .formula = "y = A1 exp(-k1 x) + A2 exp(-k2 x) + A3 exp(-k3 x)",
             .parameters = {{"A1", "first amplitude"},
                            {"k1", "first rate, 1/(unit of x); negative: growth"},
                            {"A2", "second amplitude"},
                            {"k2", "second rate"},
                            {"A3", "third amplitude"},
                            {"k3", "third rate"}},
             .notes = "No offset. Fails where a term overflows. The terms may trade places. Three decays are "
                      "told apart only by very good data with rates a factor of two or more apart; equal "
                      "starts for two of the rates end in a fit of two terms."},
            {.name = "ExpDecay1",
             .formula = "y = y0 + A1 exp(-(x - x0)/t1)",
             .parameters = {offset,
                            start,
                            {"A1", "amplitude, height above the offset at x = x0"},
                            {"t1", "decay time, unit of x; half-life t1 ln 2"}},
             .notes =
                 "Fails for t1 <= 0 and where the exponential overflows. Another x0 only rescales A1: hold it "
                 "fixed in a fit."},
            {.name = "ExpDecay2",
             .formula = "y = y0 + A1 exp(-(x - x0)/t1) + A2 exp(-(x - x0)/t2)",
             .parameters = {offset,
                            start,
                            {"A1", "first amplitude, at x = x0"},
                            {"t1", "first decay time, unit of x"},
                            {"A2", "second amplitude"},
                            {"t2", "second decay time"}},
             .notes = "Fails for a time <= 0 and where an exponential overflows. Another x0 only rescales the "
                      "amplitudes: hold it fixed in a fit, and start with times that differ."},
            {.name = "ExpDecay3",
             .formula = "y = y0 + A1 exp(-(x - x0)/t1) + A2 exp(-(x - x0)/t2) + A3 exp(-(x - x0)/t3)",
             .parameters = {offset,
                            start,
                            {"A1", "first amplitude, at x = x0"},
                            {"t1", "first decay time, unit of x"},
                            {"A2", "second amplitude"},
                            {"t2", "second decay time"},
                            {"A3", "third amplitude"},
                            {"t3", "third decay time"}},
             .notes = "Fails for a time <= 0 and where an exponential overflows. Another x0 only rescales the "
                      "amplitudes: hold it fixed in a fit, and start with times that differ by factors."},
            {.name = "Kinetic",
             .formula = "y = y0 + sum A exp(-(x - x0)/t) for x >= x0, y0 otherwise",
             .parameters = {{"y0", "baseline, before the start and at the end"}, start},
             .block = {{"A", "amplitude, at x = x0"}, {"t", "decay time, unit of x"}},
             .block_name = "term",
             .most_blocks = 3,
             .components = false,
             .notes = "Fails for a time <= 0. Hold x0 fixed in a fit: between two data points it only rescales "
                      "the amplitudes, and the fit cannot move it across one."},
            {.name = "ExpGro1",
             .formula = "y = y0 + A1 exp(x/t1)",
             .parameters = {offset,
                            {"A1", "amplitude, height above the offset at x = 0"},
                            {"t1", "growth time, unit of x; doubling time t1 ln 2"}},
             .notes = "Fails for t1 = 0 and where the exponential overflows. A negative t1 makes it a decay."},
            {.name = "ExpGro2",
             .formula = "y = y0 + A1 exp(x/t1) + A2 exp(x/t2)",
             .parameters = {offset,
                            {"A1", "first amplitude, at x = 0"},
                            {"t1", "first growth time, unit of x"},
                            {"A2", "second amplitude"},
                            {"t2", "second growth time"}},
             .notes =
                 "Fails for a time of 0 and where an exponential overflows. Negative times are accepted. Start "
                 "a fit with times that differ."},
            {.name = "ExpGro3",
             .formula = "y = y0 + A1 exp(x/t1) + A2 exp(x/t2) + A3 exp(x/t3)",
             .parameters = {offset,
                            {"A1", "first amplitude, at x = 0"},
                            {"t1", "first growth time, unit of x"},
                            {"A2", "second amplitude"},
                            {"t2", "second growth time"},
                            {"A3", "third amplitude"},
                            {"t3", "third growth time"}},
             .notes =
                 "Fails for a time of 0 and where an exponential overflows. Negative times are accepted. Start "
                 "a fit with times that differ by factors."},
            {.name = "ExpGrow1",
             .formula = "y = y0 + A1 exp((x - x0)/t1)",
             .parameters = {offset,
                            start,
                            {"A1", "amplitude, height above the offset at x = x0"},
                            {"t1", "growth time, unit of x; doubling time t1 ln 2"}},
             .notes =
                 "Fails for t1 <= 0 and where the exponential overflows. Another x0 only rescales A1: hold it "
                 "fixed in a fit."},
            {.name = "ExpGrow2",
             .formula = "y = y0 + A1 exp((x - x0)/t1) + A2 exp((x - x0)/t2)",
             .parameters = {offset,
                            start,
                            {"A1", "first amplitude, at x = x0"},
                            {"t1", "first growth time, unit of x"},
                            {"A2", "second amplitude"},
                            {"t2", "second growth time"}},
             .notes = "Fails for a time <= 0 and where an exponential overflows. Another x0 only rescales the "
                      "amplitudes: hold it fixed in a fit, and start with times that differ."},
            {.name = "Exponential",
             .formula = "y = y0 + A exp(k x)",
             .parameters = {offset,
                            {"A", "amplitude, height above the offset at x = 0"},
                            {"k", "rate, 1/unit of x; positive: growth, negative: decay"}},
             .notes = "Fails where the exponential overflows, for k x above 709."},
            {.name = "ExpAssoc",
             .formula = "y = y0 + A1 (1 - exp(-x/t1)) + A2 (1 - exp(-x/t2))",
             .parameters = {baseline,
                            {"A1", "rise of the first phase"},
                            {"t1", "its time constant, unit of x"},
                            {"A2", "rise of the second phase"},
                            {"t2", "its time constant"}},
             .notes =
                 "Fails for a time constant of 0 and where an exponential overflows. Start a fit with times "
                 "that differ."},
            {.name = "ExpAssoc2",
             .formula = "y = y0 + A1 (1 - exp(-x/t1)) + A2 (1 - exp(-x/t2))",
             .parameters = {baseline,
                            {"A1", "rise of the first phase"},
                            {"t1", "its time constant, unit of x"},
                            {"A2", "rise of the second phase"},
                            {"t2", "its time constant"}},
             .notes = "The curve of ExpAssoc, and it fails where that does; the two differ only in when an "
                      "amplitude of 0 excuses a time constant "
                      "of 0. Start a fit with times that differ."},
            {.name = "Pulse",
             .formula = "y = y0 + A (1 - exp(-(x - x0)/t1))^p exp(-(x - x0)/t2) for x >= x0, y0 otherwise",
             .parameters = {{"y0", "baseline"},
                            pulse_start,
                            {"A", "amplitude, larger than the height of the pulse"},
                            rise_time,
                            power,
                            decay_time},
             .notes =
                 "Fails for a time or power <= 0. There are no derivatives at x = x0: start a fit with x0 off "
                 "the data, or take numerical derivatives."},
            {.name = "Pulse1",
             .formula = "y = A (1 - exp(-(x - x0)/t1))^p exp(-(x - x0)/t2) for x > x0, 0 otherwise",
             .parameters = {pulse_start,
                            {"A", "amplitude, larger than the height of the pulse"},
                            rise_time,
                            power,
                            decay_time},
             .notes =
                 "Fails for a time of 0; the derivatives, and so a fit, for a time or power <= 0. There are no "
                 "derivatives at x = x0: start a fit with x0 off the data, or take numerical derivatives."},
        }};
}

} // namespace ansatz::host::descriptions
