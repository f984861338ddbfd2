// What the subcommands' options have in common.
#pragma once

#include "commands.hpp"

#include <CLI/CLI.hpp>

#include <memory>
#include <string>
#include <vector>

namespace ansatz::tools {

/// Sets `chosen` to run with these options where this subcommand is chosen.
template <class Options> void run_where_chosen(CLI::App& subcommand, Command& chosen,
                                               std::shared_ptr<const Options> options,
                                               int (*run)(const Options&)) {
    subcommand.callback(
        [&chosen, options = std::move(options), run] { chosen = [options, run] { return run(*options); }; });
}

/// An option that takes one list at a time, as attach_lists() leaves them, and may be given several times.
inline CLI::Option* add_lists(CLI::App& to, const std::string& name, std::vector<std::string>& values,
                              const std::string& type, const std::string& help) {
    return to.add_option(name, values, help)
        ->expected(1)
        ->allow_extra_args(false)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
        ->type_name(type);
}

} // namespace ansatz::tools
