#include "stoprequest.h"

#include <windows.h>

#include <algorithm>

namespace {

// Set once the program shall stop, and never reset.
HANDLE asked = nullptr;

// The system calls it in a thread of its own; once it returns from the closing of the console, the process is ended.
BOOL WINAPI remember(DWORD event)
{
    switch (event) {
    case CTRL_C_EVENT:
    case CTRL_BREAK_EVENT:
    case CTRL_CLOSE_EVENT:
        return SetEvent(asked);
    default:
        return FALSE;
    }
}

} // namespace

void listenForStop()
{
    asked = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    if (asked != nullptr) {
        SetConsoleCtrlHandler(remember, TRUE);
    }
}

bool stopAskedBefore(std::chrono::steady_clock::time_point moment)
{
    using Milliseconds = std::chrono::duration<long long, std::milli>;
    const long long left = std::chrono::duration_cast<Milliseconds>(moment - std::chrono::steady_clock::now()).count();
    const DWORD wait = static_cast<DWORD>(std::clamp(left, 0LL, 3600000LL));
    if (asked == nullptr) {
        Sleep(wait);
        return false;
    }
    return WaitForSingleObject(asked, wait) == WAIT_OBJECT_0;
}
