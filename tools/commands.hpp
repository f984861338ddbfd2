// The subcommands. Each returns the exit status and throws host::Error for what it cannot work with.
#pragma once

#include <ansatz/host/error.hpp>

#include <string>
#include <vector>

namespace ansatz::tools {

/// Exit statuses.
enum : int { done = 0, failed = 1, usage = 2 };

/// The request was right and could not be carried out: the exit status is `failed`.
class Failure : public host::Error {
public:
    using Error::Error;
};

struct ListOptions {
    std::string pattern;
    bool json = false;
};
int list(const ListOptions& options);

struct ShowOptions {
    std::string model;
    bool json = false;
};
int show(const ShowOptions& options);

struct EvalOptions {
    std::string model;
    std::vector<std::string> params, x;
    bool derivatives = false, json = false;
};
int eval(const EvalOptions& options);

struct FitCommandOptions {
    std::string model, data;
    std::vector<std::string> start, fix, free, lower, upper, x, y, weights, errors;
    std::string plot;
    int skip = 0, max_iterations = 1000;
    bool known_errors = false, numerical = false, progress = false, json = false;
};
int fit(const FitCommandOptions& options);

} // namespace ansatz::tools
