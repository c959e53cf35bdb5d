#pragma once

#include <QString>

/// A text out of a file or a statement as a message box, a title or a list can show it. The lines of update files fit
/// in as they are; of a longer text (a picture taken for an update file is one line of megabytes) the first 2000
/// characters stay, and "...".
QString boxText(const QString& text);
