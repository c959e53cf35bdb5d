// What a hostile update file or database reaches in the whole program: its names on the map, in boxes, in statements
// and in file names, and how far a script goes that a name has brought into the page.
#include "boxresponder.h"
#include "planwindow.h"
#include "sandbox.h"
#include "windowsession.h"

#include "cflightplan.h"
#include "mainwindow.h"

#include <QAbstractItemView>
#include <QAction>
#include <QContextMenuEvent>
#include <QDialog>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QStatusBar>
#include <QTableWidget>
#include <QTextEdit>
#include <QWebFrame>
#include <QWebView>
#include <QtTest>

namespace {

const QString picture = QStringLiteral("<img src=x onerror='reached=1'>");

/// How many pixels of a widget are of this colour.
int pixelsOf(QWidget& widget, const QColor& colour)
{
    const QImage image = widget.grab().toImage();
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y) == colour ? 1 : 0;
    return count;
}

} // namespace

class TestHostileNames : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        sandbox.reset(new Sandbox);
    }
    void cleanup()
    {
        session.reset();
        sandbox.reset();
    }

    void anImportedNameIsTextOnTheMap_data();
    void anImportedNameIsTextOnTheMap();
    void aQuoteInAnImportedNameRunsItAsAScript();
    void aBackslashAtTheEndOfAnIdentifierIsLost();
    void aLineEndInANameCostsItsBatch_data();
    void aLineEndInANameCostsItsBatch();
    void theStatusBarShowsMarkupAsText();
    void aBoxShowsANameAsText();
    void aBoxShowsTheStartOfAnEndlessName();
    void aListShowsTheStartOfAnEndlessName();
    void theStatusBarShowsTheStartOfAnEndlessKey();
    void aChoiceShowsTheStartOfAnEndlessName();
    void anInputBoxShowsANameAsText();
    void theBoxAboutQtKeepsItsMarkup();
    void aScriptPressesWhatTheUserMayPress();
    void aScriptShowsNoFileInTheDebugText_data();
    void aScriptShowsNoFileInTheDebugText();
    void aScriptEndsNoPartOfTheWindow();
    void aScriptThatTakesTheNamesAwayEndsNothingEither();
    void aScriptThatTellsAnEndEndsNothingEither();
    void aScriptEndsNoDialog();
    void theMenusOfALineEditEnd();
    void aScriptLeadsTheMapNowhere();
    void aStyleSheetLeadsTheMapNowhere();
    void aTitleBringsNoSecondStatement();
    void aKeyWithAQuoteDeletesNothing();
    void anIdentifierIsNoWayOutOfTheFolder();

private:
    void import(const QByteArray& lines)
    {
        sandbox->writeFile("Work/update.CSV", lines);
        BoxResponder boxes;
        boxes.closeOthers();
        boxes.expectFiles("Ouvrir un fichier d'import", {sandbox->path("Work/update.CSV")});
        session->action("actImport")->trigger();
    }
    QVariant evaluate(const QString& script)
    {
        return session->page().evaluate(script);
    }
    /// The format of each text of the next box of a class.
    void expectFormats(BoxResponder& boxes, const QString& className, QList<Qt::TextFormat>& formats)
    {
        boxes.expectDialog(className, [&formats](QDialog* box) {
            for (const QLabel* label : box->findChildren<QLabel*>()) {
                if (!label->text().isEmpty())
                    formats.append(label->textFormat());
            }
            box->reject();
        });
    }

    QScopedPointer<Sandbox> sandbox;
    QScopedPointer<WindowSession> session;
};

void TestHostileNames::anImportedNameIsTextOnTheMap_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("picture") << QByteArray("<img src=x onerror='reached=1'>");
    QTest::newRow("script") << QByteArray("</script><script>reached=1</script>");
    QTest::newRow("apostrophes") << QByteArray("A'+(reached=1)+'B");
    QTest::newRow("places of values") << QByteArray("%1%2%5%6 100%");
    QTest::newRow("backslash within") << QByteArray("A\\x41B");
    QTest::newRow("100 kB") << QByteArray("<b>").repeated(20000) + QByteArray("x").repeated(40000);
}

void TestHostileNames::anImportedNameIsTextOnTheMap()
{
    QFETCH(QByteArray, name);
    session.reset(new WindowSession);
    import("GEN;NAV;+;65703;RBT4FR;RBT;" + name + ";114.7;0;0;FR;0;17;0;1;175140;7140;0;0;0\n");
    QVERIFY(session->load());
    QCOMPARE(session->page().titles("listVOR"), QStringList{"RBT-RBT4FR"});
    const int before = evaluate("document.querySelectorAll('img,script,iframe').length").toInt();
    evaluate("map.setCenter(new google.maps.LatLng(48.65, 1.98333));map.setZoom(10)");
    session->page().contextMenu(session->page().pointOf(48.65, 1.98333));
    QVERIFY2(!session->page().menuEntries().isEmpty(), "no menu");
    evaluate("page.closeMenu()");
    session->page().click(session->page().pointOf(48.65, 1.98333));
    QVERIFY(session->page().popupText().startsWith("VOR RBT"));
    evaluate("mainWindow.sAddNavToFp('RBT-RBT4FR')");
    QCOMPARE(evaluate("typeof reached").toString(), QString("undefined"));
    QCOMPARE(evaluate("document.querySelectorAll('img,script,iframe').length").toInt(), before);
}

// The texts of the program are not escaped: what follows shows what that means, and is no fault of the import.
void TestHostileNames::aQuoteInAnImportedNameRunsItAsAScript()
{
    session.reset(new WindowSession);
    import(
        "GEN;NAV;+;65703;RBT4FR;RBT;A\"+(window.reached=1,mainWindow.doData('from a name'),'')+\"B;114.7;0;0;FR;0;17;0;"
        "1;175140;7140;0;0;0\n");
    QVERIFY(session->load());
    QCOMPARE(evaluate("window.reached").toInt(), 1);
    QCOMPARE(session->page().titles("listVOR"), QStringList{"RBT-RBT4FR"});
}

void TestHostileNames::aBackslashAtTheEndOfAnIdentifierIsLost()
{
    sandbox->addNavaid({{"ukey", "RBT4FR"}, {"iden", "RBT\\"}});
    session.reset(new WindowSession);
    QVERIFY(session->load());
    QCOMPARE(session->page().titles("listVOR"), QStringList{"RBT-RBT4FR"});
}

void TestHostileNames::aLineEndInANameCostsItsBatch_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("line feed") << "A\nB";
    QTest::newRow("carriage return") << "A\rB";
    QTest::newRow("quote") << "A\"B";
}

void TestHostileNames::aLineEndInANameCostsItsBatch()
{
    QFETCH(QString, name);
    sandbox->addNavaid({{"name", name}});
    sandbox->addWaypoint();
    session.reset(new WindowSession);
    QVERIFY(session->load());
    QCOMPARE(session->page().titles("listVOR"), QStringList());
    QCOMPARE(session->page().titles("listWptRte"), QStringList{"BAMES-BAMES"});
}

void TestHostileNames::theStatusBarShowsMarkupAsText()
{
    session.reset(new WindowSession);
    QVERIFY(session->load());
    evaluate("mainWindow.doData('<b>A</b><img src=x>')");
    const auto* label = session->find<QLabel>("lblData");
    QCOMPARE(label->text(), QString("<b>A</b><img src=x>"));
    QCOMPARE(label->textFormat(), Qt::PlainText);
}

void TestHostileNames::aBoxShowsANameAsText()
{
    session.reset(new WindowSession);
    QVERIFY(session->load());
    BoxResponder boxes;
    QList<Qt::TextFormat> formats;
    expectFormats(boxes, "QMessageBox", formats);
    session->window().sAddNavToDB(picture, 0, 0);
    expectFormats(boxes, "QMessageBox", formats);
    session->window().askDeleteData("<b>heading</b>", picture);
    QCOMPARE(formats.size(), 3);
    QCOMPARE(formats.count(Qt::PlainText), 3);
}

void TestHostileNames::anInputBoxShowsANameAsText()
{
    session.reset(new WindowSession);
    BoxResponder boxes;
    QList<Qt::TextFormat> formats;
    expectFormats(boxes, "QInputDialog", formats);
    QInputDialog::getItem(&session->window(), "Voie aérienne", picture, {"UT158", "UM729"});
    QCOMPARE(formats, QList<Qt::TextFormat>{Qt::PlainText});
}

void TestHostileNames::aBoxShowsTheStartOfAnEndlessName()
{
    PlanWindow world([](const Sandbox& inner) { inner.addAirport({{"ukey", "BIG"}, {"iden", QString(100000, 'I')}}); });
    BoxResponder boxes;
    boxes.expectAnyMessage(); // no runway
    world.add({"BIG"});
    world.plan().startLine.latS = 1.0;
    boxes.expectAnyMessage(QMessageBox::Cancel);
    world.click("btnStartPos");
    QVERIFY(boxes.allUsed());
    QCOMPARE(boxes.seen().value(1).text, "Voulez vous définir " + QString(8000 - 20, 'I') + "...");
}

void TestHostileNames::aListShowsTheStartOfAnEndlessName()
{
    const QString endless(100000, 'I');
    PlanWindow world([&](const Sandbox& inner) {
        inner.addAirport({{"ukey", "BIG"}, {"iden", endless}, {"name", endless}});
        inner.addRunway({{"rapt", "BIG"}});
        inner.addProcedureLeg({{"sapt", "BIG"}, {"sqnm", 10}, {"styp", 2}, {"strm", endless}});
        inner.addProcedureLeg({{"skey", "2"}, {"sapt", "BIG"}, {"sqnm", 10}, {"styp", 1}, {"strm", endless}});
    });
    world.add({"BIG"});
    world.grid()->cellClicked(0, 1);
    world.window->findChild<QLineEdit*>("searchData")->setText("BIG");
    world.window->searchInTable(true);
    QCOMPARE(world.cell(0, 2), endless);
    const QMap<QString, int> columns{{"fltplnGrid", 2}, {"treeWFound", 3}, {"treeWSid", 0}, {"treeWStar", 0}};
    for (auto column = columns.begin(); column != columns.end(); ++column) {
        const auto* view = world.window->findChild<QAbstractItemView*>(column.key());
        QVERIFY2(view->model()->rowCount() == 1, qPrintable(column.key()));
        QVERIFY2(view->sizeHintForColumn(column.value()) < 50000, qPrintable(column.key())); // 50 pixels a letter
    }
    QCOMPARE(world.title("dockWSid"), "SID : " + QString(2000, 'I') + "...");
    QCOMPARE(world.title("dockWStar"), "STAR : " + QString(2000, 'I') + "...");
}

void TestHostileNames::theStatusBarShowsTheStartOfAnEndlessKey()
{
    sandbox->addAirport({{"ukey", QString(100000, 'K')}, {"iden", "BIG"}});
    session.reset(new WindowSession);
    session->window().doViewRwy("BIG");
    QCOMPARE(session->window().statusBar()->currentMessage(), QString(2000, 'K') + "...");
}

void TestHostileNames::aChoiceShowsTheStartOfAnEndlessName()
{
    session.reset(new WindowSession);
    BoxResponder boxes;
    boxes.expectInputRejected("Voie aérienne", "");
    QInputDialog::getItem(&session->window(), "Voie aérienne", "", {QString(100000, 'I'), "UM729"});
    QCOMPARE(boxes.seen().value(0).choices, (QStringList{QString(8000, 'I') + "...", "UM729"}));
}

void TestHostileNames::theBoxAboutQtKeepsItsMarkup()
{
    session.reset(new WindowSession);
    BoxResponder boxes;
    QList<Qt::TextFormat> formats;
    expectFormats(boxes, "QMessageBox", formats);
    session->action("actionAboutQt")->trigger();
    QTRY_VERIFY_WITH_TIMEOUT(boxes.allUsed(), 20000);
    QVERIFY(!formats.isEmpty());
    QVERIFY(!formats.contains(Qt::PlainText));
}

// The object of the bridge is the window itself, so that its public slots, properties and named children come along.
void TestHostileNames::aScriptPressesWhatTheUserMayPress()
{
    session.reset(new WindowSession);
    QVERIFY(session->load());
    const bool was = session->action("actVor")->isChecked();
    evaluate("mainWindow.actVor.trigger()");
    QCOMPARE(session->action("actVor")->isChecked(), !was);
    evaluate("mainWindow.windowTitle = 'by a script'");
    QCOMPARE(session->window().windowTitle(), QString("by a script"));
}

void TestHostileNames::aScriptShowsNoFileInTheDebugText_data()
{
    QTest::addColumn<QString>("html");
    QTest::newRow("picture by its address") << "<img src='file://PICTURE'>";
    QTest::newRow("picture by its path") << "<img src='PICTURE'>";
    QTest::newRow("background by its address")
        << "<table><tr><td background='file://PICTURE'>wide text</td></tr></table>";
    QTest::newRow("background by its path") << "<table><tr><td background='PICTURE'>wide text</td></tr></table>";
    QTest::newRow("style sheet")
        << "<html><head><link rel='stylesheet' type='text/css' href='file://SHEET'></head><body><p>text</p></body>"
           "</html>";
}

void TestHostileNames::aScriptShowsNoFileInTheDebugText()
{
    QFETCH(QString, html);
    const QColor red("#ff0000");
    QImage file(40, 40, QImage::Format_RGB32);
    file.fill(red);
    QVERIFY(file.save(sandbox->path("Work/red.png")));
    sandbox->writeFile("Work/red.css", "p { background-color: #ff0000; }");
    html.replace("PICTURE", sandbox->path("Work/red.png")).replace("SHEET", sandbox->path("Work/red.css"));
    // A text field of another kind would show it.
    QTextEdit open;
    open.setHtml(html);
    QVERIFY(pixelsOf(open, red) > 100);

    session.reset(new WindowSession);
    QVERIFY(session->load());
    auto* debugText = session->find<QTextEdit>("debugText");
    QVERIFY(debugText->isVisible());
    evaluate("mainWindow.dockWDebug.dockWidgetContents_6.debugText.html = \"" + html + "\"");
    QVERIFY(!debugText->toPlainText().contains("Chargement"));
    QCOMPARE(pixelsOf(*debugText, red), 0);
    QCOMPARE(debugText->document()->defaultFont().pointSize(), 10);
}

void TestHostileNames::aScriptEndsNoPartOfTheWindow()
{
    session.reset(new WindowSession);
    QVERIFY(session->load());
    const QPointer<QObject> window = &session->window();
    const QPointer<QObject> map = session->find<QWebView>("map");
    const QPointer<QObject> action = session->action("actVor");
    QString path = map->objectName();
    for (const QObject* object = map->parent(); object != window; object = object->parent())
        path.prepend(object->objectName() + ".");
    evaluate("mainWindow.deleteLater(); mainWindow.actVor.deleteLater(); mainWindow." + path + ".deleteLater()");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    QVERIFY(window && map && action);
    QCOMPARE(evaluate("typeof map.getZoom()").toString(), QString("number"));
}

// A script may write the name of whatever it reaches.
void TestHostileNames::aScriptThatTakesTheNamesAwayEndsNothingEither()
{
    session.reset(new WindowSession);
    QVERIFY(session->load());
    const QPointer<QObject> window = &session->window();
    const QPointer<QObject> action = session->action("actVor");
    evaluate("var a = mainWindow.actVor; a.objectName = ''; a.deleteLater();"
             "mainWindow.objectName = ''; mainWindow.deleteLater()");
    QCOMPARE(action->objectName(), QString());
    QCOMPARE(window->objectName(), QString());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    QVERIFY(window && action);
}

// A signal is a function to a script.
void TestHostileNames::aScriptThatTellsAnEndEndsNothingEither()
{
    session.reset(new WindowSession);
    QVERIFY(session->load());
    const QPointer<QObject> window = &session->window();
    const QPointer<QObject> action = session->action("actVor");
    QCOMPARE(evaluate("mainWindow.destroyed(); mainWindow.actVor.destroyed(); mainWindow.actVor.deleteLater();"
                      "mainWindow.deleteLater(); 'done'")
                 .toString(),
             QString("done"));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    QVERIFY(window && action);
}

void TestHostileNames::aScriptEndsNoDialog()
{
    session.reset(new WindowSession);
    QVERIFY(session->load());
    const QPointer<QDialog> dialog = new QDialog(&session->window());
    const QPointer<QLineEdit> line = new QLineEdit(dialog);
    dialog->setObjectName("shown");
    line->setObjectName("line");
    dialog->show();
    evaluate("var d = mainWindow.shown; d.line.deleteLater(); d.objectName = ''; d.deleteLater()");
    QCOMPARE(dialog->objectName(), QString());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(dialog && line);
    delete dialog;
}

void TestHostileNames::theMenusOfALineEditEnd()
{
    session.reset(new WindowSession);
    QVERIFY(session->load());
    auto* line = session->find<QLineEdit>("searchData");
    const int before = line->findChildren<QMenu*>().size();
    for (int i = 0; i < 5; ++i) {
        QContextMenuEvent click(QContextMenuEvent::Mouse, {5, 5}, line->mapToGlobal({5, 5}));
        QCoreApplication::sendEvent(line, &click);
        QCOMPARE(line->findChildren<QMenu*>().size(), before + 1);
        line->findChildren<QMenu*>().constLast()->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(line->findChildren<QMenu*>().size(), before);
    }
}

void TestHostileNames::aScriptLeadsTheMapNowhere()
{
    session.reset(new WindowSession);
    QVERIFY(session->load());
    const QUrl page = session->find<QWebView>("map")->url();
    sandbox->writeFile("Work/other.html", "<html><body>other</body></html>");
    evaluate("location.href = '" + QUrl::fromLocalFile(sandbox->path("Work/other.html")).toString() + "'");
    QTest::qWait(200);
    QCOMPARE(session->find<QWebView>("map")->url(), page);
    QCOMPARE(evaluate("confirm('?')").toBool(), false);
}

void TestHostileNames::aStyleSheetLeadsTheMapNowhere()
{
    session.reset(new WindowSession);
    QVERIFY(session->load());
    sandbox->writeFile("Work/other.html", "<html><body>other</body></html>");
    evaluate("mainWindow.styleSheet = \"QWebView { qproperty-url: '" +
             QUrl::fromLocalFile(sandbox->path("Work/other.html")).toString() + "' }\"");
    QTest::qWait(200);
    QCOMPARE(session->find<QWebView>("map")->page()->mainFrame()->toPlainText(), QString());
}

void TestHostileNames::aTitleBringsNoSecondStatement()
{
    sandbox->addNavaid();
    session.reset(new WindowSession);
    QVERIFY(session->load());
    BoxResponder boxes;
    boxes.closeOthers();
    evaluate("mainWindow.sAddNavToFp('X-Y\"; DELETE FROM NAV; SELECT \"')");
    evaluate("mainWindow.sDelNavFromDB('X-Y\"; DELETE FROM NAV; SELECT \"')");
    QCOMPARE(sandbox->sqlValue(dbfile::gen, "SELECT COUNT(*) FROM NAV").toInt(), 1);
}

// Statements are put together as text: a key with a quote asks for more than its row, without the whole table's
// question.
void TestHostileNames::aKeyWithAQuoteDeletesNothing()
{
    sandbox->addNavaid();
    sandbox->addNavaid({{"ukey", "CGO4FR"}, {"iden", "CGO"}});
    session.reset(new WindowSession);
    import("GEN;NAV;-;ukey;NONE\" OR \"1\"=\"1\n");
    QCOMPARE(sandbox->sqlValue(dbfile::gen, "SELECT COUNT(*) FROM NAV").toInt(), 2);
}

void TestHostileNames::anIdentifierIsNoWayOutOfTheFolder()
{
    PlanWindow world([](const Sandbox& inner) {
        inner.writeFile("Flightplan/inside.txt", "x");
        inner.addNavaid({{"ukey", "OUT"}, {"iden", "..\\Flightplan\\OUT"}, {"name", "OUT"}});
    });
    world.add({"LFPO", "OUT-OUT"});
    QVERIFY(world.plan().saveFpl("LFPO_OUT.FPL"));
    for (const char* name : {"../ESCAPED.FPL", "..\\ESCAPED.FPL", "/ESCAPED.FPL"}) {
        QVERIFY2(!world.plan().saveFpl(name), name);
        QVERIFY2(!world.plan().saveSit(name), name);
    }
    QVERIFY(!world.sandbox.hasFile("ESCAPED.FPL"));
    QCOMPARE(world.sandbox.filesIn("Flightplan"), (QStringList{"LFPO_OUT.FPL", "inside.txt"}));
}

QTEST_MAIN(TestHostileNames)
#include "tst_hostilenames.moc"
