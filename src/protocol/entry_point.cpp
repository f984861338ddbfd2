// The load-time entry point of the Windows DLL. There is nothing to set up or to tear down beside the C run
// time that is linked in, so loading never fails here: the answer is 1 for every reason.
#ifdef _WIN32
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

extern "C" {
BOOL WINAPI DllMainCRTStartup(HINSTANCE, DWORD, LPVOID); // the C run time's own
BOOL WINAPI ansatz_load(HINSTANCE, DWORD, LPVOID);
}

BOOL WINAPI ansatz_load(HINSTANCE library, DWORD reason, LPVOID reserved) {
    DllMainCRTStartup(library, reason, reserved);
    return 1;
}
#endif
