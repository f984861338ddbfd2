/* Ansatz: whole columns of data points in one call.
 *
 * SPDX-License-Identifier: MIT
 *
 * A host that holds its data in columns need not call a model once per point. This library, ansatz_batch, runs
 * the same models over N points in one call and writes the values and the rows of the Jacobian where an
 * optimiser wants them. The numbers have the bits that N calls of the model would give.
 *
 *     const AnsatzBatchModel* gauss = ansatz_batch_find("Gauss");
 *
 *     double P[4] = {0.0, 451.5, 8.0, 4.0};               // P1..P4
 *     double x[N], y[N], jacobian[N * 4];
 *     AnsatzBatch batch = {0};
 *     batch.request = FF_DERIV;
 *     batch.nParams = 4;  batch.params = P;
 *     batch.nPoints = N;
 *     batch.nX = 1;       batch.x[0] = x;        batch.xStride[0] = 1;
 *     batch.nY = 1;       batch.y = y;           batch.yStride = 1;
 *     batch.jacobian = jacobian;                 batch.jacobianStride = 4;
 *
 *     if (ansatz_batch_run(gauss, &batch) == 0) ...       // no point failed
 *
 * Arrays count from 0 here: P1 is params[0], x1 is the column x[0]. All strides count doubles.
 *
 * The error indicator. Every point is computed with errno at 0, and the caller's errno is left as it was.
 *
 * Floating-point settings. On x86-64 a batch rounds to nearest, keeps subnormals and traps no exceptions,
 * whatever the calling thread has set, and leaves the settings as they were.
 *
 * Signals. A signal handler may run a batch with threads at 0 or 1, even where it interrupts another.
 */
#ifndef ANSATZ_BATCH_H
#define ANSATZ_BATCH_H

#include <ansatz/ansatz.h>

#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

/* The most parameters of a batch. */
#define ANSATZ_BATCH_MOST_PARAMS 512

/* A model as this library knows it. */
typedef struct AnsatzBatchModel AnsatzBatchModel;

/* What to compute, from what, and where to put it. Set all of it to zero before filling it in. */
typedef struct AnsatzBatch {
    /* FF_VALUE or FF_DERIV, with the meaning that it has in a single call: FF_DERIV computes y as well. */
    uint32_t request;

    /* The number of parameters, from 0 to ANSATZ_BATCH_MOST_PARAMS, the reference positions of an
     * expected-value model included. A parameter that the model reads beyond them is 0. */
    int32_t nParams;
    const double* params; /* P1 first; read once, when the call begins */

    size_t nPoints;

    /* The columns of the independent variables, 1 to 3 of them. Point i has x[c][i * xStride[c]]. A variable
     * that the model reads beyond them is 0. Columns are only read. */
    int32_t nX;
    const double* x[3];
    ptrdiff_t xStride[3];

    /* The outputs. Of point i, y[1] goes to y[i * yStride], y[2] after it, and so on to y[nY]; those
     * that the model does not write are 0. With nY == 0, y is not used. */
    int32_t nY;
    double* y;
    ptrdiff_t yStride;

    /* With FF_DERIV, the derivatives: row i begins at jacobian + i * jacobianStride and has nParams
     * entries, that by P1 first. An entry that the model has no value for (a peak of area zero in some models)
     * keeps what it held. Rows must not overlap one another or anything else here. */
    double* jacobian;
    ptrdiff_t jacobianStride;

    /* The status of each point, 0 or 1, when not null. */
    int32_t* status;

    /* How many threads may work on the points, the calling one included; 0 and 1 mean the calling one
     * alone, and more than 64 mean 64. They are started for the call, which pays from some ten thousand points
     * on. */
    int32_t threads;

    /* For what later versions may ask for. All 0: this one refuses what it does not know. */
    uint64_t reserved[8];
} AnsatzBatch;

/* Finds a model by its name in the catalogue, in any mix of upper and lower case; null for an unknown name. */
ANSATZ_API const AnsatzBatchModel* ANSATZ_CALL ansatz_batch_find(const char* name);

/* Computes all points. Returns how many of them failed, or -1, with nothing written, for a batch that makes no
 * sense: a null model, another request, a null pointer, a number out of range (of points, PTRDIFF_MAX) or
 * something reserved. With no points at all, columns, outputs and the Jacobian may be null.
 *
 * A point that failed has what a single call leaves behind: MISSING_VALUE in y and in the derivative slots
 * concerned. The surfaces, which mark x[2] in a single call, mark y here. */
ANSATZ_API int64_t ANSATZ_CALL ansatz_batch_run(const AnsatzBatchModel* model, const AnsatzBatch* batch);

#ifdef __cplusplus
}
#endif

#endif
