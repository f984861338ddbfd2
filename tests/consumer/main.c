/* A program outside the project: finds a model, calls it, checks the numbers. */
#include <ansatz/ansatz.h>

#include <errno.h>
#include <stdio.h>

int main(void) {
    uint16_t nIndep, nDep, nParams;
    const double P[] = {0, 1.0, 0.0, 2.0, 3.0}; /* offset, centre, width, area of one Lorentzian */
    double x[] = {0, 1.0}, y[3], dyda[5];
    FitFunction lorentz = Get_Func("lorentz", &nIndep, &nDep, &nParams, NULL);
    if (!lorentz || nIndep != 1 || nDep != 1 || nParams != 4) return 1;
    errno = 0;
    if (lorentz(FF_DERIV, 0, nParams, 0, 0, P, 0, x, y, dyda) != 0) return 2;
    printf("%.15g %.15g\n", y[1], dyda[4]);
    /* half of the peak's height 2 A / (pi w) at half its width */
    return y[1] - 1.0 > 0.477 && y[1] - 1.0 < 0.478 ? 0 : 3;
}
