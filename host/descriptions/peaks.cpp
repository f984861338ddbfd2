// Peaks on a common offset.

#include "families.hpp"

namespace ansatz::host::descriptions {

Family peaks() {
    const std::vector<ParameterText> moments = {{"A", "area"},
                                                {"xc", "centre, the mean"},
                                                {"w", "width, the standard deviation"},
                                                {"a3", "skewness"},
                                                {"a4", "excess"}};

    return {
        .title = "Peaks",
        .models = {
            {.name = "Gauss",
             .formula = "y = y0 + sum A/(w sqrt(pi/2)) exp(-2 ((x - xc)/w)^2)",
             .parameters = {{"y0", "offset"}},
             .block = {{"xc", "centre"}, {"w", "width, twice the standard deviation"}, {"A", "area"}},
             .notes = "Fails for w = 0; the derivatives, and so a fit, fail for w < 0. A peak of area 0 has no "
                      "derivatives: do not start a fit there."},
            {.name = "GaussAmp",
             .formula = "y = y0 + sum A exp(-(x - xc)^2/(2 w^2))",
             .parameters = {{"y0", "offset"}},
             .block = {{"xc", "centre"}, {"w", "width, the standard deviation"}, {"A", "height"}},
             .notes =
                 "Gauss by its height. Fails for w = 0; w and -w give the same curve: bound w from below by "
                 "0. A peak of height 0 has no derivatives: do not start a fit there."},
            {.name = "Gaussian",
             .formula = "y = y0 + A/(w sqrt(pi/(4 ln(2)))) exp(-4 ln(2) ((x - xc)/w)^2)",
             .parameters =
                 {{"y0", "offset"}, {"xc", "centre"}, {"A", "area"}, {"w", "width, full at half maximum"}},
             .notes =
                 "One peak: mind the order, area before width. Fails for w = 0. A peak of area 0 has no "
                 "derivatives: do not start a fit there. For several peaks take Gauss or GaussAmp; a program "
                 "that calls this model with more parameters finds its peaks in blocks of four, of which "
                 "the first is idle, although it counts one peak for every three."},
            {.name = "Lorentz",
             .formula = "y = y0 + sum 2 A w/(pi (4 (x - xc)^2 + w^2))",
             .parameters = {{"y0", "offset"}},
             .block = {{"xc", "centre"}, {"w", "width, full at half maximum"}, {"A", "area"}},
             .notes =
                 "Fails for w <= 0 of the first peak. Further widths may be negative, which turns the peak "
                 "upside down: bound them from below."},
            {.name = "Voigt5",
             .formula = "y = y0 + sum A voigt(x - xc, wG, wL)",
             .parameters = {{"y0", "offset"}},
             .block = {{"xc", "centre"},
                       {"A", "area"},
                       {"wG", "full width at half maximum of the Gaussian part"},
                       {"wL", "full width at half maximum of the Lorentzian part"}},
             .notes =
                 "voigt(d, wG, wL) is a Gaussian and a Lorentzian of these widths, convolved, of area 1 around "
                 "d = 0. Good to 3e-6 of the height. Fails for wG = 0 and wL = 0, so a pure Gaussian or "
                 "Lorentzian is "
                 "out of reach: bound both from below. Meant for one peak: each further one has the shape of "
                 "the peak before it added, so that the areas of several peaks are not their own. Take "
                 "PsdVoigt1 or PsdVoigt2 for those."},
            {.name = "PsdVoigt1",
             .formula = "y = y0 + sum A ((1 - eta) G + eta L),  "
                        "G = (2/w) sqrt(ln(2)/pi) exp(-4 ln(2) ((x - xc)/w)^2),  "
                        "L = 2 w/(pi (4 (x - xc)^2 + w^2))",
             .parameters = {{"y0", "offset"}},
             .block = {{"xc", "centre"},
                       {"A", "area"},
                       {"w", "width, full at half maximum"},
                       {"eta", "Lorentzian fraction, 0 (Gaussian) .. 1 (Lorentzian)"}},
             .notes = "Fails for w <= 0. eta may leave 0..1, where the curve means nothing: bound it."},
            {.name = "PsdVoigt2",
             .formula = "y = y0 + sum A ((1 - eta) G + eta L),  "
                        "G = (2/wG) sqrt(ln(2)/pi) exp(-4 ln(2) ((x - xc)/wG)^2),  "
                        "L = 2 wL/(pi (4 (x - xc)^2 + wL^2))",
             .parameters = {{"y0", "offset"}},
             .block = {{"xc", "centre"},
                       {"A", "area"},
                       {"wG", "full width at half maximum of the Gaussian part"},
                       {"wL", "full width at half maximum of the Lorentzian part"},
                       {"eta", "Lorentzian fraction, 0..1"}},
             .notes = "Fails for wG <= 0 and wL <= 0. Where eta is near 0 or 1 the data do not determine the "
                      "width of the missing part; where wG and wL agree, PsdVoigt1 is enough."},
            {.name = "PearsonVII",
             .formula = "y = y0 + A N (1 + 4 (2^(1/m) - 1) ((x - xc)/w)^2)^(-m),  "
                        "N = 2 gamma(m) sqrt(2^(1/m) - 1)/(sqrt(pi) gamma(m - 1/2) w)",
             .parameters = {{"y0", "offset"},
                            {"xc", "centre"},
                            {"A", "area"},
                            {"w", "width, full at half maximum"},
                            {"m", "shape: 1 is a Lorentzian, large values approach a Gaussian"}},
             .notes = "Fails for w = 0, m <= 0.5 and m > 171. Above m = 20 or so the data hardly tell m from a "
                      "Gaussian. The model has derivatives of its own, which it denies; the one by m is wrong, "
                      "and a fit does not use them."},
            {.name = "PearsonIV",
             .formula = "y = y0 + (A k/w) (1 + z^2)^(-m) exp(-nu atan(z)),  z = (x - xc)/w,  "
                        "k = 4^(m - 1) absgamma(m, nu/2)^2/(pi gamma(2 m - 1))",
             .parameters = {{"y0", "offset"},
                            {"xc", "location; the maximum is at xc - w nu/(2 m)"},
                            {"A", "area"},
                            {"w", "width; for nu = 0 the full width at half maximum is "
                                  "2 w sqrt(2^(1/m) - 1)"},
                            {"nu", "skew; positive: the long tail is on the left"},
                            {"m", "tail exponent, above 1/2; 1 with nu = 0 is a Lorentzian"}},
             .notes = "absgamma(a, b) is the modulus of the gamma function at a + i b; k makes A the area. No "
                      "value for w <= 0 and m <= 0.5: bound both from below. xc, w, nu and m are strongly "
                      "correlated where the data show little of the tails."},
            {.name = "LogistPK",
             .formula = "y = y0 + sum 4 A exp(-(x - xc)/w)/(1 + exp(-(x - xc)/w))^2",
             .parameters = {{"y0", "offset"}},
             .block = {{"xc", "centre"},
                       {"w", "width; 3.53 w is the full width at half maximum"},
                       {"A", "height"}},
             .notes = "Fails for w <= 0. Where x is more than 709 w left of any centre, y is 0 as a whole, "
                      "without the offset and the other peaks: bound w from below by a 700th of the range of "
                      "x."},
            {.name = "Extreme",
             .formula = "y = y0 + sum A exp(1 - exp(-(x - xc)/w) - (x - xc)/w)",
             .parameters = {{"y0", "offset"}},
             .block = {{"xc", "centre, where the maximum is"},
                       {"w", "width; 2.45 w is the full width at half maximum"},
                       {"A", "height"}},
             .notes = "The long tail is on the right; the area is e A w. Fails for w <= 0. Where x is more "
                      "than 709 w left of a centre, there are no derivatives from that peak on: bound w from "
                      "below by a 700th of the range of x."},
            {.name = "BiGaussian",
             .formula = "y = y0 + sum H exp(-(x - xc)^2/(2 w^2)),  w = w1 for x < xc, w2 otherwise",
             .parameters = {{"y0", "offset"}},
             .block = {{"xc", "centre, where the maximum is"},
                       {"H", "height"},
                       {"w1", "width of the left half, a standard deviation"},
                       {"w2", "width of the right half, a standard deviation"}},
             .notes = "Fails for w1 = 0 and w2 = 0; a width and its negative give the same curve: "
                      "bound both from below by 0."},
            {.name = "asymptgauss",
             .formula = "y = y0 + sum A exp(-4 ln(2) ((x - xc)/W)^2),  W = 2 w/(1 + exp(-a (x - xc)))",
             .parameters = {{"y0", "offset"}},
             .block = {{"xc", "centre, where y0 + A is reached"},
                       {"A", "height"},
                       {"w", "full width at half maximum as it is at the centre"},
                       {"a", "asymmetry, 1/(unit of x); positive: the longer flank is on the right"}},
             .notes = "Fails for w <= 0. a = 0 is a Gaussian, and a fair start for a fit."},
            {.name = "Asym2Sig",
             .formula = "y = y0 + sum A/(1 + exp(-(x - xc + w1/2)/w2)) (1 - 1/(1 + exp(-(x - xc - w1/2)/w3)))",
             .parameters = {{"y0", "offset"}},
             .block = {{"xc", "centre"},
                       {"A", "amplitude; the height where w1 is large against w2 and w3"},
                       {"w1", "distance of the points half-way up and down"},
                       {"w2", "width of the left slope"},
                       {"w3", "width of the right slope"}},
             .notes = "Fails for w1 < 0, w2 <= 0 and w3 <= 0. For w1 below w2 and w3 amplitude and w1 can "
                      "hardly be told apart."},
            {.name = "Beta",
             .formula = "y = y0 + sum A B,  "
                        "B = (1 + r z/(p - 1))^(p - 1) (1 - r z/(q - 1))^(q - 1) for (1 - p)/r < z < (q - "
                        "1)/r, 0 otherwise,  "
                        "z = (x - xc)/w,  r = p + q - 2",
             .parameters = {{"y0", "offset"}},
             .block = {{"xc", "centre, where the maximum is"},
                       {"A", "height"},
                       {"w", "width of the whole support, from zero to zero"},
                       {"p", "shape of the left flank, above 1"},
                       {"q", "shape of the right flank, above 1"}},
             .notes = "0 outside its support, which begins w (p - 1)/r left of the centre. Fails for w <= 0, "
                      "p <= 1 and q <= 1. w, p and q are strongly correlated: the ends of the support are "
                      "where there is little to see."},
            {.name = "Weibull3",
             .formula = "y = y0 + sum A f,  f = (S/s0)^(w2 - 1) exp(s0^w2 - S^w2) for S > 0, 0 otherwise,  "
                        "S = (x - xc)/w1 + s0,  s0 = (1 - 1/w2)^(1/w2)",
             .parameters = {{"y0", "offset"}},
             .block = {{"xc", "centre, where the maximum is"},
                       {"A", "height"},
                       {"w1", "width: the scale of x"},
                       {"w2", "shape, above 1; about 3.6 is nearly symmetric, below it the tail is right"}},
             .notes = "0 left of xc - w1 s0. Fails for w1 <= 0 and w2 <= 1."},
            {.name = "LogNormal",
             .formula = "y = y0 + sum A/(sqrt(2 pi) w x) exp(-ln(x/xc)^2/(2 w^2)) for x > 0, y0 otherwise",
             .parameters = {{"y0", "offset"}},
             .block = {{"xc", "median; the maximum is at xc exp(-w^2)"},
                       {"w", "width, the standard deviation of ln x"},
                       {"A", "area"}},
             .notes = "Fails for xc <= 0 and w <= 0."},
            {.name = "Giddings",
             .formula =
                 "y = y0 + sum (A/w) sqrt(xc/x) I1(2 sqrt(xc x)/w) exp(-(x + xc)/w) for x > 0, y0 otherwise",
             .parameters = {{"y0", "offset"}},
             .block = {{"xc", "centre, close to the mean"},
                       {"w", "width, in the unit of x; the standard deviation is sqrt(2 w xc)"},
                       {"A", "area"}},
             .notes = "The chromatographic peak of a random walk; I1 is a modified Bessel function. Fails for "
                      "xc <= 0 and w <= 0."},
            {.name = "GaussMod",
             .formula = "y = y0 + sum A/(2 t) exp(w^2/(2 t^2) - (x - xc)/t) erfc((w/t - (x - xc)/w)/sqrt(2))",
             .parameters = {{"y0", "offset"}},
             .block = {{"A", "area"},
                       {"xc", "centre of the Gaussian; the mean of the peak is xc + t"},
                       {"w", "width, the standard deviation of the Gaussian"},
                       {"t", "decay time of the exponential that drags out its right flank"}},
             .notes = "Mind the order: the area comes first. Fails for w <= 0 and t <= 0. A t far below w is "
                      "a Gaussian, whose xc and t cannot be told apart."},
            {.name = "GCAS",
             .formula =
                 "y = y0 + sum A/(w sqrt(2 pi)) exp(-z^2/2) (1 + a3 (z^3 - 3 z)/6 + a4 (z^4 - 6 z^2 + 3)/24),  "
                 "z = (x - xc)/w",
             .parameters = {{"y0", "offset"}},
             .block = moments,
             .notes = "Gram-Charlier series. Mind the order: the area comes first. Fails for w <= 0. Negative "
                      "and with several bumps for large a3 or a4."},
            {.name = "ECS",
             .formula = "y = y0 + sum A/(w sqrt(2 pi)) exp(-z^2/2) (1 + a3 (z^3 - 3 z)/6 + a4 (z^4 - 6 z^2 + "
                        "3)/24 + a3^2 (z^6 - 15 z^4 + 45 z^2 - 15)/72),  "
                        "z = (x - xc)/w",
             .parameters = {{"y0", "offset"}},
             .block = moments,
             .notes = "Edgeworth-Cramer series: GCAS with one more term. Mind the order: the area comes first. "
                      "Fails for w <= 0. Negative and with several bumps for large a3 or a4."},
            {.name = "CCE",
             .formula = "y = y0 + sum A (exp(-(x - xc1)^2/(2 w)) + (B/2) (1 + tanh(k2 (x - xc2))) exp(-k3 (x - "
                        "xc3 + abs(x - xc3))/2))",
             .parameters = {{"y0", "offset"}},
             .block = {{"xc1", "centre of the peak"},
                       {"A", "height of the peak without its tail"},
                       {"w", "variance of the peak, in the squared unit of x"},
                       {"B", "size of the tail, relative to A"},
                       {"k2", "rate at which the tail rises, 1/(unit of x)"},
                       {"xc2", "where the tail has half risen"},
                       {"k3", "rate at which the tail decays, 1/(unit of x)"},
                       {"xc3", "where the decay begins"}},
             .notes = "A chromatographic peak with a tail (Chesler and Cram). w is a variance: its root is the "
                      "width. Fails for w <= 0, and far right for k3 < 0. A fit has many minima: start it "
                      "close, with the "
                      "rise and the decay where the plot shows them, and bound k2 and k3 from below by 0."},
        }};
}

} // namespace ansatz::host::descriptions
