// The subcommands. Each adds itself to the command line, with its options, and is run where it was chosen.
#pragma once

#include <ansatz/host/error.hpp>

#include <functional>

namespace CLI {
class App;
}

namespace ansatz::tools {

/// Exit statuses.
enum : int { done = 0, failed = 1, usage = 2 };

/// The request was right and could not be carried out: the exit status is `failed`.
class Failure : public host::Error {
public:
    using Error::Error;
};

/// What the arguments ask for. Returns the exit status and throws host::Error for what it cannot work with.
using Command = std::function<int()>;

// Each adds a subcommand that, where it is chosen, sets `chosen`. This must outlive the parsing.
void add_list(CLI::App& app, Command& chosen);
void add_show(CLI::App& app, Command& chosen);
void add_eval(CLI::App& app, Command& chosen);
void add_fit(CLI::App& app, Command& chosen);

} // namespace ansatz::tools
