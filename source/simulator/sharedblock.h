#pragma once

#include <cstddef>
#include <cstdint>

/// The named block of memory through which the running simulator tells its aircraft's state to its companions.
///
/// Four steps, each of which may be repeated without harm: attach, map, release, detach. Whoever comes first makes the
/// block, filled with zeros. There is one file for each platform; on POSIX the block outlives its users, on Windows it
/// ends with the last of them. Free of Qt, so that the simulator's side can use it as well.
class SharedBlock
{
public:
    static constexpr std::size_t size = 256;    ///< bytes of the block
    static constexpr std::size_t viewSize = 80; ///< bytes of it that are mapped: an AeoZephanNavRecord

    SharedBlock() = default;
    /// Releases and detaches.
    ~SharedBlock();
    SharedBlock(const SharedBlock&) = delete;
    SharedBlock& operator=(const SharedBlock&) = delete;

    /// Opens the block, or makes it. True also when already attached: a block that somebody has cut short is then
    /// brought to its size again. When the system refuses, false and not attached.
    bool attach();
    /// The block's first bytes, readable and writable; the same address until `release`. Null when not attached or when
    /// the system refuses.
    void* map();
    /// Whether the attached block still has all bytes of the view. On POSIX any process of the user may cut it short
    /// under a view, and an access to a byte that is gone ends the process; `attach` brings them back. On Windows a
    /// block never shrinks. Cheap enough to be asked before each look. False when not attached.
    bool holdsView() const;
    /// Gives the view back: its address is invalid from here on.
    void release();
    /// Leaves the block. A view that is still mapped stays valid.
    void detach();

private:
    static constexpr std::intptr_t none = -1;

    std::intptr_t handle = none; ///< a file descriptor on POSIX, a HANDLE on Windows
    void* view = nullptr;
};
