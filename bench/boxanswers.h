#pragma once

#include <QObject>
#include <QString>

class QDialog;

/// Answers each box of the program as soon as the event loop runs in it: questions with OK (or yes), file dialogs with
/// `file`, lists with their first entry, the dialogs of navaids and waypoints by cancelling them.
class BoxAnswers : public QObject
{
    Q_OBJECT

public:
    explicit BoxAnswers(QObject* parent = nullptr);

    QString file; ///< a path

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void answer(QDialog& dialog) const;
};
