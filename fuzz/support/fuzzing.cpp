// What every fuzzer needs of its surroundings.

#include "fuzzing.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace {

void dropMessage(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    if (type == QtFatalMsg) {
        std::fprintf(stderr, "fatal: %s\n", qPrintable(text));
        std::abort();
    }
}

} // namespace

/// Found by name by LeakSanitizer: what the font library keeps to its end is no leak of ours.
extern "C" const char* __lsan_default_suppressions() // NOLINT(bugprone-reserved-identifier): LeakSanitizer's own
{
    return "leak:libfontconfig\n";
}

void brokenProperty(const char* property, const char* file, int line)
{
    std::fprintf(stderr, "%s:%d: property broken: %s\n", file, line, property);
    std::abort();
}

QByteArray inputBytes(const std::uint8_t* data, std::size_t size)
{
    return {reinterpret_cast<const char*>(data), static_cast<int>(size)};
}

QString utf8Text(const QByteArray& bytes)
{
    return QString::fromUtf8(bytes.constData(),
                             std::max(bytes.size(), 0)); // a size below 0 would stand for "to the zero"
}

void startApplication()
{
    if (QCoreApplication::instance() != nullptr) {
        return;
    }
    qInstallMessageHandler(dropMessage);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int argumentCount = 1;
    static char programName[] = "fuzzer";
    static char* arguments[] = {programName, nullptr};
    new QApplication(argumentCount, arguments); // until the process ends: at its exit much of Qt is gone already
}

QString scratchFile(const QString& name, const QByteArray& bytes)
{
    static const QTemporaryDir folder;
    const QString path = folder.filePath(name);
    QFile file(path);
    const bool written = file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && file.write(bytes) == bytes.size();
    if (!written) {
        std::fprintf(stderr, "%s cannot be written\n", qPrintable(path));
        std::abort();
    }
    return path;
}
