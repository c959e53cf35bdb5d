// Page files that are missing or broken: the window goes on with what is left of the map, and the map tells why.
#include "boxresponder.h"
#include "childprocess.h"
#include "planwindow.h"
#include "windowsession.h"

#include "mainwindow.h"

#include <QDir>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QTextEdit>
#include <QTreeWidget>
#include <QWebFrame>
#include <QWebView>
#include <QtTest>

namespace {

const QString page = QStringLiteral("gm_trajector_fr.html");
constexpr int parts = 4;

/// The pages beside this program, which the test may damage: it runs as a copy in a folder of its own.
QString beside(const QString& file)
{
    return QDir(QCoreApplication::applicationDirPath()).filePath(file);
}

QByteArray bytesOf(const QString& file)
{
    QFile opened(beside(file));
    return opened.open(QIODevice::ReadOnly) ? opened.readAll() : QByteArray();
}

void put(const QString& file, const QByteArray& bytes)
{
    QFile opened(beside(file));
    if (!opened.open(QIODevice::WriteOnly) || opened.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(file));
}

/// The page's scripts in the order of their names.
QStringList scripts(const QString& folder)
{
    QStringList found;
    for (const QString& name : QDir(beside(folder)).entryList({"*.js"}, QDir::Files, QDir::Name))
        found << folder + '/' + name;
    return found;
}

} // namespace

class TestPageFaults : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (!inChildProcess())
            return;
        sandbox.reset(new Sandbox);
        sandbox->addAirport();
        sandbox->addNavaid();
        sandbox->addWaypoint();
        session.reset(new WindowSession);
        QVERIFY(session->load());
        QCOMPARE(note(), QString());
        QCOMPARE(session->page().titles("listVOR"), QStringList{"RBT-RBT"});
    }
    void cleanupTestCase()
    {
        session.reset();
        sandbox.reset();
    }

    void aMissingScriptIsNamed_data()
    {
        addScripts();
    }
    void aMissingScriptIsNamed()
    {
        if (ranInACopy())
            return;
        QFETCH(QString, folder);
        const QStringList all = scripts(folder);
        QVERIFY(!all.isEmpty());
        for (int i = 0; i < all.size(); i += 4) { // each of them is broken in the other test
            const QByteArray before = bytesOf(all[i]);
            QVERIFY(QFile::remove(beside(all[i])));
            reload();
            QCOMPARE(note(), noteOf(all[i]));
            theWindowWorks();
            put(all[i], before);
        }
        theMapIsBack();
    }

    void aBrokenScriptIsNamed_data()
    {
        // In parts: a child process has a minute.
        QTest::addColumn<QString>("folder");
        QTest::addColumn<int>("part");
        for (const char* folder : {"page", "engine", "world", "leaflet"}) {
            const bool few = scripts(QString("maps/%1").arg(folder)).size() < parts;
            for (int part = 0; part < (few ? 1 : parts); ++part)
                QTest::addRow("%s %d", folder, part) << QString("maps/%1").arg(folder) << part;
        }
    }
    void aBrokenScriptIsNamed()
    {
        if (ranInACopy())
            return;
        QFETCH(QString, folder);
        QFETCH(int, part);
        const QByteArray damages[] = {"(", "throw new Error('broken');", "\xFF\xFE\x01\x02"};
        const QStringList all = scripts(folder);
        const int step = all.size() < parts ? 1 : parts;
        for (int i = part; i < all.size(); i += step) {
            const QByteArray before = bytesOf(all[i]);
            put(all[i], damages[i / step % 3] + before);
            reload();
            QCOMPARE(note(), noteOf(all[i]));
            theWindowWorks();
            put(all[i], before);
        }
        theMapIsBack();
    }

    void aDamagedPageLeavesTheWindowWorking_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("no page") << QByteArray(5000, '\xA7');
        QTest::newRow("cut in its head") << QByteArray("<!DOCTYPE html><html><head><script>var pageWords = {");
        QTest::newRow("nothing on it") << QByteArray("<!DOCTYPE html><html><body></body></html>");
    }
    void aDamagedPageLeavesTheWindowWorking()
    {
        if (ranInACopy())
            return;
        QFETCH(QByteArray, bytes);
        const QByteArray before = bytesOf(page);
        put(page, bytes);
        reload();
        theWindowWorks();
        put(page, before);
        theMapIsBack();
    }

    void aMissingStyleSheetIsNamed()
    {
        if (ranInACopy())
            return;
        const QByteArray before = bytesOf("maps/page/page.css");
        QVERIFY(QFile::remove(beside("maps/page/page.css")));
        reload();
        QCOMPARE(note(), noteOf("maps/page/page.css"));
        theWindowWorks();
        put("maps/page/page.css", before);
        theMapIsBack();
    }

private:
    static void addScripts()
    {
        QTest::addColumn<QString>("folder");
        QTest::newRow("page") << "maps/page";
        QTest::newRow("engine") << "maps/engine";
        QTest::newRow("world") << "maps/world";
        QTest::newRow("library") << "maps/leaflet";
    }

    /// True in the parent, which has had the test run in a copy of the program with pages of its own.
    static bool ranInACopy()
    {
        if (inChildProcess())
            return false;
        QTemporaryDir folder;
        QProcess::execute("cp", {"-r", beside("maps"), beside(page), folder.path()});
        QString function = QTest::currentTestFunction();
        if (QTest::currentDataTag())
            function += QStringLiteral(":") + QTest::currentDataTag();
        const ChildRun run = runChildProcess({function}, {}, folder.path());
        if (!run.finished || run.exitCode != 0)
            QTest::qFail(qPrintable(run.output + run.log), __FILE__, __LINE__);
        return true;
    }

    /// Loads the page anew and waits for the end of the feed.
    void reload()
    {
        session->find<QTextEdit>("debugText")->clear();
        session->find<QWebView>("map")->load(QUrl::fromLocalFile(beside(page)));
        QTRY_VERIFY_WITH_TIMEOUT(session->debugLines().contains("Chargement terminé"), 20000);
    }

    /// What the map says of a faulty file. The script that says it is the one of which nothing is said.
    static QString noteOf(const QString& file)
    {
        return file == "maps/page/incomplete.js"
                   ? QString()
                   : "La carte est incomplète, un fichier manque ou est endommagé : " + file;
    }

    QString note() const
    {
        return session->find<QWebView>("map")
            ->page()
            ->mainFrame()
            ->evaluateJavaScript("document.getElementById('incomplete') ? "
                                 "document.getElementById('incomplete').textContent : ''")
            .toString();
    }

    /// The databases, the search, the plan and its file do without the map.
    void theWindowWorks()
    {
        QCOMPARE(session->debugLines(),
                 (QStringList{"Airport: 1 éléments chargés", "Navaid: 1 éléments chargés",
                              "Waypoint: 1 élément chargés", "ATS: 0 élément chargés", "Chargement terminé"}));
        BoxResponder boxes;
        session->find<QLineEdit>("searchData")->setText("rbt");
        session->window().searchInTable(true);
        auto* tree = session->find<QTreeWidget>("treeWFound");
        QCOMPARE(tree->topLevelItemCount(), 1);
        session->window().sAddNavToFp("RBT-RBT");
        session->window().sAddNewWptToFp("WPT", 48.0, 2.0);
        session->window().setPlanActions(true);
        boxes.expectAnyMessage();
        boxes.expectMessage("Enregistrement point de départ", "Vous devez choisir un aéroport en première ligne.");
        session->find<QPushButton>("btnSaveFlightPlan")->click();
        boxes.expectMessage("Nouveau plan de vol", "Voulez vous effacer le plan de vol en cours ?");
        session->window().askResetPlan();
        QVERIFY(boxes.allUsed());
        QVERIFY2(boxes.seen().first().text.endsWith("a été enregistré"), qPrintable(boxes.seen().first().text));
        for (const char* toggle : {"actApt", "actVor", "actAtsLo"}) {
            session->action(toggle)->trigger();
            session->action(toggle)->trigger();
        }
    }

    void theMapIsBack()
    {
        reload();
        QCOMPARE(note(), QString());
        QCOMPARE(session->page().titles("listVOR"), QStringList{"RBT-RBT"});
    }

    QScopedPointer<Sandbox> sandbox;
    QScopedPointer<WindowSession> session;
};

QTEST_MAIN(TestPageFaults)
#include "tst_pagefaults.moc"
