// Answers to modal boxes: polls for the active one and gives it the next answer of the queue.
#include "boxresponder.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QTimer>
#include <QtTest>

namespace {

constexpr int pollInterval = 5;     // milliseconds
constexpr int patience = 10 * 1000; // milliseconds until an answered box that stays open is closed

SeenBox describe(QDialog* dialog)
{
    SeenBox box;
    box.className = QString::fromLatin1(dialog->metaObject()->className());
    box.title = dialog->windowTitle();
    if (const QWidget* parent = dialog->parentWidget())
        box.parentClass = QString::fromLatin1(parent->metaObject()->className());
    if (const auto* message = qobject_cast<QMessageBox*>(dialog)) {
        box.text = message->text();
        box.icon = message->icon();
        for (const QAbstractButton* button : message->buttons())
            box.choices << button->text();
    } else if (const auto* input = qobject_cast<QInputDialog*>(dialog)) {
        box.text = input->labelText();
        box.value = input->textValue();
        box.choices = input->comboBoxItems();
    } else if (const auto* files = qobject_cast<QFileDialog*>(dialog)) {
        box.value = files->directory().path();
        box.choices = files->nameFilters();
    }
    return box;
}

QString quoted(const SeenBox& box)
{
    return QStringLiteral("%1 \"%2\" \"%3\"").arg(box.className, box.title, box.text);
}

/// QFileDialog keeps its accept protected, QMetaObject reaches it.
void accept(QDialog* dialog)
{
    QMetaObject::invokeMethod(dialog, "accept");
}

QAbstractButton* buttonWithText(const QMessageBox* message, const QString& text)
{
    for (QAbstractButton* button : message->buttons()) {
        if (button->text() == text)
            return button;
    }
    return nullptr;
}

} // namespace

BoxResponder::BoxResponder()
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QTimer::singleShot(pollInterval, this, &BoxResponder::poll);
}

BoxResponder::~BoxResponder()
{
    const QStringList left = takeComplaints();
    if (!left.isEmpty())
        QTest::qFail(qPrintable(left.join('\n')), __FILE__, __LINE__);
}

void BoxResponder::expect(const QString& className, const QString& title, const QString& text,
                          const std::function<void(QDialog*)>& give)
{
    SeenBox wanted;
    wanted.className = className;
    wanted.title = title;
    wanted.text = text;
    const QString what = quoted(wanted);
    answers << Answer{what,
                      [what](QDialog*, const SeenBox& box) {
                          return quoted(box) == what
                                     ? QString()
                                     : QStringLiteral("box %1 came instead of %2").arg(quoted(box), what);
                      },
                      give};
}

void BoxResponder::expectMessage(const QString& title, const QString& text, QMessageBox::StandardButton button)
{
    expect("QMessageBox", title, text, [this, button](QDialog* dialog) {
        if (QAbstractButton* found = qobject_cast<QMessageBox*>(dialog)->button(button))
            return found->click();
        complain(QStringLiteral("no standard button %1 in %2").arg(button).arg(quoted(describe(dialog))));
        dialog->reject();
    });
}

void BoxResponder::expectMessage(const QString& title, const QString& text, const QString& buttonText)
{
    expect("QMessageBox", title, text, [this, buttonText](QDialog* dialog) {
        if (QAbstractButton* found = buttonWithText(qobject_cast<QMessageBox*>(dialog), buttonText))
            return found->click();
        complain(QStringLiteral("no button \"%1\" in %2").arg(buttonText, quoted(describe(dialog))));
        dialog->reject();
    });
}

void BoxResponder::expectAnyMessage(QMessageBox::StandardButton button)
{
    expectMessage(QString(), QString(), button);
    answers.last().what = QStringLiteral("any QMessageBox");
    answers.last().refuses = [](QDialog* dialog, const SeenBox& box) {
        return qobject_cast<QMessageBox*>(dialog) ? QString() : QStringLiteral("box %1 is no message").arg(quoted(box));
    };
}

void BoxResponder::expectInput(const QString& title, const QString& label, const QString& answer)
{
    expect("QInputDialog", title, label, [this, answer](QDialog* dialog) {
        auto* input = qobject_cast<QInputDialog*>(dialog);
        const QStringList items = input->comboBoxItems();
        if (!items.isEmpty() && !input->isComboBoxEditable() && !items.contains(answer))
            complain(QStringLiteral("no item \"%1\" in %2").arg(answer, quoted(describe(dialog))));
        input->setTextValue(answer);
        accept(input);
    });
}

void BoxResponder::expectInputRejected(const QString& title, const QString& label)
{
    expect("QInputDialog", title, label, [](QDialog* dialog) { dialog->reject(); });
}

void BoxResponder::expectFiles(const QString& title, const QStringList& names)
{
    expect("QFileDialog", title, QString(), [this, names](QDialog* dialog) {
        auto* edit = dialog->findChild<QLineEdit*>("fileNameEdit");
        if (!edit) {
            complain(QStringLiteral("no field for the name in %1").arg(quoted(describe(dialog))));
            return dialog->reject();
        }
        edit->setText(names.size() == 1 ? names.first() : '"' + names.join("\" \"") + '"');
        accept(dialog);
    });
}

void BoxResponder::expectFilesRejected(const QString& title)
{
    expect("QFileDialog", title, QString(), [](QDialog* dialog) { dialog->reject(); });
}

void BoxResponder::expectDialog(const QString& className, const std::function<void(QDialog*)>& drive)
{
    answers << Answer{className,
                      [className](QDialog*, const SeenBox& box) {
                          return box.className == className
                                     ? QString()
                                     : QStringLiteral("box %1 came instead of a %2").arg(quoted(box), className);
                      },
                      drive};
}

void BoxResponder::closeOthers()
{
    othersMayCome = true;
}

const QVector<SeenBox>& BoxResponder::seen() const
{
    return boxes;
}

void BoxResponder::forgetSeen()
{
    boxes.clear();
}

bool BoxResponder::allUsed() const
{
    return answers.isEmpty();
}

QStringList BoxResponder::takeComplaints()
{
    QStringList all;
    all.swap(complaints);
    for (const Answer& unused : answers)
        all << QStringLiteral("nobody used the answer for %1").arg(unused.what);
    answers.clear();
    return all;
}

void BoxResponder::complain(const QString& text)
{
    complaints << text;
}

void BoxResponder::poll()
{
    // A new shot each time, and before the answer: an answer can open the next box and block in here.
    QTimer::singleShot(pollInterval, this, &BoxResponder::poll);
    QWidget* active = QApplication::activeModalWidget();
    if (!active)
        return;
    auto* dialog = qobject_cast<QDialog*>(active);
    if (!dialog || handled.contains(dialog))
        return;
    handled << dialog;
    answer(dialog);
}

void BoxResponder::answer(QDialog* dialog)
{
    const SeenBox box = describe(dialog);
    boxes << box;
    const QPointer<QDialog> guard(dialog);
    const QString refusal = answers.isEmpty() ? QStringLiteral("nobody expected %1").arg(quoted(box))
                                              : answers.first().refuses(dialog, box);
    if (!refusal.isEmpty()) {
        if (!othersMayCome)
            complain(refusal);
        dialog->reject();
    } else {
        answers.takeFirst().give(dialog);
    }
    // The static functions of the boxes end them on the stack: a box of the next call can stand at the same place.
    handled.removeAll(nullptr);
    if (guard && !guard->isVisible()) {
        handled.removeAll(dialog);
        return;
    }
    QTimer::singleShot(patience, this, [this, guard] {
        if (!guard || !guard->isVisible())
            return;
        complain(QStringLiteral("still open after its answer: %1").arg(quoted(describe(guard))));
        guard->reject();
    });
}
