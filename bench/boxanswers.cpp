#include "boxanswers.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QTimer>

BoxAnswers::BoxAnswers(QObject* parent) : QObject(parent)
{
    qApp->installEventFilter(this);
}

bool BoxAnswers::eventFilter(QObject* watched, QEvent* event)
{
    auto* dialog = event->type() == QEvent::Show ? qobject_cast<QDialog*>(watched) : nullptr;
    if (dialog != nullptr) {
        QTimer::singleShot(0, this, [this, shown = QPointer<QDialog>(dialog)] {
            if (shown) {
                answer(*shown);
            }
        });
    }
    return false;
}

void BoxAnswers::answer(QDialog& dialog) const
{
    if (const auto* box = qobject_cast<QMessageBox*>(&dialog)) {
        for (auto button : {QMessageBox::Ok, QMessageBox::Yes}) {
            if (QAbstractButton* wanted = box->button(button)) {
                wanted->click();
                return;
            }
        }
    }
    if (qobject_cast<QFileDialog*>(&dialog) != nullptr) {
        dialog.findChild<QLineEdit*>("fileNameEdit")->setText(file);
    }
    if (qobject_cast<QFileDialog*>(&dialog) != nullptr || qobject_cast<QInputDialog*>(&dialog) != nullptr) {
        QMetaObject::invokeMethod(&dialog, "accept"); // a file dialog's own is not open to others
        return;
    }
    dialog.reject();
}
