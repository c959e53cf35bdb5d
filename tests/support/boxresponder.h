#pragma once

#include <QMessageBox>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>

class QDialog;

/// What a modal box showed, kept for assertions after it is gone.
struct SeenBox
{
    QString className; ///< "QMessageBox", "QFileDialog", ...
    QString title;
    QString text;        ///< a message's text, an input dialog's label, else empty
    QString value;       ///< an input dialog's first value, a file dialog's folder
    QStringList choices; ///< texts of a message's buttons, entries of an input dialog, name filters of a file dialog
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QString parentClass; ///< of the widget that the box stands over; empty without one
};

/// Answers modal boxes while they block their caller, from a queue of what is expected, in order.
///
/// A box that is not the next expected one is closed, and with an answer that nobody used it fails the running test
/// when the responder dies; so make one responder in each test function.
class BoxResponder : public QObject
{
    Q_OBJECT

public:
    BoxResponder();
    ~BoxResponder() override;

    /// A message with exactly this title and text, answered by a standard button.
    void expectMessage(const QString& title, const QString& text, QMessageBox::StandardButton button = QMessageBox::Ok);
    /// The same, answered by the button with this text: boxes with buttons of their own.
    void expectMessage(const QString& title, const QString& text, const QString& buttonText);
    /// The same, title and text tested by the caller later through `seen`.
    void expectAnyMessage(QMessageBox::StandardButton button = QMessageBox::Ok);

    /// An input dialog with this title and label that gets a text or picks an item, and Ok.
    void expectInput(const QString& title, const QString& label, const QString& answer);
    void expectInputRejected(const QString& title, const QString& label);

    /// A file or folder dialog with this title that gets absolute names, and its accepting button.
    void expectFiles(const QString& title, const QStringList& names);
    void expectFilesRejected(const QString& title);

    /// Any dialog of this class; `drive` works in it and must end it.
    void expectDialog(const QString& className, const std::function<void(QDialog*)>& drive);

    /// From here on a box that is not the next expected one is no complaint: it is closed, and `seen` has it.
    void closeOthers();

    /// All boxes so far, expected or not.
    const QVector<SeenBox>& seen() const;
    /// Begins the list of the seen ones anew, for a responder that answers thousands.
    void forgetSeen();
    bool allUsed() const;
    /// What went wrong so far, with the answers that are still unused. Taken complaints no longer fail the test.
    QStringList takeComplaints();

private:
    struct Answer
    {
        QString what;                                             ///< for the complaint
        std::function<QString(QDialog*, const SeenBox&)> refuses; ///< empty when the dialog is the expected one
        std::function<void(QDialog*)> give;
    };

    void expect(const QString& className, const QString& title, const QString& text,
                const std::function<void(QDialog*)>& give);
    void complain(const QString& text);
    void poll();
    void answer(QDialog* dialog);

    QVector<Answer> answers;
    QVector<SeenBox> boxes;
    QStringList complaints;
    bool othersMayCome = false;
    QVector<QPointer<QDialog>> handled;
};
