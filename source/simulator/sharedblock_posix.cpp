// The block as POSIX shared memory.

#include "sharedblock.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr char blockName[] = "/AeoZephanToNavigation";

/// Brings the block to its size at least and takes the memory for it. Without that the first access to a block that is
/// too short, or for which there is no memory, would be a SIGBUS.
bool reserve(int file)
{
    int error = 0;
    do {
        error = posix_fallocate(file, 0, SharedBlock::size);
    } while (error == EINTR);
    return error == 0;
}

} // namespace

SharedBlock::~SharedBlock()
{
    release();
    detach();
}

bool SharedBlock::attach()
{
    if (handle == none) {
        // The name is one for the whole machine, the permissions are the user's who made the block: another user's
        // programs are refused. A refusal is -1, which is `none`.
        handle = shm_open(blockName, O_RDWR | O_CREAT, S_IRUSR | S_IWUSR);
    }
    if (handle != none && !reserve(static_cast<int>(handle))) {
        detach();
    }
    return handle != none;
}

void* SharedBlock::map()
{
    if (view == nullptr && handle != none) {
        void* const address = mmap(nullptr, viewSize, PROT_READ | PROT_WRITE, MAP_SHARED, static_cast<int>(handle), 0);
        view = address == MAP_FAILED ? nullptr : address;
    }
    return view;
}

bool SharedBlock::holdsView() const
{
    struct stat status = {};
    return handle != none && fstat(static_cast<int>(handle), &status) == 0 &&
           status.st_size >= static_cast<off_t>(viewSize);
}

void SharedBlock::release()
{
    if (view != nullptr) {
        // A second call would take away what has since come to stand at that address.
        munmap(view, viewSize);
        view = nullptr;
    }
}

void SharedBlock::detach()
{
    if (handle != none) {
        // The name stays: a simulator that runs on, or one that starts later, is to find the same block.
        close(static_cast<int>(handle));
        handle = none;
    }
}
