// Fits the nonlinear regression sets of NIST's Statistical Reference Datasets from both certified starts and
// prints, as a table in Markdown, how many digits of every estimate and of every standard error agree with the
// certified ones. The argument is the folder of the sets, as NIST publishes them.

#include <ansatz/host/fit.hpp>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>

using namespace ansatz::host;

namespace {

using Values = std::vector<double>;

/// A set as its file states it: the starts, the certified estimates b1, b2, ... and their standard deviations,
/// the residual sum of squares, and the data.
struct Set {
    std::array<Values, 2> starts;
    Values certified, errors;
    double rss = 0;
    Data data;
};

Set read(const std::filesystem::path& file) {
    std::ifstream in(file);
    if (!in) throw Error("cannot read " + file.string());
    Set set;
    Values x, y;
    bool data = false;
    for (std::string line; std::getline(in, line);) {
        std::istringstream words(line);
        std::string name, equals;
        std::array<double, 4> v{};
        words >> name >> equals; // "b1 =", or "Data: y" above the columns
        if (name == "Data:" && equals == "y") {
            data = true;
        } else if (data) {
            if (equals.empty()) continue;
            y.push_back(std::stod(name));
            x.push_back(std::stod(equals));
        } else if (line.starts_with("Residual Sum of Squares:")) {
            set.rss = std::stod(line.substr(line.find(':') + 1));
        } else if (equals == "=" && words >> v[0] >> v[1] >> v[2] >> v[3]) {
            set.starts[0].push_back(v[0]);
            set.starts[1].push_back(v[1]);
            set.certified.push_back(v[2]);
            set.errors.push_back(v[3]);
        }
    }
    if (x.empty() || set.certified.empty() || set.rss == 0)
        throw Error(file.string() + " is no nonlinear regression set");
    set.data.x = Eigen::Map<Eigen::VectorXd>(x.data(), std::ssize(x));
    set.data.y = Eigen::Map<Eigen::VectorXd>(y.data(), std::ssize(y));
    return set;
}

/// A model that expresses a set's law: its parameters from b1, b2, ... and the way back.
using Map = std::function<Values(const Values&)>;
struct Expressed {
    const char *set, *model;
    Map to_model, to_set;
    std::vector<std::size_t> fixed = {}; ///< parameters that the set's law does not have, from 0
};

constexpr double root_half_pi = 1.253314137316; // as the model Gauss has it

Values same(const Values& v) {
    return v;
}

const Expressed all[] = {
    {"Misra1a", "BoxLucas1", same, same},
    {"Misra1d", "RectHyperbola", same, same},
    {"Misra1d", "MicMent",
     [](const Values& b) {
         return Values{b[0], 1 / b[1]};
     },
     [](const Values& P) {
         return Values{P[0], 1 / P[1]};
     }},
    {"BoxBOD", "BoxLucas1", same, same},
    {"DanWood", "Allometric1", same, same},
    {"Rat42", "SLogistic1",
     [](const Values& b) {
         return Values{b[0], b[1] / b[2], b[2]};
     },
     [](const Values& P) {
         return Values{P[0], P[1] * P[2], P[2]};
     }},
    {"Rat42", "SLogistic3",
     [](const Values& b) {
         return Values{b[0], std::exp(b[1]), b[2]};
     },
     [](const Values& P) {
         return Values{P[0], std::log(P[1]), P[2]};
     }},
    {"Rat43", "Richards",
     [](const Values& b) {
         return Values{b[0], -b[1] / b[3], b[2] / b[3], 1 / b[3]};
     },
     [](const Values& P) {
         return Values{P[0], -P[1] / P[3], P[2] / P[3], 1 / P[3]};
     }},
    {"Rat43", "SRichards2",
     [](const Values& b) {
         return Values{b[0], (b[1] - std::log(b[3])) / b[2], 1 + b[3], b[2]};
     },
     [](const Values& P) {
         return Values{P[0], P[1] * P[3] + std::log(P[2] - 1), P[3], P[2] - 1};
     }},
    {"Eckerle4",
     "Gauss",
     [](const Values& b) {
         return Values{0, b[2], 2 * b[1], 2 * root_half_pi * b[0]};
     },
     [](const Values& P) {
         return Values{P[3] / (2 * root_half_pi), P[2] / 2, P[1]};
     },
     {0}},
    {"Eckerle4",
     "GaussAmp",
     [](const Values& b) {
         return Values{0, b[2], b[1], b[0] / b[1]};
     },
     [](const Values& P) {
         return Values{P[3] * std::fabs(P[2]), std::fabs(P[2]), P[1]};
     },
     {0}},
    {"MGH10", "Exp3P1", same, same},
    {"MGH10", "Exp3P1Md",
     [](const Values& b) {
         return Values{std::log(b[0]), b[1], b[2]};
     },
     [](const Values& P) {
         return Values{std::exp(P[0]), P[1], P[2]};
     }},
    {"Lanczos3", "Lanczos3", same, same},
    {"Lanczos3",
     "ExpDec3",
     [](const Values& b) { return Values{0, b[0], 1 / b[1], b[2], 1 / b[3], b[4], 1 / b[5]}; },
     [](const Values& P) { return Values{P[1], 1 / P[2], P[3], 1 / P[4], P[5], 1 / P[6]}; },
     {0}},
    {"MGH17", "ExpDec2",
     [](const Values& b) {
         return Values{b[0], b[1], 1 / b[3], b[2], 1 / b[4]};
     },
     [](const Values& P) {
         return Values{P[0], P[1], P[3], 1 / P[2], 1 / P[4]};
     }},
};

Values as_list(const Eigen::VectorXd& v) {
    return {v.begin(), v.end()};
}

/// The standard errors of b1, b2, ...: those of the model's parameters, carried over to first order (the delta
/// method) with extrapolated differences of the map.
Values carried_errors(const Expressed& e, const Fit& fit, std::size_t count) {
    Eigen::MatrixXd J(count, fit.varied.size());
    for (std::size_t j = 0; j < fit.varied.size(); ++j) {
        const auto difference = [&](double relative) {
            Eigen::VectorXd up = fit.values(), down = up;
            const Eigen::Index k = fit.varied[j];
            up[k] += relative * up[k];
            down[k] -= relative * down[k];
            const Values above = e.to_set(as_list(up)), below = e.to_set(as_list(down));
            Eigen::VectorXd d(count);
            for (std::size_t i = 0; i < count; ++i)
                d[Eigen::Index(i)] = (above[i] - below[i]) / (up[k] - down[k]);
            return d;
        };
        J.col(Eigen::Index(j)) = (4 * difference(5e-4) - difference(1e-3)) / 3;
    }
    if (fit.covariance.size() == 0) return Values(count, 0);
    return as_list((J * fit.covariance * J.transpose()).diagonal().cwiseSqrt());
}

/// Common digits of a number and the certified one, which has 11: minus the logarithm of the relative error.
double digits(double got, double certified) {
    const double error = std::fabs(got - certified) / std::fabs(certified);
    return std::isnan(error) ? 0 : std::clamp(-std::log10(error), 0.0, 11.0);
}

struct Reached {
    Values estimate, error;
    double rss = 0;
    std::string end; ///< why the fit ended, when it did not converge
};

Reached reach(const Expressed& e, const Set& set, const Values& b) {
    const std::size_t count = set.certified.size();
    Reached reached{.estimate = Values(count, 0), .error = Values(count, 0), .end = {}};
    try {
        const Model model = Model::find(e.model);
        std::vector<Start> start = starts(model, e.to_model(b));
        for (const std::size_t k : e.fixed) start[k].fixed = true;
        const Fit result = fit(model, set.data, start);
        if (!result.converged) reached.end = result.termination;
        const Values estimates = e.to_set(as_list(result.values()));
        const Values errors = carried_errors(e, result, count);
        for (std::size_t k = 0; k < count; ++k) {
            reached.estimate[k] = digits(estimates[k], set.certified[k]);
            reached.error[k] = digits(errors[k], set.errors[k]);
        }
        reached.rss = digits(result.rss, set.rss);
    } catch (const Error& error) {
        reached.end = error.what();
    }
    return reached;
}

void print(const Values& list) {
    for (const double d : list) std::printf(" %.1f", d);
    std::printf(" |");
}

/// Prints the table; returns how many fits stopped short of 6 digits.
int compare(const std::filesystem::path& folder) {
    int missed = 0, fits = 0;
    std::vector<std::string> remarks;
    std::printf(
        "| Set | Model | Estimates, start 1 | start 2 | Standard errors, start 1 | start 2 | Sum of squares |\n"
        "|---|---|---|---|---|---|---|\n");
    for (const Expressed& e : all) {
        const Set set = read(folder / (std::string(e.set) + ".dat"));
        std::array<Reached, 2> reached;
        for (std::size_t s = 0; s < 2; ++s) {
            reached[s] = reach(e, set, set.starts[s]);
            ++fits;
            if (std::ranges::min(reached[s].estimate) < 6) ++missed;
            if (!reached[s].end.empty()) {
                remarks.push_back(std::string(e.set) + " by " + e.model + " from start " +
                                  std::to_string(s + 1) + ": " + reached[s].end);
            }
        }
        std::printf("| %s | %s |", e.set, e.model);
        for (const Values Reached::*of : {&Reached::estimate, &Reached::error}) {
            for (const Reached& r : reached) print(r.*of);
        }
        print({reached[0].rss, reached[1].rss});
        std::printf("\n");
    }
    std::printf("\n%d of %d fits reach 6 digits or more in every estimate.\n", fits - missed, fits);
    for (const std::string& remark : remarks) std::printf("\n- %s.\n", remark.c_str());
    return missed;
}

} // namespace

int main(int argc, char** argv) {
    try {
        if (argc != 2) throw Error("needs the folder of the data sets");
        return compare(argv[1]) == 0 ? 0 : 1;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "nist: %s\n", error.what());
        return 2;
    }
}
