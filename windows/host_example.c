/* A host: loads ansatz.dll, finds one routine by name, the same by ordinal, a model, and computes a point of
 * it. */
#include <ansatz/ansatz.h>

#include <stdio.h>
#include <windows.h>

typedef FitFunction(ANSATZ_CALL* GetFunc)(const char*, uint16_t*, uint16_t*, uint16_t*, uint16_t*);

int main(void) {
    HMODULE library = LoadLibraryA("ansatz.dll");
    if (!library) return 1;
    GetFunc get_func = (GetFunc)(uintptr_t)GetProcAddress(library, "Get_Func");
    GetFunc by_ordinal = (GetFunc)(uintptr_t)GetProcAddress(library, MAKEINTRESOURCEA(50));
    /* The error indicator is the errno of msvcrt.dll, whichever C library this program uses. */
    int* (*indicator)(void) =
        (int* (*)(void))(uintptr_t)GetProcAddress(GetModuleHandleA("msvcrt.dll"), "_errno");
    if (!get_func || get_func != by_ordinal || !indicator) return 2;

    uint16_t nIndep, nDep, nParams;
    FitFunction gauss = get_func("Gauss", &nIndep, &nDep, &nParams, NULL);
    if (!gauss) return 3;
    double P[] = {0, 0.0, 451.5, 8.0, 4.0}, x[] = {0, 450.0}, y[3], dyda[5]; /* all count from 1 */
    *indicator() = 0;
    if (gauss(FF_DERIV, 0, nParams, 0, 0, P, 0, x, y, dyda) != 0) return 4;
    printf("%.9f, slope by the area %.9f\n", y[1], dyda[4]);
    return 0;
}
