#pragma once

#include "boxresponder.h"
#include "cdialognav.h"
#include "cdialogwpt.h"
#include "editingworld.h"

#include <QObject>
#include <QScopedPointer>

/// What the tests of both dialogs begin and end with: a world of its own for each, and boxes that have to be expected.
class DialogTest : public QObject
{
    Q_OBJECT

public:
    /// `updateFiles`: the labels of the update files that the tests write. No other program may write them.
    explicit DialogTest(const QStringList& updateFiles);

private slots:
    void init();
    void cleanup();

protected:
    virtual void closeDialog() = 0;

    QScopedPointer<BoxResponder> boxes;
    QScopedPointer<EditingWorld> world;
    QScopedPointer<DataFolder> data;

private:
    QStringList fileLabels;
};

class NavDialogTest : public DialogTest
{
    Q_OBJECT

protected:
    explicit NavDialogTest(const QStringList& updateFiles = {});

    void openRow(const Row& row);
    /// A new navaid of France at 48 degrees north and 2 east.
    void openNew();
    /// The same, its type chosen and ABBEVILLE and ABB typed in, not yet with a frequency of its own.
    void openAbbeville(const QString& typeButton = "rbVOR");
    void pressOk(const QString& name = "ABBEVILLE");
    void closeDialog() override;

    static const QString title;
    static const QString exportTitle;
    static QString storedText(const QString& name);

    QScopedPointer<CDialogNav> dialog;
};

class WptDialogTest : public DialogTest
{
    Q_OBJECT

protected:
    explicit WptDialogTest(const QStringList& updateFiles = {});

    void openRow(const Row& row);
    void openNew(double latSec, double lonSec);
    /// A new waypoint ABLAN of France at 48 degrees north and 2 east.
    void openAblan();
    void pressOk(const QString& name = "ABLAN");
    void closeDialog() override;

    static const QString title;
    static const QString exportTitle;
    static QString storedText(const QString& name);

    QScopedPointer<CDialogWpt> dialog;
};
