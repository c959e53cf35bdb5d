#include "textfields.h"

#include <QLineEdit>

void showStored(QLineEdit* field, const QString& text)
{
    field->setMaxLength(qMax(field->maxLength(), text.size()));
    field->setText(text);
}

void showInCapitals(QLineEdit* field, const QString& typed)
{
    const int cursor = field->cursorPosition();
    field->setText(typed.toUpper());
    field->setCursorPosition(cursor);
}
