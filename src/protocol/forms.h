// The four orders in which models serve a request, written once, and the macro that makes a routine of one.
//
//   form D   value and derivatives; both bits run both paths, and the derivative path's value stands
//   form E   value or derivatives, one path per call; the value path wins
//   form V   value only; a derivative request alone is refused with status 1
//   form W   value only; a derivative request alone is answered 0 and ignored
//
// A path is a function of the Point alone. What a model answers besides is its Answers.
#pragma once

#include "protocol/errors.h"
#include "protocol/guards.h"
#include "protocol/host_arithmetic.h"
#include "protocol/point.h"

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

template <Path value, Path derivatives, Answers answers = Answers{}> struct FormD {
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

template <Path value, Path derivatives, Answers answers = Answers{}> struct FormE {
    static Status serve(unsigned flags, const Point& at) {
        if (answers.probe && (flags & FF_PROBE)) return answer_probe(at);
        if (flags & FF_QUERY_DERIV) return answers.query;
        if (flags & FF_VALUE) return value(at);
        if (flags & FF_DERIV) return derivatives(at);
        return answer_idle(answers.idle, flags);
    }
};

/// The usual refusal of form V writes nothing; a model that marks its outputs passes its own.
inline Status refuse(const Point&) {
    return failure;
}

template <Path value, Answers answers = Answers{.query = 0}, Path refusal = refuse> struct FormV {
    static Status serve(unsigned flags, const Point& at) {
        return FormE<value, refusal, answers>::serve(flags, at);
    }
};

template <Path value> struct FormW {
    static Status serve(unsigned flags, const Point& at) {
        return flags & FF_QUERY_DERIV || !(flags & FF_VALUE) ? success : value(at);
    }
};

} // namespace ansatz

/// A routine's linkage name; what it is exported as is the catalogue's business.
#define ANSATZ_ROUTINE(name)                                                                                   \
    extern "C" ANSATZ_API std::int32_t ANSATZ_CALL ansatz_##name(                                              \
        std::uint32_t flags, std::uint32_t, std::int32_t nParams, std::uint32_t, std::uint32_t,                \
        const double* params, std::uint32_t, double* x, double* y, double* dyda)

#ifndef ANSATZ_BATCH

/// Makes the routine of a model from its form: ANSATZ_MODEL(Gauss, FormD<gauss::value, gauss::derivatives>).
/// Of flags only the low byte is read, of nParams the low 16 bits, whatever the caller left above them.
#define ANSATZ_MODEL(name, ...)                                                                                \
    ANSATZ_ROUTINE(name);                                                                                      \
    ANSATZ_ROUTINE(name) {                                                                                     \
        const ansatz::OwnArithmetic own_arithmetic;                                                            \
        return __VA_ARGS__::serve(flags & 0xff,                                                                \
                                  ansatz::Point{static_cast<std::int16_t>(nParams), params, x, y, dyda});      \
    }

#else // the batch library: the same form as a loop over many points

#include "protocol/batch_loop.h"

#define ANSATZ_MODEL(name, ...)                                                                                \
    ANSATZ_LOOPS(name);                                                                                        \
    constexpr ansatz::batch::Loops ansatz_loops_##name = ansatz::batch::loops<__VA_ARGS__>;

#endif
