// Routines behind rows that compute nothing: three placeholders that hosts know.
// With no request bit they return the flags byte, which differs from 0 under FF_PROBE.

#include "protocol/forms.h"

namespace ansatz {
namespace {

constexpr unsigned any_work = FF_VALUE | FF_DERIV;

/// Reports success for every request and writes nothing: y keeps what the caller had in it.
struct Succeed {
    static Status serve(unsigned flags, const Point&) {
        return flags & (FF_QUERY_DERIV | any_work) ? success : static_cast<Status>(flags);
    }
};

/// The same, but claims analytic derivatives.
struct Query {
    static Status serve(unsigned flags, const Point&) {
        if (flags & FF_QUERY_DERIV) return 1;
        return flags & any_work ? success : static_cast<Status>(flags);
    }
};

/// Refuses every request without marking any output.
struct Refuse {
    static Status serve(unsigned flags, const Point&) {
        if (flags & FF_QUERY_DERIV) return 0;
        return flags & any_work ? failure : static_cast<Status>(flags);
    }
};

} // namespace
} // namespace ansatz

ANSATZ_MODEL(SucceedPlaceholder, ansatz::Succeed)
ANSATZ_MODEL(QueryPlaceholder, ansatz::Query)
ANSATZ_MODEL(RefusePlaceholder, ansatz::Refuse)
