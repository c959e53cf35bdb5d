#pragma once

#include <QByteArray>
#include <QPair>
#include <QVector>

/// The bytes of an archive in the simulator's format that holds these entries (name, data) in this order: header of
/// 276 bytes, the data, the directory of 20 bytes an entry, the names.
QByteArray podArchive(const QVector<QPair<QByteArray, QByteArray>>& entries);

/// An archive of one aircraft: an NFO entry with the maker, an SVH entry with these lines.
QByteArray podAircraft(const QByteArray& make, const QByteArray& svhText);
