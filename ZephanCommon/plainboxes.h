#pragma once

#include <QObject>

/// Shows the texts of message and input boxes as they stand. Names of the databases and lines of update files come into
/// them, and with markup in it a text would be drawn as such, pictures from any file or share included. Of a text of
/// more than 8000 characters, an entry to choose among them, the first ones are shown.
/// Lives as long as its parent, and acts on all boxes of the application.
class PlainBoxes : public QObject
{
    Q_OBJECT

public:
    explicit PlainBoxes(QObject* parent);

    bool eventFilter(QObject* object, QEvent* event) override;
};
