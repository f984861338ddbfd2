// Other programs, run without a shell.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace ansatz::tools {

/// The program's path by PATH; empty if there is none.
std::string find_program(std::string_view name);

struct Ended {
    int status; ///< as waitpid gives it
    std::string output, errors;

    bool well() const { return status == 0; }
    std::string how() const; ///< "it ended with status 3"
};

/// Runs the program on an input. The first argument is its name. Throws std::system_error if it cannot be run.
Ended run_program(const std::string& path, const std::vector<std::string>& arguments, std::string_view input);

} // namespace ansatz::tools
