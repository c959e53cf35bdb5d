// Stands in front of Qt's modal boxes: the dynamic linker takes the program's own function before the library's. A box
// that is really shown costs more than everything that leads to it, and an input can bring about a box a line.

#include "answeredboxes.h"

#include <QInputDialog>
#include <QMessageBox>

namespace {

QVector<ShownBox> shown;
bool goingOn = false;

QMessageBox::StandardButton answer(const QString& title, const QString& text, QMessageBox::StandardButtons buttons)
{
    shown.append({title, text});
    return goingOn || !buttons.testFlag(QMessageBox::Cancel) ? QMessageBox::Ok : QMessageBox::Cancel;
}

} // namespace

const QVector<ShownBox>& shownBoxes()
{
    return shown;
}

void forgetBoxes()
{
    shown.clear();
}

void answerBoxes(bool goOn)
{
    goingOn = goOn;
}

QMessageBox::StandardButton QMessageBox::information(QWidget*, const QString& title, const QString& text,
                                                     StandardButtons buttons, StandardButton)
{
    return answer(title, text, buttons);
}

QMessageBox::StandardButton QMessageBox::question(QWidget*, const QString& title, const QString& text,
                                                  StandardButtons buttons, StandardButton)
{
    return answer(title, text, buttons);
}

QMessageBox::StandardButton QMessageBox::warning(QWidget*, const QString& title, const QString& text,
                                                 StandardButtons buttons, StandardButton)
{
    return answer(title, text, buttons);
}

QMessageBox::StandardButton QMessageBox::critical(QWidget*, const QString& title, const QString& text,
                                                  StandardButtons buttons, StandardButton)
{
    return answer(title, text, buttons);
}

// The question before a deletion is a box of its own, the edit dialogs are dialogs.
int QDialog::exec()
{
    shown.append({windowTitle(), QString()});
    if (qobject_cast<QMessageBox*>(this) != nullptr) {
        return goingOn ? QMessageBox::Ok : QMessageBox::Cancel;
    }
    return goingOn ? Accepted : Rejected;
}

QString QInputDialog::getItem(QWidget*, const QString& title, const QString& label, const QStringList& items,
                              int current, bool, bool* ok, Qt::WindowFlags, Qt::InputMethodHints)
{
    shown.append({title, label});
    if (ok != nullptr) {
        *ok = goingOn;
    }
    return goingOn ? items.value(current) : QString();
}
