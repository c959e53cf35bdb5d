#pragma once

#include <QString>

/// Where a platform lets a file be replaced or deleted while it is open, an open database goes on without its name:
/// what is written into it then is gone with the program's end, although every statement succeeds.

/// Keeps in mind which file a connection has open.
void noteDatabaseFile(const QString& connection, const QString& path);

/// False when the file of the connection no longer stands under its name; the user has then been told that nothing is
/// written. Asked ahead of every change of a database.
bool databaseIsInPlace(const QString& connection);
