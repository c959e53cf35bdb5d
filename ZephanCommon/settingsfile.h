#pragma once

#include <QSettings>
#include <QString>
#include <QVariant>

/// A value of a file that was opened by way of `ReadableIni`; `usual` for a missing key and for what is left of a
/// packed value that could do harm.
QVariant settingsValue(const QSettings& settings, const QString& key, const QVariant& usual);

/// Whether QSettings can write the settings file at `path` without losing it and without waiting for ever; asked right
/// before. False for what is no settings file or cannot be read, without room for it, where its lock is not given back
/// within three seconds, and for a file that would first have to be made understandable and cannot be. A file of
/// two-byte characters or with packed values of no fixed size is replaced by one that QSettings understands. Its folder
/// has to be there.
bool canSaveSettings(const QString& path);
