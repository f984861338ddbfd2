/* A program outside the project: whole columns through the batch library, on two threads. */
#include <ansatz/batch.h>

#include <stdio.h>

enum { N = 1000 };

int main(void) {
    static double x[N], y[N], jacobian[N][2];
    const double P[] = {1.0, 0.5}; /* of a line */
    AnsatzBatch batch = {0};
    int i;
    for (i = 0; i < N; ++i) x[i] = i;
    batch.request = FF_DERIV;
    batch.nParams = 2;
    batch.params = P;
    batch.nPoints = N;
    batch.nX = 1;
    batch.x[0] = x;
    batch.xStride[0] = 1;
    batch.nY = 1;
    batch.y = y;
    batch.yStride = 1;
    batch.jacobian = jacobian[0];
    batch.jacobianStride = 2;
    batch.threads = 2;
    if (ansatz_batch_run(ansatz_batch_find("Line"), &batch) != 0) return 1;
    printf("%g %g\n", y[N - 1], jacobian[N - 1][1]);
    return y[N - 1] == 1 + 0.5 * (N - 1) && jacobian[N - 1][1] == N - 1 ? 0 : 2;
}
