// flysim on Windows: a program without Qt that starts the flysim.exe beside it and reads the block that it publishes
// in. Prints each check; its exit code tells whether all passed.
#include "aeozephannavrecord.h"
#include "sharedblock.h"

#include <cmath>
#include <cstdio>
#include <string>

#include <windows.h>

namespace {

constexpr DWORD patience = 60000; // milliseconds
constexpr DWORD step = 10;        // milliseconds
constexpr double unseen = 1e9;    // no heading

int failures = 0;

void check(bool passed, const char* what)
{
    std::printf("%s: %s\n", passed ? "pass" : "FAIL", what);
    std::fflush(stdout);
    failures += passed ? 0 : 1;
}

std::wstring besideThis(const wchar_t* file)
{
    wchar_t program[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    const std::wstring path(program);
    return path.substr(0, path.find_last_of(L"\\/") + 1) + file;
}

/// flysim with these arguments, in this program's console and group, so that Ctrl+C is for both. It prints to `output`,
/// or where this program prints.
HANDLE startFlySim(const std::wstring& arguments, HANDLE output = nullptr)
{
    std::wstring command = L"\"" + besideThis(L"flysim.exe") + L"\" " + arguments;
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    if (output != nullptr) {
        startup.dwFlags = STARTF_USESTDHANDLES;
        startup.hStdOutput = output;
    }
    PROCESS_INFORMATION process = {};
    CreateProcessW(nullptr, &command[0], nullptr, nullptr, output != nullptr, 0, nullptr, nullptr, &startup, &process);
    if (process.hThread != nullptr) {
        CloseHandle(process.hThread);
    }
    return process.hProcess;
}

/// An empty file beside this program for another to print to, gone with its handle.
HANDLE printedFile()
{
    SECURITY_ATTRIBUTES forOthers = {sizeof forOthers, nullptr, TRUE};
    return CreateFileW(besideThis(L"windowsflysim.out").c_str(), GENERIC_READ | GENERIC_WRITE,
                       FILE_SHARE_READ | FILE_SHARE_WRITE, &forOthers, CREATE_ALWAYS, FILE_FLAG_DELETE_ON_CLOSE,
                       nullptr);
}

std::string contentOf(HANDLE file)
{
    std::string text(4096, '\0');
    DWORD size = 0;
    SetFilePointer(file, 0, nullptr, FILE_BEGIN);
    ReadFile(file, &text[0], static_cast<DWORD>(text.size()), &size, nullptr);
    text.resize(size);
    return text;
}

BOOL WINAPI takesNoNotice(DWORD)
{
    return TRUE;
}

/// The exit code; a number of no process of ours when it does not end by itself.
DWORD ended(HANDLE process)
{
    DWORD exitCode = 99;
    if (WaitForSingleObject(process, patience) == WAIT_OBJECT_0) {
        GetExitCodeProcess(process, &exitCode);
    } else {
        TerminateProcess(process, exitCode);
    }
    CloseHandle(process);
    return exitCode;
}

bool isNear(double value, double wanted)
{
    return std::abs(value - wanted) < 0.001;
}

bool comesTo(const volatile double& field, double wanted)
{
    for (DWORD waited = 0; waited < patience; waited += step) {
        if (isNear(field, wanted)) {
            return true;
        }
        Sleep(step);
    }
    return false;
}

void aPositionIsPublished(volatile AeoZephanNavRecord& record)
{
    record.heading = unseen;
    const HANDLE printed = printedFile();
    const HANDLE flysim = startFlySim(L"--start 48.7295,2.359 --heading 62 --speed 0", printed);
    check(comesTo(record.heading, 62.0), "the heading is published");
    check(isNear(record.latS, 175426.2) && isNear(record.lonS, 8492.4), "and the position");
    // To the whole console: wine passes the event to no single group.
    check(GenerateConsoleCtrlEvent(CTRL_C_EVENT, 0) != 0, "Ctrl+C is pressed");
    // The exit code alone does not tell: wine gives a program that knows nothing of the keys 0 as well.
    check(ended(flysim) == 0, "it ends");
    check(contentOf(printed).find("ended; the block keeps the last position") != std::string::npos, "by itself");
    CloseHandle(printed);
    check(isNear(record.latS, 175426.2), "the last position stays");
}

void aPlanIsFlown(volatile AeoZephanNavRecord& record)
{
    const std::wstring path = besideThis(L"windowsflysim.FPL");
    FILE* file = _wfopen(path.c_str(), L"wb");
    check(file != nullptr, "a plan is written");
    if (file == nullptr) {
        return;
    }
    std::fputs("<wpnt> -\r\nuswp\r\n<llps> -\r\n3600.000,7200.000,0\r\n"
               "<wpnt> -\r\nuswp\r\n<llps> -\r\n7200.000,7200.000,0\r\n",
               file);
    std::fclose(file);
    record.heading = unseen;
    const HANDLE flysim = startFlySim(L"--speed 10000 --factor 100 --plan \"" + path + L"\"");
    check(comesTo(record.latS, 7200.0), "the plan is flown to its last point");
    check(isNear(record.lonS, 7200.0) && isNear(record.heading, 0.0), "on its course");
    TerminateProcess(flysim, 0);
    ended(flysim);
    check(isNear(record.latS, 7200.0), "a killed one leaves the block readable");
    DeleteFileW(path.c_str());
}

void complaintsHaveTheirExitCodes()
{
    check(ended(startFlySim(L"--nonsense")) == 2, "an unknown option is a wrong command line");
    check(ended(startFlySim(L"--plan no-such.FPL")) == 1, "a missing plan is nothing to fly");
    check(ended(startFlySim(L"--help")) == 0, "the help is told");
}

} // namespace

int main()
{
    // A console of its own, whose keys can be pressed, and that ends flysim alone.
    FreeConsole();
    AllocConsole();
    SetConsoleCtrlHandler(takesNoNotice, TRUE);
    SharedBlock block;
    check(block.attach() && block.map() != nullptr, "the block is there");
    auto& record = *static_cast<volatile AeoZephanNavRecord*>(block.map());
    aPositionIsPublished(record);
    aPlanIsFlown(record);
    complaintsHaveTheirExitCodes();
    std::printf("%d failures\n", failures);
    return failures == 0 ? 0 : 1;
}
