#pragma once

#include <QByteArray>

/// Whether a section of a settings file can hold values of Qt's own that are not text ("@Variant(...)",
/// "@DateTime(...)"), however they are quoted and escaped. QSettings unpacks every such value of a section as it reads
/// one key of it, and a damaged one can ask for any amount of memory. A file that leaves open where its sections begin
/// is judged as a whole. `section` is a plain word.
bool holdsPackedValues(const QByteArray& ini, const QByteArray& section);
