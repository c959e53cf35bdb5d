#pragma once

#include <QString>
#include <QtGlobal>

/// Appends one formatted line for each message to "trajector_debug.log" in the current directory.
/// A fatal message aborts before anything is written. Start-up does not install it: messages go to Qt's own sink.
void logMessageHandler(QtMsgType type, const QMessageLogContext& context, const QString& message);
