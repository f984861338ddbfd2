// The four orders in which models serve a request, written once.
//
//   BothPaths        value and derivatives; a call for both runs both paths, and what the derivatives' path
//   writes stands OnePath          value or derivatives; a call for both is served the value alone
//   ValueOrRefusal   value only; a request for derivatives alone is refused with status 1
//   ValueOrNothing   value only; a request for derivatives alone is answered 0 and ignored
//
// A path is a function of the Point alone. What a model answers besides is its Answers. The macros that make a
// routine of a form, ANSATZ_MODEL, and a page of its description, ANSATZ_PAGE, come from the build
// (build/entry.h).
#pragma once

#include "protocol/errors.h"
#include "protocol/guards.h"
#include "protocol/point.h"

#include "build/entry.h"

namespace ansatz {

/// What a call with neither FF_VALUE nor FF_DERIV returns.
enum class Idle { zero, flags, one };

/// A model's fixed answers. The query's is not always the truth: some models offer derivatives and deny it.
struct Answers {
    Status query = 1;       ///< to FF_QUERY_DERIV
    bool probe = false;     ///< plain answer to FF_PROBE?
    Idle idle = Idle::zero; ///< to a call that requests nothing
};

/// Writes a 32-bit code into the first four bytes at dyda, where no other request writes.
inline Status answer_probe(const Point& at, std::int32_t code, Status answer) {
    __builtin_memcpy(at.dyda, &code, sizeof code);
    return answer;
}

inline Status answer_probe(const Point& at) {
    return answer_probe(at, 0, PROBE_ANSWER);
}

inline Status answer_idle(Idle idle, unsigned flags) {
    switch (idle) {
    case Idle::flags: return static_cast<Status>(flags);
    case Idle::one: return 1;
    case Idle::zero: break;
    }
    return success;
}

template <Path value, Path derivatives, Answers answers = Answers{}> struct BothPaths {
    static Status serve(unsigned flags, const Point& at) {
        if (answers.probe && (flags & FF_PROBE)) return answer_probe(at);
        if (flags & FF_QUERY_DERIV) return answers.query;
        if (flags & FF_VALUE) {
            const Status status = value(at);
            if (status == ends_call) return success;
            if (status != success) return status;
            if (!(flags & FF_DERIV)) return success;
        }
        if (flags & FF_DERIV) return derivatives(at);
        return answer_idle(answers.idle, flags);
    }
};

template <Path value, Path derivatives, Answers answers = Answers{}> struct OnePath {
    static Status serve(unsigned flags, const Point& at) {
        if (answers.probe && (flags & FF_PROBE)) return answer_probe(at);
        if (flags & FF_QUERY_DERIV) return answers.query;
        if (flags & FF_VALUE) return value(at);
        if (flags & FF_DERIV) return derivatives(at);
        return answer_idle(answers.idle, flags);
    }
};

/// The usual refusal writes nothing; a model that marks its outputs passes its own.
inline Status refuse(const Point&) {
    return failure;
}

template <Path value, Answers answers = Answers{.query = 0}, Path refusal = refuse> struct ValueOrRefusal {
    static Status serve(unsigned flags, const Point& at) {
        return OnePath<value, refusal, answers>::serve(flags, at);
    }
};

template <Path value> struct ValueOrNothing {
    static Status serve(unsigned flags, const Point& at) {
        return flags & FF_QUERY_DERIV || !(flags & FF_VALUE) ? success : value(at);
    }
};

} // namespace ansatz
