#pragma once

#include <QStringList>
#include <QtGlobal>

#include <functional>

/// Keeps the debug, warning and critical messages written while it lives, and passes them on to the test's own log.
/// One at a time.
class MessageLog
{
public:
    MessageLog();
    ~MessageLog();
    MessageLog(const MessageLog&) = delete;
    MessageLog& operator=(const MessageLog&) = delete;

    /// All messages in their order, with the blanks that the debug stream sets between its parts.
    QStringList messages() const;
    /// Those of one type.
    QStringList messages(QtMsgType type) const;
    /// Those that begin with a label.
    QStringList startingWith(const QString& label) const;
    void clear();
    /// From here on `listener` is called with each message in the moment in which it is written.
    void listen(const std::function<void(const QString&)>& listener);
};
