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

ANSATZ_MODEL(LangmuirTS1, Succeed)

ANSATZ_PAGE(LangmuirTS1, .title = "A reserved name", .reserved = true,
            .notes = "Reserved name, computes nothing.")

ANSATZ_PAGE(LangmuirTS2, .title = "A reserved name", .reserved = true,
            .notes = "Reserved name, computes nothing.")

ANSATZ_PAGE(Rational4P, .title = "A reserved name", .reserved = true,
            .notes = "Reserved name, computes nothing.")

ANSATZ_PAGE(ExpCSum1, .title = "A reserved name", .reserved = true, .notes = "Reserved name, computes nothing.")

ANSATZ_PAGE(ExpCSum2, .title = "A reserved name", .reserved = true, .notes = "Reserved name, computes nothing.")

ANSATZ_PAGE(ExpCSumEVP, .title = "A reserved name", .reserved = true,
            .notes = "Reserved name, computes nothing.")

ANSATZ_PAGE(Prunty, .title = "A reserved name", .reserved = true, .notes = "Reserved name, computes nothing.")

ANSATZ_PAGE(BentHyperblSmp, .title = "A reserved name", .reserved = true,
            .notes = "Reserved name, computes nothing.")

ANSATZ_MODEL(RationalEVP, Query)

ANSATZ_PAGE(RationalEVP, .title = "A reserved name", .reserved = true,
            .notes = "Reserved name, computes nothing.")

ANSATZ_MODEL(BelehradekEVP, Refuse)

ANSATZ_PAGE(BelehradekEVP, .title = "A reserved name", .reserved = true,
            .notes = "Reserved name, computes nothing.")

ANSATZ_PAGE(ChapmanEVP1, .title = "A reserved name", .reserved = true,
            .notes = "Reserved name, computes nothing.")

ANSATZ_PAGE(ChapmanEVP2, .title = "A reserved name", .reserved = true,
            .notes = "Reserved name, computes nothing.")

ANSATZ_PAGE(ChapmanEVP3, .title = "A reserved name", .reserved = true,
            .notes = "Reserved name, computes nothing.")

} // namespace ansatz
