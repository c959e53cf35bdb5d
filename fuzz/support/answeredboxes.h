#pragma once

#include <QString>
#include <QVector>

/// A box that the program has shown.
struct ShownBox
{
    QString title;
    QString text;
};

/// The boxes since the last call of `forgetBoxes`.
const QVector<ShownBox>& shownBoxes();
void forgetBoxes();

/// Whether questions are answered with what goes on (OK, the first entry, an accepted dialog) or with Cancel.
void answerBoxes(bool goOn);
