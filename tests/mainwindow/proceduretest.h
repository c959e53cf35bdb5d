#pragma once

#include "boxresponder.h"
#include "mainwindow.h"
#include "planwindow.h"
#include "storedprocedures.h"

#include <QObject>
#include <QScopedPointer>

/// What the tests of stored procedures begin and end with: one window for all, and for each no procedure stored and
/// boxes of its own.
class ProcedureTest : public QObject
{
    Q_OBJECT

protected:
    /// Once, ahead of all tests; ahead of each; behind each.
    virtual void startOfAll() {}
    virtual void startOfEach() {}
    virtual void endOfEach() {}

    QTreeWidget* tree(const QString& name) const;
    void emptyTrees() const;
    /// Gives up the plan, which asks when there is one.
    void dropPlan();

    QScopedPointer<BoxResponder> boxes;
    QScopedPointer<PlanWindow> win;
    QScopedPointer<StoredProcedures> rows;

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();
};
