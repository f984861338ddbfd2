// The rows that compute nothing, and the three routines that answer for them as hosts know it. With no request
// bit they return the flags byte, which differs from 0 under FF_PROBE.

#include "protocol/forms.h"

namespace ansatz::placeholders {
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

ANSATZ_MODEL(LangmuirTS1, Succeed)

ANSATZ_PAGE(LangmuirTS1, .title = "A reserved name: nothing is computed", .reserved = true,
            .notes = "Every request is answered with success, and nothing is written: y keeps what it held.")

ANSATZ_PAGE(LangmuirTS2, .title = "A reserved name: nothing is computed", .reserved = true,
            .notes = "Every request is answered with success, and nothing is written: y keeps what it held.")

ANSATZ_PAGE(Rational4P, .title = "A reserved name: nothing is computed", .reserved = true,
            .notes = "Every request is answered with success, and nothing is written: y keeps what it held.")

ANSATZ_PAGE(ExpCSum1, .title = "A reserved name: nothing is computed", .reserved = true,
            .notes = "Every request is answered with success, and nothing is written: y keeps what it held.")

ANSATZ_PAGE(ExpCSum2, .title = "A reserved name: nothing is computed", .reserved = true,
            .notes = "Every request is answered with success, and nothing is written: y keeps what it held.")

ANSATZ_PAGE(ExpCSumEVP, .title = "A reserved name: nothing is computed", .reserved = true,
            .notes = "Every request is answered with success, and nothing is written: y keeps what it held.")

ANSATZ_PAGE(Prunty, .title = "A reserved name: nothing is computed", .reserved = true,
            .notes = "Every request is answered with success, and nothing is written: y keeps what it held.")

ANSATZ_PAGE(BentHyperblSmp, .title = "A reserved name: nothing is computed", .reserved = true,
            .notes = "Every request is answered with success, and nothing is written: y keeps what it held.")

ANSATZ_MODEL(RationalEVP, Query)

ANSATZ_PAGE(RationalEVP, .title = "A reserved name: nothing is computed", .reserved = true,
            .notes = "Claims to have derivatives. Every request is answered with success, and nothing is "
                     "written: y keeps what it held.")

ANSATZ_MODEL(BelehradekEVP, Refuse)

ANSATZ_PAGE(BelehradekEVP, .title = "A reserved name: nothing is computed", .reserved = true,
            .notes = "Every request is refused with status 1, and nothing is written: y keeps what it held.")

ANSATZ_PAGE(ChapmanEVP1, .title = "A reserved name: nothing is computed", .reserved = true,
            .notes = "Every request is refused with status 1, and nothing is written: y keeps what it held.")

ANSATZ_PAGE(ChapmanEVP2, .title = "A reserved name: nothing is computed", .reserved = true,
            .notes = "Every request is refused with status 1, and nothing is written: y keeps what it held.")

ANSATZ_PAGE(ChapmanEVP3, .title = "A reserved name: nothing is computed", .reserved = true,
            .notes = "Every request is refused with status 1, and nothing is written: y keeps what it held.")

} // namespace ansatz::placeholders
