#include "logmessagehandler.h"

#include <QFile>
#include <QTextStream>

#include <cstdlib>
#include <iterator>

namespace {

// By message type; padded so that the places stand below one another in the log.
const char* const patterns[] = {
    "[debug   ] (%1 : %2) - %3",
    "[warning ] (%1 : %2) - %3",
    "[critical] (%1 : %2) - %3",
    "[fatal   ] (%1 : %2) - %3",
};

/// A type without a pattern gives an empty line.
QString formatted(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    const auto index = static_cast<std::size_t>(type);
    if (index >= std::size(patterns)) {
        return QString();
    }
    return QString(QLatin1String(patterns[index]))
        .arg(QString::fromUtf8(context.function), QString::number(context.line), message);
}

} // namespace

void logMessageHandler(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    const QString line = formatted(type, context, message);
    if (type == QtFatalMsg) {
        // On purpose before the file is opened: the line is not written.
        std::abort();
    }
    // Opened and closed for each message, so that nothing is lost when the process dies.
    QFile file(QStringLiteral("trajector_debug.log"));
    file.open(QIODevice::WriteOnly | QIODevice::Append);
    QTextStream stream(&file);
    stream << line << Qt::endl;
}
