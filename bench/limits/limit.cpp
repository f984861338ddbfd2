#include "limits/limit.hpp"

namespace bench {
namespace {

std::vector<Limit>& registered() {
    static std::vector<Limit> all;
    return all;
}

} // namespace

bool detail::add(const Limit& limit) {
    registered().push_back(limit);
    return true;
}

const std::vector<Limit>& limits() {
    return registered();
}

const Limit* find_limit(std::string_view name) {
    for (const Limit& limit : limits()) {
        if (limit.name == name) return &limit;
    }
    return nullptr;
}

} // namespace bench
