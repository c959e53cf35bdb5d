#pragma once

#include "boxresponder.h"
#include "planwindow.h"

#include <QMetaType>
#include <QtTest>

/// How a plan is stored as a SID or as a STAR: the button, and the words of the boxes.
struct ProcedureKind
{
    const char* button;
    const char* nameTitle;
    const char* nameLabel;
    const char* storedTitle;
    const char* storedText; ///< %1 the name
};

Q_DECLARE_METATYPE(ProcedureKind)

const ProcedureKind sid{"btnCreateSID", "Nouveau SID", "Nom du SID", "Enregistrement SID",
                        "Le SID %1 a été enregistré"};
const ProcedureKind star{"btnCreateSTAR", "Nouveau STAR", "Nom du STAR", "Enregistrement STAR",
                         "Le STAR %1 a été enregistré"};

/// A data row for each of the two.
inline void addBothKinds()
{
    QTest::addColumn<ProcedureKind>("kind");
    QTest::newRow("SID") << sid;
    QTest::newRow("STAR") << star;
}

/// Stores the plan of the window, which is said to have worked out.
inline void storePlan(const PlanWindow& win, BoxResponder& boxes, const ProcedureKind& kind, const QString& name)
{
    boxes.expectInput(kind.nameTitle, kind.nameLabel, name);
    boxes.expectMessage(kind.storedTitle, QString(kind.storedText).replace("%1", name));
    win.click(kind.button);
    QVERIFY(boxes.allUsed());
}
