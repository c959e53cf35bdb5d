// The menu's import of update files.
#include "boxresponder.h"
#include "sandbox.h"
#include "windowsession.h"

#include "ciodatabase.h"
#include "mainwindow.h"

#include <QMenu>
#include <QtTest>

class TestImportAction : public QObject
{
    Q_OBJECT

private slots:
    void theMenuEntryImportsIntoTheProgramsDatabases()
    {
        const Sandbox sandbox;
        sandbox.addNavaid();
        sandbox.writeFile("Work/update.CSV", "WPT;WPT;+;65703;BAMES;BAMES1;BAMES;FR;;78;0;1;175320;10800;0;0;0;0;\n"
                                             "GEN;NAV;-;ukey;RBT\n");
        WindowSession session;
        const QString path = sandbox.path("Work/update.CSV");
        BoxResponder boxes;
        boxes.expectFiles("Ouvrir un fichier d'import", {path});
        boxes.expectMessage("Importation", "Importation terminée\n " + path);
        session.find<QMenu>("menuImport")->actions().first()->trigger();
        QCOMPARE(sandbox.sqlValue("WPT.db", "SELECT ukey FROM WPT").toString(), QString("BAMES1"));
        QCOMPARE(sandbox.sqlValue("GEN.db", "SELECT count(*) FROM NAV").toInt(), 0);
    }

    void nothingPickedIsNothingDone()
    {
        const Sandbox sandbox;
        WindowSession session;
        BoxResponder boxes;
        boxes.expectFilesRejected("Ouvrir un fichier d'import");
        session.action("actImport")->trigger();
        QCOMPARE(boxes.seen().size(), 1);
    }

    void whatDoesAnImportStaysUntilTheWindowsEnd()
    {
        const Sandbox sandbox;
        WindowSession session;
        BoxResponder boxes;
        boxes.expectFilesRejected("Ouvrir un fichier d'import");
        boxes.expectFilesRejected("Ouvrir un fichier d'import");
        session.action("actImport")->trigger();
        session.action("actImport")->trigger();
        QCOMPARE(session.window().findChildren<CIODataBase*>().size(), 2);
    }
};

QTEST_MAIN(TestImportAction)
#include "tst_importaction.moc"
