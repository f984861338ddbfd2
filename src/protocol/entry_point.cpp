// The load-time entry point of the Windows DLL: there is nothing to set up or to tear down.
#ifdef _WIN32
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD, LPVOID) {
    return 1;
}
#endif
