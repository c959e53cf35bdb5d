// Keeps what the program writes through qDebug and its like.
#include "messagelog.h"

#include <QMessageLogContext>
#include <QPair>
#include <QVector>

namespace {

QVector<QPair<QtMsgType, QString>> kept;
QtMessageHandler previous = nullptr;
std::function<void(const QString&)> listening;

void keep(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    kept.append({type, message});
    if (listening)
        listening(message);
    if (previous)
        previous(type, context, message);
}

} // namespace

MessageLog::MessageLog()
{
    kept.clear();
    previous = qInstallMessageHandler(keep);
}

MessageLog::~MessageLog()
{
    qInstallMessageHandler(previous);
    previous = nullptr;
    listening = nullptr;
}

QStringList MessageLog::messages() const
{
    QStringList found;
    for (const auto& message : kept)
        found << message.second;
    return found;
}

QStringList MessageLog::messages(QtMsgType type) const
{
    QStringList found;
    for (const auto& message : kept) {
        if (message.first == type)
            found << message.second;
    }
    return found;
}

QStringList MessageLog::startingWith(const QString& label) const
{
    QStringList found;
    for (const auto& message : kept) {
        if (message.second.startsWith(label))
            found << message.second;
    }
    return found;
}

void MessageLog::clear()
{
    kept.clear();
}

void MessageLog::listen(const std::function<void(const QString&)>& listener)
{
    listening = listener;
}
