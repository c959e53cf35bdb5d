#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>

/// Refuses every delayed end of a window, of what stands in it when this object is made, and of the dialogs that it
/// shows later with what stands in them. A script of the map page reaches these objects by their names, with all their
/// slots, `deleteLater` among them; the program itself ends none of them in that way. What Qt makes in passing, such as
/// the menu of a line edit or the editor of a cell, ends as Qt likes.
///
/// Objects are told by identity, for a script may write their names; that they have gone is told by no signal, for it
/// may send `destroyed` too. It is a child of the window and lives as long.
class KeptObjects : public QObject
{
    Q_OBJECT

public:
    /// To be made when the window is complete.
    explicit KeptObjects(QObject* window);

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void keepWithChildren(QObject* root);
    bool isKept(QObject* object) const;
    /// A dialog of the window that does not end itself when it is closed.
    bool isDialogOfWindow(QObject* object) const;

    /// By the object's place in memory, where another one may come to stand: then the pointer is null.
    QHash<const QObject*, QPointer<QObject>> kept;
};
