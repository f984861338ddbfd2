// The four lookups for programs that are not linked with the library: each hands over to the one in the DLL.

#include "frame/dll.h"

#include <ansatz/ansatz.h>

using ansatz::test::resolve;

FitFunction ANSATZ_CALL Get_Func(const char* name, uint16_t* pIndep, uint16_t* pDep, uint16_t* pParams,
                                 uint16_t* pReserved) {
    static const auto get = reinterpret_cast<decltype(&Get_Func)>(resolve("Get_Func", 50));
    return get(name, pIndep, pDep, pParams, pReserved);
}

FitFunction ANSATZ_CALL get_funx(const char* name) {
    static const auto get = reinterpret_cast<decltype(&get_funx)>(resolve("get_funx", 3));
    return get(name);
}

int32_t ANSATZ_CALL get_funx_list(int32_t ignored) {
    static const auto list = reinterpret_cast<decltype(&get_funx_list)>(resolve("get_funx_list", 2));
    return list(ignored);
}

int32_t ANSATZ_CALL FuncTest(uint32_t message, void* window, AnsatzTestCallback callback, void* data) {
    static const auto test = reinterpret_cast<decltype(&FuncTest)>(resolve("FuncTest", 5));
    return test(message, window, callback, data);
}
