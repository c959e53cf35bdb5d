// What hangs on the widget tree: tool bar, menus, context menus, headers and status bar.
#include "sandbox.h"
#include "windowsession.h"

#include "mainwindow.h"

#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QTableWidget>
#include <QToolBar>
#include <QTreeWidget>
#include <QtTest>

namespace {

QImage resource(const QString& name)
{
    return QIcon(":/icon/images/" + name).pixmap(16, 16).toImage();
}

QImage shown(const QIcon& icon)
{
    return icon.pixmap(16, 16).toImage();
}

QStringList names(const QList<QAction*>& actions)
{
    QStringList found;
    for (const QAction* action : actions)
        found << (action->isSeparator() ? QStringLiteral("-") : action->objectName());
    return found;
}

const QStringList viewActions{"actApt",    "actVor",   "actNdbRte", "actNdbTerm", "actWptRte", "actWptTerm",
                              "actWptVfr", "actAtsLo", "actAtsHi",  "actAtsB",    "actBdry",   "actDock"};

} // namespace

class TestShell : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void toolBars();
    void viewAction_data();
    void viewAction();
    void firstStates_data();
    void firstStates();
    void menuBar();
    void menuEntry_data();
    void menuEntry();
    void newPlanEntryShowsNoIcon();
    void treeContextMenu();
    void gridContextMenu();
    void headers();
    void columns_data();
    void columns();
    void statusLabels();

private:
    template <typename T>
    T* find(const char* name) const
    {
        return session->find<T>(name);
    }

    QScopedPointer<Sandbox> sandbox;
    QScopedPointer<WindowSession> session;
};

void TestShell::init()
{
    sandbox.reset(new Sandbox);
    session.reset(new WindowSession);
}

void TestShell::cleanup()
{
    session.reset();
    sandbox.reset();
}

void TestShell::toolBars()
{
    auto* views = find<QToolBar>("mainToolBar");
    QCOMPARE(session->window().toolBarArea(views), Qt::LeftToolBarArea);
    QCOMPARE(views->toolButtonStyle(), Qt::ToolButtonIconOnly);
    QCOMPARE(names(views->actions()), QStringList{"-"} + viewActions);
    auto* second = find<QToolBar>("toolBar");
    QCOMPARE(session->window().toolBarArea(second), Qt::TopToolBarArea);
    QVERIFY(second->actions().isEmpty());
}

void TestShell::viewAction_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("statusTip");
    QTest::addColumn<QString>("icon");
    QTest::newRow("actApt") << "Aéroport"
                            << "Affiche les aéroports"
                            << "Img08.bmp";
    QTest::newRow("actVor") << "VOR"
                            << "Affiche les VOR"
                            << "Img05.bmp";
    QTest::newRow("actNdbRte") << "NDB Rte"
                               << "Affiche les NDB en route"
                               << "Img06.bmp";
    QTest::newRow("actNdbTerm") << "NDB Ter"
                                << "Affiche les NDB terminaux"
                                << "Img06.bmp";
    QTest::newRow("actWptRte") << "Waypoint en route"
                               << "Affiche les points de report en route"
                               << "Img12.bmp";
    QTest::newRow("actWptTerm") << "Waypoint terminaux"
                                << "Affiche les points de report terminaux"
                                << "Img13.bmp";
    QTest::newRow("actWptVfr") << "Waypoint VFR"
                               << "Affiche les points de report VFR"
                               << "Img33.bmp";
    QTest::newRow("actAtsLo") << "ATS Low"
                              << "Affiche les routes basse altitude"
                              << "Img36.bmp";
    QTest::newRow("actAtsHi") << "ATS High"
                              << "Affiche les routes haute altitude"
                              << "Img37.bmp";
    QTest::newRow("actAtsB") << "ATS High/Low"
                             << "Affiche les routes mixtes"
                             << "Img38.bmp";
    QTest::newRow("actBdry") << "Zone de contôle"
                             << "Affiche les zones de contrôle"
                             << "Img27.bmp";
    QTest::newRow("actDock") << "Plein écran"
                             << "Mode plein écran"
                             << "Img09.bmp";
}

void TestShell::viewAction()
{
    QFETCH(QString, text);
    QFETCH(QString, statusTip);
    QFETCH(QString, icon);
    const QAction* action = session->action(QTest::currentDataTag());
    QCOMPARE(action->text(), text);
    QCOMPARE(action->statusTip(), statusTip);
    QVERIFY(action->isCheckable());
    QVERIFY(action->isChecked());
    QVERIFY(!shown(action->icon()).isNull());
    QCOMPARE(shown(action->icon()), resource(icon));
}

void TestShell::firstStates_data()
{
    QTest::addColumn<QStringList>("unchecked");
    QTest::newRow("view/showAirport") << QStringList{"actApt"};
    QTest::newRow("view/showVor") << QStringList{"actVor"};
    // The terminal NDB follow the en route flag, the docks that of the airspace.
    QTest::newRow("view/showNdbRte") << QStringList{"actNdbRte", "actNdbTerm"};
    QTest::newRow("view/showNdbTerm") << QStringList{};
    QTest::newRow("view/showWaypointRte") << QStringList{"actWptRte"};
    QTest::newRow("view/showWaypointTerm") << QStringList{"actWptTerm"};
    QTest::newRow("view/showWaypointVfr") << QStringList{"actWptVfr"};
    QTest::newRow("view/showATSL") << QStringList{"actAtsLo"};
    QTest::newRow("view/showATSH") << QStringList{"actAtsHi"};
    QTest::newRow("view/showATSB") << QStringList{"actAtsB"};
    QTest::newRow("view/showBoundary") << QStringList{"actBdry", "actDock"};
    QTest::newRow("view/showDock") << QStringList{};
}

void TestShell::firstStates()
{
    QFETCH(QStringList, unchecked);
    session->close();
    for (const char* key : {"view/showAirport", "view/showVor", "view/showNdbRte", "view/showNdbTerm",
                            "view/showWaypointRte", "view/showWaypointTerm", "view/showWaypointVfr", "view/showATSL",
                            "view/showATSH", "view/showATSB", "view/showBoundary", "view/showDock"})
        sandbox->setSetting(key, QString(key) != QTest::currentDataTag());
    session.reset(new WindowSession);
    QStringList found;
    for (const QString& name : viewActions) {
        if (!session->action(name)->isChecked())
            found << name;
    }
    QCOMPARE(found, unchecked);
}

void TestShell::menuBar()
{
    QStringList menus;
    for (const QAction* action : find<QMenuBar>("menuBar")->actions())
        menus << action->menu()->objectName();
    QCOMPARE(menus, (QStringList{"menuPlan_de_vol", "menuImport", "menuA_propos"}));
    QCOMPARE(names(find<QMenu>("menuPlan_de_vol")->actions()),
             (QStringList{"menuNewFlightPlan", "menuSaveFlightPlan", "menuLoadFlightPlan", "-", "menuQuit"}));
    QCOMPARE(names(find<QMenu>("menuImport")->actions()), QStringList{"actImport"});
    QCOMPARE(names(find<QMenu>("menuA_propos")->actions()), (QStringList{"actionAbout", "actionAboutQt"}));
}

void TestShell::menuEntry_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shortcut");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("menuNewFlightPlan") << "Nouveau plan de vol"
                                       << "Ctrl+N" << true;
    QTest::newRow("menuSaveFlightPlan") << "Enregistrer le plan de vol"
                                        << "Ctrl+S" << false;
    QTest::newRow("menuLoadFlightPlan") << "Charger un plan de vol"
                                        << "Ctrl+L" << true;
    QTest::newRow("menuQuit") << "Quitter"
                              << "Ctrl+Q" << true;
    QTest::newRow("actImport") << "Importer mise à jour"
                               << "" << true;
    QTest::newRow("actionAbout") << "A propos"
                                 << "" << true;
    QTest::newRow("actionAboutQt") << "A propos de Qt"
                                   << "" << true;
}

void TestShell::menuEntry()
{
    QFETCH(QString, text);
    QFETCH(QString, shortcut);
    QFETCH(bool, enabled);
    const QAction* action = session->action(QTest::currentDataTag());
    QCOMPARE(action->text(), text);
    QCOMPARE(action->toolTip(), text);
    QCOMPARE(action->shortcut(), QKeySequence(shortcut));
    QCOMPARE(action->isEnabled(), enabled);
}

void TestShell::newPlanEntryShowsNoIcon()
{
    QVERIFY(session->action("menuNewFlightPlan")->icon().pixmap(16, 16).isNull());
}

void TestShell::treeContextMenu()
{
    auto* tree = find<QTreeWidget>("treeWFound");
    QCOMPARE(tree->contextMenuPolicy(), Qt::ActionsContextMenu);
    QCOMPARE(names(tree->actions()), QStringList{"actFndCenter"});
    QCOMPARE(tree->actions().first()->text(), QString("Centrer sur ce point"));
    QCOMPARE(shown(tree->actions().first()->icon()), resource("Img00.bmp"));
    QVERIFY(!resource("Img00.bmp").isNull());
}

void TestShell::gridContextMenu()
{
    auto* grid = find<QTableWidget>("fltplnGrid");
    QCOMPARE(grid->contextMenuPolicy(), Qt::ActionsContextMenu);
    QCOMPARE(names(grid->actions()), (QStringList{"actFpCenter", "actFpDel", "actFpUp", "actFpDown"}));
    QStringList texts;
    for (const QAction* action : grid->actions()) {
        texts << action->text();
        QCOMPARE(shown(action->icon()), resource("Img00.bmp"));
    }
    QCOMPARE(texts,
             (QStringList{"Centrer sur ce point", "Supprimer la ligne", "Monter la ligne", "Descendre la ligne"}));
}

void TestShell::headers()
{
    const auto* sid = find<QTreeWidget>("treeWSid");
    QCOMPARE(sid->headerItem()->text(0), QString("Nom"));
    QCOMPARE(sid->headerItem()->text(1), QString("Point de report"));
    QVERIFY(sid->header()->cascadingSectionResizes());
    QVERIFY(sid->header()->highlightSections());
    const auto* star = find<QTreeWidget>("treeWStar");
    QCOMPARE(star->headerItem()->text(0), QString("Nom"));
    QCOMPARE(star->headerItem()->text(1), QString("Point de report"));
    QCOMPARE(star->header()->defaultSectionSize(), 200);
    QCOMPARE(find<QTableWidget>("fltplnGrid")->horizontalHeader()->defaultSectionSize(), 100);
    QVERIFY(find<QTreeWidget>("treeWFound")->header()->isHidden());
}

void TestShell::columns_data()
{
    QTest::addColumn<QString>("widget");
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("label");
    QTest::addColumn<int>("width");
    const auto add = [](const QString& widget, int column, const QString& label, int width) {
        QTest::addRow("%s %d", qPrintable(widget), column) << widget << column << label << width;
    };
    add("treeWFound", 0, "", 40);
    add("treeWFound", 1, "OACI", 60);
    add("treeWFound", 2, "Pays", 30);
    add("treeWFound", 3, "Nom", 130);
    add("treeWFound", 4, "Clé unique", 60);
    add("fltplnGrid", 0, "", 20);
    add("fltplnGrid", 1, "ID", 60);
    add("fltplnGrid", 2, "Nom", 120);
    add("fltplnGrid", 3, "Fréq.", 80);
    add("fltplnGrid", 4, "Vitesse", 45);
    add("fltplnGrid", 5, "Route", 40);
    add("fltplnGrid", 6, "Dist", 60);
    add("fltplnGrid", 7, "Durée", 50);
    add("fltplnGrid", 8, "Temps", 50);
    add("fltplnGrid", 9, "Altitude", 60);
}

void TestShell::columns()
{
    QFETCH(QString, widget);
    QFETCH(int, column);
    QFETCH(QString, label);
    QFETCH(int, width);
    if (widget == "fltplnGrid") {
        const auto* grid = find<QTableWidget>("fltplnGrid");
        QCOMPARE(grid->columnCount(), 10);
        QCOMPARE(grid->horizontalHeaderItem(column)->text(), label);
        QCOMPARE(grid->columnWidth(column), width);
        return;
    }
    const auto* tree = find<QTreeWidget>("treeWFound");
    QCOMPARE(tree->columnCount(), 5);
    QCOMPARE(tree->headerItem()->text(column), label);
    QCOMPARE(tree->header()->sectionSize(column), width);
}

void TestShell::statusLabels()
{
    QStringList labels;
    int lastX = -1;
    session->window().show();
    for (const char* name : {"lblData", "lblCenter", "lblZoom"}) {
        auto* label = find<QLabel>(name);
        QCOMPARE(label->parentWidget(), static_cast<QWidget*>(session->window().statusBar()));
        label->setText("x");
        QVERIFY(label->isVisible());
        QCoreApplication::processEvents();
        QVERIFY2(label->x() > lastX, name);
        lastX = label->x();
    }
}

QTEST_MAIN(TestShell)
#include "tst_shell.moc"
