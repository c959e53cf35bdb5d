#pragma once

#include <QObject>

/// Refuses every delayed end of a window and of what has a name in it. A script of the map page reaches these objects
/// by their names, with all their slots, `deleteLater` among them; the program itself ends none of them in that way. It
/// is a child of the window and lives as long.
class KeptObjects : public QObject
{
    Q_OBJECT

public:
    explicit KeptObjects(QObject* window);

    bool eventFilter(QObject* object, QEvent* event) override;
};
