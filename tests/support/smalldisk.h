#pragma once

#include <QString>

/// Gives this process mounts of its own, so that a test may put disks into its folders. Called at the head of `main`,
/// while there is one thread: a user who is not root becomes root of a namespace of his own. False where the system
/// does not allow it.
bool takeOwnMounts();
/// True when it has been called and was allowed. A test that needs a disk skips without.
bool hasOwnMounts();

/// The `main` of a test with disks.
#define TEST_MAIN_WITH_MOUNTS(TestClass)                                                                               \
    int main(int argc, char** argv)                                                                                    \
    {                                                                                                                  \
        takeOwnMounts();                                                                                               \
        QApplication application(argc, argv);                                                                          \
        TestClass test;                                                                                                \
        return QTest::qExec(&test, argc, argv);                                                                        \
    }

/// The first line of a test that wants a disk. Where every test counts (ZEPHAN_EVERY_TEST, as CI sets it) it fails
/// instead of skipping.
#define SKIP_WITHOUT_MOUNTS()                                                                                          \
    if (!hasOwnMounts()) {                                                                                             \
        QVERIFY2(!qEnvironmentVariableIsSet("ZEPHAN_EVERY_TEST"), "no mounts of its own, and every test counts");      \
        QSKIP("the system gives this test no mounts of its own");                                                      \
    }                                                                                                                  \
    Q_UNUSED(0)

/// A disk of its own, a tmpfs, in the place of a folder, with what the folder held. What is written to it is gone with
/// it. Wants `takeOwnMounts`; a disk that cannot be made ends the test program.
class SmallDisk
{
public:
    /// `bytes` is rounded up to whole pages.
    SmallDisk(const QString& place, int bytes);
    ~SmallDisk();
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

    /// Takes all room that is left but for these pages, and gives it back.
    void fill(int pagesLeft = 0);
    void makeRoom();
    /// From here on no file can be added, however much room there is.
    void takeNoFurtherFile();
    /// From here on nothing can be written, as on a disk that the system holds read-only; `unprotect` ends that. No
    /// file may be open for writing.
    void protect();
    void unprotect();

private:
    QString folder;
};

/// Lets one file of a folder on a protected disk be written all the same.
class WritableFile
{
public:
    /// `file` is there; made ahead of the protection.
    explicit WritableFile(const QString& file);
    ~WritableFile();
    WritableFile(const WritableFile&) = delete;
    WritableFile& operator=(const WritableFile&) = delete;

private:
    QString path;
};
