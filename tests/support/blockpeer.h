#pragma once

#include <QProcess>
#include <QString>

/// Removes the shared block's name when it is made and when it dies, whatever stands under it, so that a test begins
/// and ends with none. Tests that use the block hold CTest's resource "shared_block".
///
/// The block has one name for all programs of the user, and a test knows no other: a simulator or a trace of theirs
/// that runs meanwhile goes on in the old block, apart from all that come later, until it is started anew; in tests of
/// flysim, which remove the name only in the end, it shows the test's aircraft. So run no flight on the machine while
/// the tests run.
class NoBlock
{
public:
    NoBlock();
    ~NoBlock();
    NoBlock(const NoBlock&) = delete;
    NoBlock& operator=(const NoBlock&) = delete;

    /// The file that stands for the block.
    static QString path();
    static void remove();
};

/// A process of its own that writes the shared block as the simulator does. It is killed when this dies.
class BlockPeer
{
public:
    BlockPeer() = default;
    ~BlockPeer();
    BlockPeer(const BlockPeer&) = delete;
    BlockPeer& operator=(const BlockPeer&) = delete;

    /// Starts the process if it does not run, and returns once it has written: arc seconds, arc seconds, degrees. What
    /// is written is the text's number, "nan" and "inf" among them. False when the process could not do it.
    bool publish(const QString& latS, const QString& lonS, const QString& heading);
    /// Kills it in the middle of its work, as a crash of the simulator would.
    void kill();

private:
    QProcess process;
};
