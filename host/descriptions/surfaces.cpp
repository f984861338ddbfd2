// Models of two independent variables.

#include "families.hpp"

namespace ansatz::host::descriptions {
namespace {

using Parameters = std::vector<ParameterText>;

/// The parameters of a peak with a centre and a width on either axis.
Parameters peak(std::string_view width, std::string_view amplitude = "height of the peak") {
    return {{"A", amplitude},
            {"xc", "centre on x1"},
            {"wx", width},
            {"yc", "centre on x2"},
            {"wy", "the same along x2"}};
}

Parameters joined(Parameters first, const Parameters& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

constexpr std::string_view standard_deviation = "standard deviation along x1";

constexpr std::string_view widths_of_peaks =
    "Fails for a width of 0; a fit fails for negative widths: bound them from below. A peak of height 0 has no "
    "derivatives: do not start a fit there.";

std::vector<Description> peak_surfaces() {
    return {
        {.name = "Gauss2D",
         .formula = "y = y0 + sum A exp(-(x1 - xc)^2/(2 wx^2) - (x2 - yc)^2/(2 wy^2))",
         .parameters = {{"y0", "offset"}},
         .block = peak(standard_deviation),
         .notes = widths_of_peaks},
        {.name = "Gaussian2D",
         .formula = "y = y0 + A exp(-u^2/(2 wx^2) - v^2/(2 wy^2)),  "
                    "u = (x1 - xc) cos(t) + (x2 - yc) sin(t),  v = (x2 - yc) cos(t) - (x1 - xc) sin(t)",
         .parameters = joined({{"y0", "offset"}}, {{"A", "height of the peak"},
                                                   {"xc", "centre on x1"},
                                                   {"wx", "standard deviation along the turned first axis"},
                                                   {"yc", "centre on x2"},
                                                   {"wy", "standard deviation along the turned second axis"},
                                                   {"t", "angle of the axes in radians, from x1 towards x2"}}),
         .notes = "One peak. A turn by pi changes nothing, one by pi/2 exchanges the widths, and a round peak "
                  "has no "
                  "angle. Fails for a width of 0; a fit fails for negative widths: bound them from below."},
        {.name = "Lorentz2D",
         .formula = "y = y0 + sum A/((1 + ((x1 - xc)/wx)^2) (1 + ((x2 - yc)/wy)^2))",
         .parameters = {{"y0", "offset"}},
         .block = peak("half width at half maximum along x1"),
         .notes = widths_of_peaks},
        {.name = "Voigt2D",
         .formula = "y = y0 + sum A ((1 - f) exp(-u^2/2 - v^2/2) + f/((1 + u^2) (1 + v^2))),  "
                    "u = (x1 - xc)/wx,  v = (x2 - yc)/wy",
         .parameters = {{"y0", "offset"}},
         .block = joined(peak("width along x1: standard deviation of the Gaussian part, half width at half "
                              "maximum of the other"),
                         {{"f", "fraction of the Lorentzian part, 0 to 1"}}),
         .notes = widths_of_peaks},
        {.name = "LogNormal2D",
         .formula = "y = y0 + sum (Ax e1 + Ay e2 + Axy e1 e2),  e1 = exp(-ln(x1/cx)^2/(2 wx^2)),  "
                    "e2 = exp(-ln(x2/cy)^2/(2 wy^2))",
         .parameters = {{"y0", "offset"}},
         .block = {{"Ax", "amplitude of the ridge across x1"},
                   {"cx", "top of that ridge on x1"},
                   {"wx", "its width, on the scale of ln x1"},
                   {"Ay", "amplitude of the ridge across x2"},
                   {"cy", "top of that ridge on x2"},
                   {"wy", "its width, on the scale of ln x2"},
                   {"Axy", "amplitude of the joint peak"}},
         .block_name = "term",
         .notes = "Fails for x1/cx <= 0 and x2/cy <= 0."},
        {.name = "Extreme2D",
         .formula = "y = y0 + sum (b x2 + c x2^2 + A exp(1 - exp(-u) - u)),  u = (x1 - xc)/w",
         .parameters = {{"y0", "offset"}},
         .block = {{"b", "linear coefficient of x2"},
                   {"c", "quadratic coefficient of x2"},
                   {"A", "height of the peak along x1"},
                   {"xc", "centre of the peak on x1"},
                   {"w", "width; negative: the long tail points to small x1"}},
         .block_name = "term",
         .notes = "An asymmetric peak along x1 on a parabola along x2. With several terms only the sums of b "
                  "and of c are determined."},
        {.name = "GaussLog",
         .formula = "y = y0 + sum A exp(-(x1 - xc)^2/(2 wx^2) - ln(x2/yc)^2/(2 wy^2))",
         .parameters = {{"y0", "offset"}},
         .block = {{"A", "height of the peak"},
                   {"xc", "centre on x1"},
                   {"wx", standard_deviation},
                   {"yc", "top on x2"},
                   {"wy", "width along x2, on the scale of ln x2"}},
         .notes = "Gaussian along x1, log-normal along x2. Fails for x2 <= 0 and yc < 0."},
        {.name = "LogisticPeak",
         .formula = "y = y0 + sum (b x2 + 4 A e/(1 + e)^2),  e = exp((xc - x1)/w)",
         .parameters = {{"y0", "offset"}},
         .block = {{"b", "slope along x2"},
                   {"A", "height of the peak along x1"},
                   {"xc", "centre of the peak on x1"},
                   {"w", "width (as x1); full width at half maximum is 3.525 w"}},
         .block_name = "term",
         .notes = "A symmetric peak along x1 on a slope along x2. With several terms only the sum of b is "
                  "determined."},
    };
}

std::vector<Description> basis_surfaces() {
    return {
        {.name = "Plane",
         .formula = "y = y0 + a x1 + b x2",
         .parameters = {{"y0", "level at the origin"}, {"a", "slope along x1"}, {"b", "slope along x2"}}},
        {.name = "Parabola2D",
         .formula = "y = y0 + a x1 + b x2 + c x1^2 + d x2^2",
         .parameters = {{"y0", "level at the origin"},
                        {"a", "of x1"},
                        {"b", "of x2"},
                        {"c", "of x1^2"},
                        {"d", "of x2^2"}}},
        {.name = "Poly2D",
         .formula = "y = y0 + a x1 + b x2 + c x1^2 + d x2^2 + f x1 x2",
         .parameters = {{"y0", "level at the origin"},
                        {"a", "of x1"},
                        {"b", "of x2"},
                        {"c", "of x1^2"},
                        {"d", "of x2^2"},
                        {"f", "of x1 x2"}}},
        {.name = "Polynomial2D",
         .formula = "y = y0 + a1 x1 + a2 x1^2 + a3 x1^3 + a4 x1^4 + a5 x1^5 + b1 x2 + b2 x2^2 + b3 x2^3 + b4 "
                    "x2^4 + b5 x2^5",
         .parameters = {{"y0", "level at the origin"},
                        {"a1", "of x1"},
                        {"a2", "of x1^2"},
                        {"a3", "of x1^3"},
                        {"a4", "of x1^4"},
                        {"a5", "of x1^5"},
                        {"b1", "of x2"},
                        {"b2", "of x2^2"},
                        {"b3", "of x2^3"},
                        {"b4", "of x2^4"},
                        {"b5", "of x2^5"}},
         .notes = "No mixed terms. Centre and scale x1 and x2 for the sake of the digits."},
        {.name = "Fourier2D",
         .formula = "y = y0 + sum (a cos(x1/Lx) + b sin(x1/Lx) + c cos(x2/Ly) + d sin(x2/Ly))",
         .parameters = {{"y0", "offset"}},
         .block = {{"a", "of cos(x1/Lx)"},
                   {"b", "of sin(x1/Lx)"},
                   {"c", "of cos(x2/Ly)"},
                   {"d", "of sin(x2/Ly)"},
                   {"Lx", "period along x1 divided by 2 pi"},
                   {"Ly", "period along x2 divided by 2 pi"}},
         .block_name = "term",
         .notes = "Fails for a scale Lx or Ly of 0. Start the scales near their values: a fit finds the "
                  "nearest of many minima."},
        {.name = "Chebyshev2D",
         .formula = "y = y0 + a x1 + b (2 x1^2 - 1) + c x2 + d (2 x2^2 - 1) + f x1 x2",
         .parameters = {{"y0", "offset"},
                        {"a", "of T1(x1) = x1"},
                        {"b", "of T2(x1) = 2 x1^2 - 1"},
                        {"c", "of T1(x2) = x2"},
                        {"d", "of T2(x2) = 2 x2^2 - 1"},
                        {"f", "of T1(x1) T1(x2)"}},
         .notes = "A series of Chebyshev polynomials. Gives no number outside -1 <= x1, x2 <= 1: scale the "
                  "data first."},
        {.name = "Cosine",
         .formula = "y = y0 + a cos(x1) + b cos(2 x1) + c cos(x2) + d cos(2 x2) + f cos(x1) cos(x2)",
         .parameters = {{"y0", "offset"},
                        {"a", "of cos(x1)"},
                        {"b", "of cos(2 x1)"},
                        {"c", "of cos(x2)"},
                        {"d", "of cos(2 x2)"},
                        {"f", "of cos(x1) cos(x2)"}},
         .notes = "x1 and x2 in radians."},
        {.name = "Rational2D",
         .formula = "y = sum (a + b x1 + c x2 + d x2^2 + f x2^3)/"
                    "(1 + g x1 + h x1^2 + k x1^3 + m x2 + n x2^2)",
         .block = {{"a", "constant above"},
                   {"b", "of x1 above"},
                   {"c", "of x2 above"},
                   {"d", "of x2^2 above"},
                   {"f", "of x2^3 above"},
                   {"g", "of x1 below"},
                   {"h", "of x1^2 below"},
                   {"k", "of x1^3 below"},
                   {"m", "of x2 below"},
                   {"n", "of x2^2 below"}},
         .block_name = "term",
         .notes = "Fails where a denominator is 0; near there it has a pole. Start from g, h, k, m, n = 0."},
        {.name = "RationalTaylor",
         .formula = "y = sum (a + b x1 + c x2 + d x2^2 + f x1 x2)/"
                    "(1 + g x1 + h x1^2 + k x2 + m x2^2 + n x1 x2)",
         .block = {{"a", "constant above"},
                   {"b", "of x1 above"},
                   {"c", "of x2 above"},
                   {"d", "of x2^2 above"},
                   {"f", "of x1 x2 above"},
                   {"g", "of x1 below"},
                   {"h", "of x1^2 below"},
                   {"k", "of x2 below"},
                   {"m", "of x2^2 below"},
                   {"n", "of x1 x2 below"}},
         .block_name = "term",
         .notes = "Fails where a denominator is 0; near there it has a pole. Start from g, h, k, m, n = 0."},
    };
}

std::vector<Description> response_surfaces() {
    return {
        {.name = "GaussCum",
         .formula = "y = y0 + sum (A/4) (1 + erf((x1 - xc)/(sqrt(2) wx))) (1 + erf((x2 - yc)/(sqrt(2) wy)))",
         .parameters = {{"y0", "offset"}},
         .block = peak(standard_deviation, "height of the plateau"),
         .block_name = "term",
         .notes = "A negative width turns the step round."},
        {.name = "LogisticCum",
         .formula = "y = y0 + sum A/((1 + exp(-(x1 - xc)/wx)) (1 + exp(-(x2 - yc)/wy)))",
         .parameters = {{"y0", "offset"}},
         .block = peak("width of the step along x1", "height of the plateau"),
         .block_name = "term",
         .notes = "A negative width turns the step round. More than 300 widths below a centre the step is back "
                  "on its plateau: keep the data within that."},
        {.name = "ExtremeCum",
         .formula = "y = y0 + sum (Ax F1 + Ay F2 + Axy F1 F2),  F1 = exp(-exp((xc - x1)/wx)),  "
                    "F2 = exp(-exp((yc - x2)/wy))",
         .parameters = {{"y0", "offset"}},
         .block = {{"Ax", "height of the step along x1"},
                   {"xc", "location of that step"},
                   {"wx", "its width (as x1)"},
                   {"Ay", "height of the step along x2"},
                   {"yc", "location of that step"},
                   {"wy", "its width (as x2)"},
                   {"Axy", "height of the joint step"}},
         .block_name = "term",
         .notes = "A negative width turns a step round. More than 300 widths below a location the step is back "
                  "on its plateau: keep the data within that."},
        {.name = "DoseResp",
         .formula = "y = y0 + sum A/((1 + (x1/Dx)^(-hx)) (1 + (x2/Dy)^(-hy)))",
         .parameters = {{"y0", "offset"}},
         .block = {{"A", "full response"},
                   {"Dx", "half-effect dose on x1"},
                   {"hx", "slope, on the scale of ln x1"},
                   {"Dy", "half-effect dose on x2"},
                   {"hy", "slope, on the scale of ln x2"}},
         .block_name = "term",
         .notes = "Fails for x1 <= 0 and x2 <= 0; gives no number for negative Dx or Dy: bound them from "
                  "below."},
        {.name = "Exponential2D",
         .formula = "y = y0 + sum A exp(-x1/tx) exp(-x2/ty)",
         .parameters = {{"y0", "offset"}},
         .block = {{"A", "amplitude at the origin"},
                   {"tx", "decay length along x1; negative: growth"},
                   {"ty", "decay length along x2; negative: growth"}},
         .block_name = "term",
         .notes = "A factor beyond e^300 counts as zero. Do not start near a decay length of 0."},
        {.name = "Power2D",
         .formula = "y = y0 + sum (a x1^p + c x2^q + d x1^p x2^q)",
         .parameters = {{"y0", "offset"}},
         .block = {{"a", "of the power of x1"},
                   {"p", "power of x1"},
                   {"c", "of the power of x2"},
                   {"q", "power of x2"},
                   {"d", "of the product of both powers"}},
         .block_name = "term",
         .notes = "Gives no number for a negative x with a broken power, and infinity for 0 with a negative "
                  "one."},
    };
}

} // namespace

Family surfaces() {
    Family family{.title = "Surfaces", .models = peak_surfaces()};
    for (const auto& more : {basis_surfaces(), response_surfaces()}) {
        family.models.insert(family.models.end(), more.begin(), more.end());
    }
    return family;
}

} // namespace ansatz::host::descriptions
