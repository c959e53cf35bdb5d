#pragma once

#include <QByteArray>

class QString;

/// Whether a section of a settings file can hold values of Qt's own that are not text ("@Variant(...)",
/// "@DateTime(...)"), however they are quoted and escaped. QSettings unpacks every such value of a section as it reads
/// one key of it, and a damaged one can ask for any amount of memory. A file that leaves open where its sections begin
/// is judged as a whole. `section` is a plain word.
bool holdsPackedValues(const QByteArray& ini, const QByteArray& section);

/// A settings file in which every packed value that can ask for memory, in any section, is the text that it looks like;
/// QSettings marks such a text by a second "@" and keeps it so. Values of a fixed size, as the map's centre is, stay.
QByteArray withHarmlessValues(const QByteArray& ini);

/// Whether a setting's text is what `withHarmlessValues` has made of a packed value: the key counts as missing.
bool isHarmlessRest(const QString& text);
