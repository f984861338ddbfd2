/* Ansatz: model functions for nonlinear curve and surface fitting.
 *
 * SPDX-License-Identifier: MIT
 *
 * A host program looks a model up by name and calls it, one data point at a time, for the model's
 * value and for the partial derivatives of that value by each parameter:
 *
 *     uint16_t nIndep, nDep, nParams;
 *     FitFunction gauss = Get_Func("Gauss", &nIndep, &nDep, &nParams, NULL);
 *
 *     double P[5] = {0, 0.0, 451.5, 8.0, 4.0};   // P[1]..P[4]; P[0] is never touched
 *     double x[2] = {0, 450.0};                  // x[1]
 *     double y[3], dyda[5];                      // y[1] the value, y[2] the first peak alone
 *
 *     errno = 0;
 *     if (gauss(FF_DERIV, 0, 4, 0, 0, P, 0, x, y, dyda) == 0)
 *         printf("%g, slope by the area %g\n", y[1], dyda[4]);
 *
 * Arrays. All four arrays are addressed from index 1, as in the formulas: P1 is params[1]. Give each
 * one element more than it has entries, or pass a pointer to the element before the first. The only
 * use ever made of an index 0 is the answer to FF_PROBE, below.
 *
 * Who writes which slot:
 *   params     read only. A model of fixed size reads exactly the parameters of its row and ignores
 *              nParams; an expected-value model (name in EVP) reads further slots for its reference
 *              positions; a model of a varying number of peaks or terms derives the number from nParams.
 *   x          read only, with one exception: a surface that fails writes MISSING_VALUE into x[2].
 *              Surfaces are the models of two independent variables other than "Cole", "HillBurk",
 *              "Ellipse" and "Circle".
 *   y          y[1] the value. y[2], y[3], ... each peak's own contribution, without the common offset
 *              (replicated peaks), or the second dependent variable (models with nDep == 2).
 *   dyda       dyda[k] the partial derivative of y[1] by params[k]. Slots that a call has no value for
 *              (a peak of area zero in some models) keep what they held: clear them if that matters.
 *
 * The room that dyda needs, by request:
 *   FF_VALUE alone   none: null will do
 *   FF_DERIV         every slot that the model writes. A model of fixed size writes those of its row
 *                    whatever nParams says, an expected-value model those of its reference positions
 *                    besides; a model of a varying size up to one more than nParams, "Gaussian" up to
 *                    a third more. Twice the larger of nParams and the row's number is enough for all.
 *   FF_PROBE         the first four bytes, at index 0
 *   FF_QUERY_DERIV   none
 *
 * Failure. A parameter or an x outside the model's domain, a guarded division by zero, a range or a
 * domain error: the call returns 1 and writes MISSING_VALUE into y[1] and, on a derivative request, into
 * the derivative slots concerned; a model with two dependent variables marks y[1] and y[2]. Nothing is
 * ever raised, printed or allocated. Some models mark elsewhere, so look at the status first:
 *   surfaces mark x[2] and not y[1], which keeps what was summed up to then; on a derivative request the
 *   peak surfaces mark derivative slots besides;
 *   "Weibull" and "Goldman" outside their domain mark y[2], and y[1] holds the offset, or 0;
 *   "Laplace", "Poisson", "Weibull" and "Goldman" with too few parameters mark nothing;
 *   implicit models ("Ellipse", "Circle", "PlaneMod") mark y[1] and return 0 all the same.
 *
 * The error indicator is errno: ERANGE after an overflow or a pole, EDOM after an argument outside
 * a function's domain, untouched by an underflow, on every platform alike. Set it to 0 before a call: no
 * model clears it before it computes, so a value left over from elsewhere makes the call fail. After a
 * failure it is 0 again (a few models that document otherwise aside).
 *
 * Threads. Models keep no state. Any number of threads may call any models at once, each with
 * outputs of its own; errno is per thread. A signal handler may call models if it puts errno back.
 *
 * Floating-point settings. On x86-64 results do not depend on the direction of rounding and the trapped
 * exceptions that a host sets by fesetround, feenableexcept or fesetenv: a call rounds to nearest, traps
 * nothing, and leaves the host's settings as they were. What a host changes in the SSE unit's control
 * register alone, by intrinsics or by linking with -ffast-math (subnormals flushed to zero), does reach
 * the models: leave that alone, or use the batch library, which copes with it. The 32-bit Windows DLL
 * copes with everything, the precision of the x87 unit included. On other machines models compute with
 * the host's settings: leave rounding to nearest, subnormals kept and exceptions untrapped. A call may
 * add to the record of past exceptions (fetestexcept), or not.
 */
#ifndef ANSATZ_ANSATZ_H
#define ANSATZ_ANSATZ_H

#include <stdint.h>

/* While the first number is 0, a change of the second may break a caller. */
#define ANSATZ_VERSION "0.1.0"
#define ANSATZ_VERSION_MAJOR 0
#define ANSATZ_VERSION_MINOR 1
#define ANSATZ_VERSION_PATCH 0

#ifdef __cplusplus
extern "C" {
#endif

/* The calling convention of every entry point: that of the Windows API on 32-bit Windows, the
 * platform's own elsewhere. */
#if defined(_WIN32) && !defined(_WIN64)
#if defined(_MSC_VER)
#define ANSATZ_CALL __stdcall
#else
#define ANSATZ_CALL __attribute__((stdcall))
#endif
#else
#define ANSATZ_CALL
#endif

/* Marks what the shared library shows to the outside. */
#if defined(__GNUC__) && !defined(_WIN32)
#define ANSATZ_API __attribute__((visibility("default")))
#else
#define ANSATZ_API
#endif

/* Written into an output that cannot be computed. Compare with ==: no model computes it. */
#define MISSING_VALUE (-1.23456789e-300)

/* Request bits, the low byte of `flags`. FF_PROBE is examined first, then FF_QUERY_DERIV, then the
 * other two; bits above 8 are never tested. */
enum {
    /* Does the model offer analytic derivatives? 1 yes, 0 no. Nothing is computed or written.
     * The answer is fixed per model; with 0, take numerical derivatives. */
    FF_QUERY_DERIV = 1,
    /* Compute y. */
    FF_VALUE = 2,
    /* Compute dyda and, with it, y. Ask with this bit alone: together with FF_VALUE some models
     * serve the value only, and the others compute the value twice. */
    FF_DERIV = 4,
    /* Answered by a few models only, see PROBE_ANSWER and PROBE_MASK_ANSWER; ignored by the others. */
    FF_PROBE = 8
};

/* Status: 0 success, 1 failure (or the answer to FF_QUERY_DERIV), or an answer to FF_PROBE: */
enum {
    /* A 32-bit zero was written into the first four bytes at dyda (index 0), nothing else. */
    PROBE_ANSWER = -777777,
    /* A 32-bit set of bits that describes the parameter values was written there ("PearsonIV"
     * writes none). */
    PROBE_MASK_ANSWER = 88888888
};

/* A model.
 *   flags       request bits; only the low byte is read
 *   nParams     number of parameters supplied; only the low 16 bits are read, as a signed number
 *   params, x   inputs, from index 1
 *   y, dyda     outputs, from index 1
 *   reserved*   never read; pass 0
 * Returns a status. */
typedef int32_t(ANSATZ_CALL* FitFunction)(uint32_t flags, uint32_t reserved1, int32_t nParams,
                                          uint32_t reserved3, uint32_t reserved4, const double* params,
                                          uint32_t reserved6, double* x, double* y, double* dyda);

/* Finds the model of this name, in any mix of upper and lower case.
 * On success stores, through each pointer that is not null, the number of independent variables
 * (x[1]..), of dependent variables (1, or 2 when the model fills y[2] as well), of parameters (the default
 * for a model of a varying number of peaks or terms) and 0, and returns the model.
 * On an unknown name returns null and stores nothing. `name` must not be null. */
ANSATZ_API FitFunction ANSATZ_CALL Get_Func(const char* name, uint16_t* pIndep, uint16_t* pDep,
                                            uint16_t* pParams, uint16_t* pReserved);

/* The same lookup without the dimensions. */
ANSATZ_API FitFunction ANSATZ_CALL get_funx(const char* name);

/* Kept for hosts that resolve it: lists nothing and always returns 0. */
ANSATZ_API int32_t ANSATZ_CALL get_funx_list(int32_t ignored);

/* The developer test command: lists the models' names and evaluates one model with a report.
 * Lines of text go to `window` when it is not null (Windows only: message 1024, the line as the last
 * argument), else to callback(1024, line) when that is not null, else nowhere. A line is valid during
 * the call only.
 *   message 1  one line "type NAME" per model, in the catalogue's order; returns their number
 *   message 2  `data` points to an AnsatzTestRequest: calls the model and reports the status, the
 *              outputs and, under FF_DERIV, each derivative beside a central-difference estimate;
 *              returns the model's status, or -1 with the line "unknown function: NAME", or "no
 *              function named" for a null name
 *   otherwise  returns 0 and does nothing
 * Numbers are written with a point, whatever the locale. After message 2 errno is as the model left it.
 * The callback runs with the models' floating-point settings. */
typedef void(ANSATZ_CALL* AnsatzTestCallback)(uint32_t message, const char* line);

typedef struct AnsatzTestRequest {
    const char* name;
    uint32_t flags;
    int32_t nParams;
    const double* params;
    double* x;
    double* y;
    double* dyda;
} AnsatzTestRequest;

ANSATZ_API int32_t ANSATZ_CALL FuncTest(uint32_t message, void* window, AnsatzTestCallback callback,
                                        void* data);

#ifdef __cplusplus
}
#endif

#endif
