// The block as a named section of the Windows paging file.

#include "sharedblock.h"

#include <windows.h>

SharedBlock::~SharedBlock()
{
    release();
    detach();
}

bool SharedBlock::attach()
{
    if (handle == none) {
        // "Local\": in the namespace of the logged-on user.
        wchar_t name[] = L"Local\\AeoZephanToNavigation";
        const HANDLE mapping = CreateFileMappingW(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, size, name);
        handle = mapping == nullptr ? none : reinterpret_cast<std::intptr_t>(mapping);
    }
    return handle != none;
}

void* SharedBlock::map()
{
    if (view == nullptr && handle != none) {
        view = MapViewOfFile(reinterpret_cast<HANDLE>(handle), FILE_MAP_ALL_ACCESS, 0, 0, viewSize);
    }
    return view;
}

bool SharedBlock::holdsView() const
{
    return handle != none;
}

void SharedBlock::release()
{
    if (view != nullptr) {
        // A second call would take away what has since come to stand at that address.
        UnmapViewOfFile(view);
        view = nullptr;
    }
}

void SharedBlock::detach()
{
    if (handle != none) {
        CloseHandle(reinterpret_cast<HANDLE>(handle));
        handle = none;
    }
}
