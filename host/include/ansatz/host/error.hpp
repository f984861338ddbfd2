// What the host library throws. Every message is one complete, plain sentence for the user, without a final
// stop. Names and cells that it quotes are as in printable().
#pragma once

#include <ansatz/host/text.hpp>

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace ansatz::host {

/// The request or the data cannot be worked with.
class Error : public std::runtime_error {
public:
    explicit Error(std::string_view message) : std::runtime_error(printable(message)) {}
};

/// No model has this name.
class UnknownModel : public Error {
public:
    UnknownModel(const std::string& name, std::vector<std::string> nearest);
    const std::vector<std::string>& nearest() const { return nearest_; }

private:
    std::vector<std::string> nearest_; ///< similar names, the most similar first; may be empty
};

/// The fit was set up properly but could not be carried out.
class FitError : public Error {
public:
    using Error::Error;
};

} // namespace ansatz::host
