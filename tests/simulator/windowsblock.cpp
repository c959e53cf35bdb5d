// The shared block on Windows: a program without Qt that starts itself once more as the other side. Prints each check;
// its exit code tells whether all passed.
#include "aeozephannavrecord.h"
#include "sharedblock.h"

#include <cstdio>
#include <cstring>
#include <string>

#include <windows.h>

namespace {

constexpr wchar_t name[] = L"Local\\AeoZephanToNavigation";
constexpr int patience = 60000; // milliseconds
constexpr int step = 10;        // milliseconds

int failures = 0;

void check(bool passed, const char* what)
{
    std::printf("%s: %s\n", passed ? "pass" : "FAIL", what);
    std::fflush(stdout);
    failures += passed ? 0 : 1;
}

volatile AeoZephanNavRecord* recordOf(SharedBlock& block)
{
    return static_cast<volatile AeoZephanNavRecord*>(block.map());
}

bool blockStands(const wchar_t* blockName)
{
    const HANDLE mapping = OpenFileMappingW(FILE_MAP_READ, FALSE, blockName);
    if (mapping != nullptr)
        CloseHandle(mapping);
    return mapping != nullptr;
}

/// Waits until the other side has written this heading.
bool comesTo(const volatile AeoZephanNavRecord& record, double heading)
{
    for (int waited = 0; waited < patience; waited += step) {
        if (record.heading == heading)
            return true;
        Sleep(step);
    }
    return false;
}

/// The other process: reads the heading 1, answers with a position and 2, and holds the block until the heading is 3.
int otherSide()
{
    SharedBlock block;
    if (!block.attach() || block.map() == nullptr)
        return 2;
    volatile AeoZephanNavRecord& record = *recordOf(block);
    if (!comesTo(record, 1.0))
        return 3;
    record.latS = 174600.0;
    record.lonS = -8100.0;
    record.heading = 2.0;
    return comesTo(record, 3.0) ? 0 : 4;
}

PROCESS_INFORMATION startOtherSide()
{
    wchar_t program[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    std::wstring command = L"\"" + std::wstring(program) + L"\" other";
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process = {};
    CreateProcessW(program, &command[0], nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process);
    return process;
}

void theFirstMakesABlockOfZeros()
{
    SharedBlock block;
    check(block.map() == nullptr, "nothing is mapped without a block");
    check(!block.holdsView(), "and no view is held");
    check(!blockStands(name), "there is no block before the first attaches");
    check(block.attach(), "the first attaches");
    check(blockStands(name), "the block has the simulator's name");
    check(!blockStands(L"Local\\aeozephantonavigation"), "the name is case sensitive");
    void* const view = block.map();
    check(view != nullptr, "the view is mapped");
    check(block.holdsView(), "and the block holds it");
    const char zeros[SharedBlock::viewSize] = {};
    check(view != nullptr && std::memcmp(view, zeros, sizeof zeros) == 0, "the record reads zeros");
    check(block.attach() && block.map() == view, "attaching and mapping again change nothing");
}

void theBlockEndsWithTheLastHandle()
{
    check(!blockStands(name), "the block is gone with the last handle");
    SharedBlock block;
    check(block.attach() && recordOf(block)->heading == 0.0, "a new block reads zeros");
}

void twoProcessesShareTheBlock()
{
    SharedBlock block;
    check(block.attach() && block.map() != nullptr, "this side attaches");
    const PROCESS_INFORMATION other = startOtherSide();
    check(other.hProcess != nullptr, "the other side starts");
    recordOf(block)->heading = 1.0;
    check(comesTo(*recordOf(block), 2.0), "the other side's heading comes");
    check(recordOf(block)->latS == 174600.0 && recordOf(block)->lonS == -8100.0, "and its position");
    block.release();
    block.detach();
    check(blockStands(name), "the other side keeps the block");
    check(block.attach() && recordOf(block)->latS == 174600.0, "who comes back finds its values");
    recordOf(block)->heading = 3.0;
    DWORD exitCode = 1;
    check(WaitForSingleObject(other.hProcess, patience) == WAIT_OBJECT_0, "the other side ends");
    GetExitCodeProcess(other.hProcess, &exitCode);
    check(exitCode == 0, "content");
    CloseHandle(other.hThread);
    CloseHandle(other.hProcess);
}

bool isMapped(void* address)
{
    MEMORY_BASIC_INFORMATION page = {};
    return VirtualQuery(address, &page, sizeof page) != 0 && page.State == MEM_COMMIT;
}

void aSecondEndTakesNothingFromOthers()
{
    SharedBlock block, next;
    check(block.attach() && block.map() != nullptr, "attached anew");
    void* const view = block.map();
    block.release();
    check(!isMapped(view), "the view is released");
    check(next.attach() && next.map() == view, "the next view comes to the same place");
    block.release();
    check(isMapped(view), "a second release leaves it alone");
    block.detach();
    SharedBlock third;
    check(third.attach(), "the next handle takes the old one's number");
    block.detach();
    check(third.map() != nullptr, "a second detach leaves it alone");
}

void aNameThatIsTakenIsRefused()
{
    const HANDLE event = CreateEventW(nullptr, TRUE, FALSE, name);
    SharedBlock block;
    check(event != nullptr && !block.attach() && block.map() == nullptr, "a name that is taken otherwise is refused");
    CloseHandle(event);
    check(block.attach() && block.map() != nullptr, "and free again taken");
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc > 1 && std::strcmp(argv[1], "other") == 0)
        return otherSide();
    theFirstMakesABlockOfZeros();
    theBlockEndsWithTheLastHandle();
    twoProcessesShareTheBlock();
    aSecondEndTakesNothingFromOthers();
    theBlockEndsWithTheLastHandle();
    aNameThatIsTakenIsRefused();
    std::printf("%d failures\n", failures);
    return failures == 0 ? 0 : 1;
}
