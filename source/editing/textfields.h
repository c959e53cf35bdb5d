#pragma once

#include <QString>

class QLineEdit;

/// Shows a stored text whole. A field's limit is for typing: a longer text of the database is not cut, or saving the
/// row unchanged would change it.
void showStored(QLineEdit* field, const QString& text);

/// Puts what the user has just typed back in capitals; the cursor stays where it is.
void showInCapitals(QLineEdit* field, const QString& typed);
