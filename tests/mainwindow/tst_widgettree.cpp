// The widget tree as it stands after the start: names, classes, properties, layouts and focus order.
#include "sandbox.h"
#include "windowsession.h"

#include "mainwindow.h"

#include <QAbstractSpinBox>
#include <QDockWidget>
#include <QFormLayout>
#include <QFrame>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QTableWidget>
#include <QTextEdit>
#include <QtTest>

namespace {

/// Names of a layout's items in order; spacers count as "spacer".
QStringList itemNames(const QLayout* layout)
{
    QStringList names;
    for (int i = 0; i < layout->count(); ++i) {
        QLayoutItem* item = layout->itemAt(i);
        if (item->spacerItem())
            names << QStringLiteral("spacer");
        else if (item->layout())
            names << item->layout()->objectName();
        else
            names << item->widget()->objectName();
    }
    return names;
}

void row(const char* name, const char* className, const QVariantMap& properties = {})
{
    QTest::newRow(name) << QString(className) << properties;
}

void buttonRow(const char* name, const QString& text, const QVariantMap& more = {})
{
    QVariantMap properties = more;
    properties.insert("text", text);
    row(name, "QPushButton", properties);
}

void labelRow(const char* name, const QString& text)
{
    row(name, "QLabel", {{"text", text}, {"minimumWidth", 190}, {"alignment", int(Qt::AlignRight)}});
}

void fieldRow(const char* name, const QString& text)
{
    row(name, "QLineEdit", {{"text", text}, {"maximumWidth", 100}, {"alignment", int(Qt::AlignRight)}});
}

} // namespace

class TestWidgetTree : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void object_data();
    void object();
    void window();
    void dock_data();
    void dock();
    void dockTabs();
    void layout_data();
    void layout();
    void aircraftForm_data();
    void aircraftForm();
    void fonts();
    void sizePolicyOfThePlanDock();
    void debugTextStartsEmpty();
    void mapStartsBlank();
    void focusOrder();

private:
    template <typename T>
    T* find(const char* name) const
    {
        return session->find<T>(name);
    }

    QScopedPointer<Sandbox> sandbox;
    QScopedPointer<WindowSession> session;
};

void TestWidgetTree::initTestCase()
{
    sandbox.reset(new Sandbox);
    session.reset(new WindowSession);
}

void TestWidgetTree::cleanupTestCase()
{
    session.reset();
    sandbox.reset();
}

void TestWidgetTree::object_data()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<QVariantMap>("properties");

    row("centralWidget", "QWidget");
    row("map", "QWebView");
    row("menuBar", "QMenuBar");
    row("menuPlan_de_vol", "QMenu", {{"title", "Plan de vol"}});
    row("menuImport", "QMenu", {{"title", "Import"}});
    row("menuA_propos", "QMenu", {{"title", "A propos"}});
    row("mainToolBar", "QToolBar");
    row("toolBar", "QToolBar", {{"windowTitle", "toolBar"}, {"styleSheet", "<color>rgb(255, 255, 255)<\\color>\n"}});
    row("statusBar", "QStatusBar", {{"minimumHeight", 70}});

    row("dockWidgetContents_2", "QWidget");
    row("searchData", "QLineEdit", {{"minimumSize", QSize(100, 25)}, {"inputMask", ""}});
    buttonRow("btnSearchExact", "Exact", {{"minimumHeight", 25}});
    buttonRow("btnSearchNear", "Approx.", {{"minimumHeight", 25}});
    row("treeWFound", "QTreeWidget");

    row("dockWidgetContents", "QWidget");
    row("frame", "QFrame",
        {{"frameShape", int(QFrame::StyledPanel)}, {"frameShadow", int(QFrame::Plain)}, {"lineWidth", 1}});
    buttonRow("btnNewFlightPlan", "Nouveau", {{"shortcut", QKeySequence("Ctrl+L")}, {"enabled", true}});
    buttonRow("btnSaveFlightPlan", "Enregistrer", {{"enabled", false}});
    buttonRow("btnLoadFlightPlan", "Charger", {{"enabled", true}});
    buttonRow("btnStartPos", "Départ", {{"enabled", false}});
    row("spInertial", "QSpinBox",
        {{"alignment", int(Qt::AlignRight)},
         {"buttonSymbols", int(QAbstractSpinBox::UpDownArrows)},
         {"minimum", 0},
         {"maximum", 359},
         {"suffix", "°"},
         {"prefix", ""}});
    buttonRow("btnCreateSID", "SID", {{"enabled", false}});
    buttonRow("btnCreateSTAR", "STAR", {{"enabled", false}});
    buttonRow("btnPod", "POD", {{"checkable", false}});
    row("line", "QFrame", {{"frameShape", int(QFrame::HLine)}, {"frameShadow", int(QFrame::Sunken)}});
    buttonRow("pbTraceAcft", "Trace", {{"checkable", true}, {"checked", false}});
    buttonRow("pbCenterAcft", "Centre avion", {{"checkable", true}, {"checked", false}});
    row("fltplnGrid", "QTableWidget",
        {{"minimumWidth", 630}, {"maximumWidth", 737}, {"rowCount", 0}, {"columnCount", 10}, {"acceptDrops", true}});

    row("dockWidgetContents_3", "QWidget");
    row("treeWSid", "QTreeWidget", {{"maximumWidth", 300}, {"columnCount", 2}});
    buttonRow("btnAddSid", "Ajouter au plan de vol");
    buttonRow("pbDelSID", "Supprimer");
    buttonRow("pbDelAllSID", "Supprimer tout");

    row("dockWidgetContents_5", "QWidget", {{"minimumWidth", 200}});
    row("treeWStar", "QTreeWidget", {{"maximumWidth", 300}, {"columnCount", 2}});
    buttonRow("btnAddStar", "Ajouter au plan de vol");
    buttonRow("pbDelSTAR", "Supprimer");
    buttonRow("pbDelAllSTAR", "Supprimer tout");

    row("dockWidgetContents_4", "QWidget");
    labelRow("label", "Type");
    labelRow("label_2", "Vitesse de croisère maxi(kts)");
    labelRow("label_3", "Vitesse de croisière (kts)");
    labelRow("label_4", "Vitesse en approche (kts)");
    labelRow("label_5", "Vitesse acensionnelle (ft/mn)");
    labelRow("label_6", "Plafond (ft)");
    labelRow("label_8", "Altitude maxi de croisière (ft)");
    labelRow("label_7", "Immatriculation");
    row("cbAircraftType", "QComboBox", {{"maximumWidth", 200}, {"count", 0}});
    for (const char* field :
         {"leSpeedMax", "leSpeedCruise", "leSpeedApp", "leSpeedVert", "leAircraftCeiling", "leAltCruise"})
        fieldRow(field, "0");
    fieldRow("leAircraftNumber", "");

    row("dockWidgetContents_6", "QWidget");
    row("debugText", "QTextEdit");
}

void TestWidgetTree::object()
{
    QFETCH(QString, className);
    QFETCH(QVariantMap, properties);
    const QWidget* widget = find<QWidget>(QTest::currentDataTag());
    QCOMPARE(QString(widget->metaObject()->className()), className);
    for (auto wanted = properties.begin(); wanted != properties.end(); ++wanted) {
        QVariant found = widget->property(qPrintable(wanted.key()));
        QVERIFY2(found.isValid(), qPrintable(wanted.key()));
        // A label stays vertically centred, only its side is told.
        if (wanted.key() == "alignment")
            found = found.toInt() & int(Qt::AlignHorizontal_Mask);
        else if (wanted.value().type() == QVariant::Int)
            found = found.toInt();
        QVERIFY2(
            found == wanted.value(),
            qPrintable(
                QStringLiteral("%1: %2 instead of %3").arg(wanted.key(), found.toString(), wanted.value().toString())));
    }
}

void TestWidgetTree::window()
{
    const MainWindow& window = session->window();
    QCOMPARE(window.objectName(), QString("MainWindow"));
    QCOMPARE(window.windowTitle(), QString("Zephan Trajector - Version 0.22 novembre 2013"));
    QCOMPARE(window.size(), QSize(1130, 1035));
    QCOMPARE(window.minimumSize(), QSize(800, 600));
    QCOMPARE(window.maximumSize(), QSize(16777215, 16777215));
    QVERIFY(window.testAttribute(Qt::WA_MouseTracking));
    QCOMPARE(window.centralWidget(), find<QWidget>("centralWidget"));
    QCOMPARE(window.menuWidget(), find<QWidget>("menuBar"));
    QCOMPARE(find<QLabel>("label_2")->maximumWidth(), 200);
}

void TestWidgetTree::dock_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QSize>("minimumSize");
    QTest::addColumn<QString>("content");
    QTest::newRow("dockWSearch") << "Recherche" << QSize(360, 200) << "dockWidgetContents_2";
    QTest::newRow("dockWFlightPlan") << "Plan de vol" << QSize(757, 358) << "dockWidgetContents";
    QTest::newRow("dockWSid") << "SID" << QSize(306, 168) << "dockWidgetContents_3";
    QTest::newRow("dockWStar") << "STAR" << QSize(200, 151) << "dockWidgetContents_5";
    QTest::newRow("dockWAircraft") << "Avion" << QSize(322, 244) << "dockWidgetContents_4";
    QTest::newRow("dockWDebug") << "Debug info" << QSize(89, 151) << "dockWidgetContents_6";
}

void TestWidgetTree::dock()
{
    QFETCH(QString, title);
    QFETCH(QSize, minimumSize);
    QFETCH(QString, content);
    auto* dock = find<QDockWidget>(QTest::currentDataTag());
    QCOMPARE(dock->windowTitle(), title);
    QCOMPARE(dock->minimumSize(), minimumSize);
    QCOMPARE(dock->widget()->objectName(), content);
    QCOMPARE(dock->features(), QDockWidget::DockWidgetFeatures(QDockWidget::NoDockWidgetFeatures));
    QCOMPARE(dock->allowedAreas(), Qt::DockWidgetAreas(Qt::NoDockWidgetArea));
    QCOMPARE(session->window().dockWidgetArea(dock), Qt::TopDockWidgetArea);
    QVERIFY(!dock->isFloating());
    QVERIFY2(!dock->isHidden(), "docks are visible at start");
    const bool fixedWidth = title == "Recherche";
    QCOMPARE(dock->maximumWidth(), fixedWidth ? 360 : 16777215);
}

void TestWidgetTree::dockTabs()
{
    QStringList names;
    for (const QDockWidget* tab : session->window().tabifiedDockWidgets(find<QDockWidget>("dockWFlightPlan")))
        names << tab->objectName();
    QCOMPARE(names, (QStringList{"dockWSid", "dockWStar", "dockWAircraft", "dockWDebug"}));
    QVERIFY(session->window().tabifiedDockWidgets(find<QDockWidget>("dockWSearch")).isEmpty());
}

void TestWidgetTree::layout_data()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<int>("spacing");
    QTest::addColumn<int>("margin");
    QTest::addColumn<QStringList>("items");
    const QString column("QVBoxLayout");
    const QString line("QHBoxLayout");
    const int any = -1;
    QTest::newRow("verticalLayout_2") << column << 6 << 11 << QStringList{"map"};
    QTest::newRow("verticalLayout_3") << column << 6 << 11 << QStringList{"verticalLayout"};
    QTest::newRow("verticalLayout") << column << 6 << any << QStringList{"horizontalLayout", "treeWFound"};
    QTest::newRow("horizontalLayout") << line << 6 << any
                                      << QStringList{"searchData", "spacer", "btnSearchExact", "btnSearchNear"};
    QTest::newRow("horizontalLayout_4") << line << 6 << 11 << QStringList{"frame", "fltplnGrid", "spacer"};
    QTest::newRow("verticalLayout_8") << column << 1 << 1 << QStringList{"verticalLayout_7"};
    QTest::newRow("verticalLayout_7")
        << column << 6 << any
        << QStringList{"btnNewFlightPlan", "btnSaveFlightPlan", "btnLoadFlightPlan", "btnStartPos", "spInertial",
                       "spacer",           "btnCreateSID",      "btnCreateSTAR",     "btnPod",      "line",
                       "pbTraceAcft",      "pbCenterAcft"};
    QTest::newRow("verticalLayout_4") << column << any << any << QStringList{"treeWSid", "horizontalLayout_2"};
    QTest::newRow("horizontalLayout_2") << line << 6 << any
                                        << QStringList{"btnAddSid", "pbDelSID", "pbDelAllSID", "spacer"};
    QTest::newRow("verticalLayout_5") << column << any << any
                                      << QStringList{"horizontalLayout_6", "horizontalLayout_3"};
    QTest::newRow("horizontalLayout_6") << line << 6 << any << QStringList{"treeWStar", "spacer"};
    QTest::newRow("horizontalLayout_3") << line << 6 << any
                                        << QStringList{"btnAddStar", "pbDelSTAR", "pbDelAllSTAR", "spacer"};
    QTest::newRow("verticalLayout_6") << column << any << any << QStringList{"formLayout"};
    QTest::newRow("verticalLayout_9") << column << any << any << QStringList{"debugText"};
}

void TestWidgetTree::layout()
{
    QFETCH(QString, className);
    QFETCH(int, spacing);
    QFETCH(int, margin);
    QFETCH(QStringList, items);
    const auto* layout = find<QLayout>(QTest::currentDataTag());
    QCOMPARE(QString(layout->metaObject()->className()), className);
    if (spacing >= 0)
        QCOMPARE(layout->spacing(), spacing);
    if (margin >= 0)
        QCOMPARE(layout->contentsMargins(), QMargins(margin, margin, margin, margin));
    QCOMPARE(itemNames(layout), items);
}

void TestWidgetTree::aircraftForm_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("field");
    QTest::newRow("0") << "label"
                       << "cbAircraftType";
    QTest::newRow("1") << "label_2"
                       << "leSpeedMax";
    QTest::newRow("2") << "label_3"
                       << "leSpeedCruise";
    QTest::newRow("3") << "label_4"
                       << "leSpeedApp";
    QTest::newRow("4") << "label_5"
                       << "leSpeedVert";
    QTest::newRow("5") << "label_6"
                       << "leAircraftCeiling";
    QTest::newRow("6") << "label_8"
                       << "leAltCruise";
    QTest::newRow("7") << "label_7"
                       << "leAircraftNumber";
}

void TestWidgetTree::aircraftForm()
{
    QFETCH(QString, label);
    QFETCH(QString, field);
    const auto* form = find<QFormLayout>("formLayout");
    const int line = QString(QTest::currentDataTag()).toInt();
    QCOMPARE(form->rowCount(), 8);
    QCOMPARE(form->spacing(), 6);
    QCOMPARE(form->itemAt(line, QFormLayout::LabelRole)->widget()->objectName(), label);
    QCOMPARE(form->itemAt(line, QFormLayout::FieldRole)->widget()->objectName(), field);
    QCOMPARE(form->itemAt(line, QFormLayout::LabelRole)->widget()->font().pointSize(), 9);
    if (field != "cbAircraftType")
        QCOMPARE(form->itemAt(line, QFormLayout::FieldRole)->widget()->font().pointSize(), 9);
}

void TestWidgetTree::fonts()
{
    QCOMPARE(find<QLineEdit>("searchData")->font().family(), QString("Segoe UI"));
    QCOMPARE(find<QLineEdit>("searchData")->font().pointSize(), 9);
    QCOMPARE(find<QTableWidget>("fltplnGrid")->font().family(), QString("Courier New"));
    QCOMPARE(find<QTextEdit>("debugText")->font().family(), QString("Calibri"));
    QCOMPARE(find<QTextEdit>("debugText")->font().pointSize(), 10);
}

void TestWidgetTree::sizePolicyOfThePlanDock()
{
    const QSizePolicy policy = find<QDockWidget>("dockWFlightPlan")->sizePolicy();
    QCOMPARE(policy.horizontalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(policy.verticalPolicy(), QSizePolicy::Preferred);
}

void TestWidgetTree::debugTextStartsEmpty()
{
    // The load of the page has not been given the event loop yet.
    QCOMPARE(find<QTextEdit>("debugText")->toPlainText(), QString());
}

void TestWidgetTree::mapStartsBlank()
{
    QCOMPARE(session->page().evaluate("document.title").toString(), QString());
    QCOMPARE(session->page().evaluate("typeof addAPTMarker").toString(), QString("undefined"));
}

void TestWidgetTree::focusOrder()
{
    const QStringList wanted{"searchData",  "btnSearchExact",   "btnSearchNear", "treeWFound",  "fltplnGrid",
                             "treeWSid",    "btnAddSid",        "treeWStar",     "btnAddStar",  "cbAircraftType",
                             "leSpeedMax",  "leSpeedCruise",    "leSpeedApp",    "leSpeedVert", "leAircraftCeiling",
                             "leAltCruise", "leAircraftNumber", "debugText"};
    QStringList found;
    QWidget* widget = find<QWidget>("searchData");
    do {
        if (wanted.contains(widget->objectName()))
            found << widget->objectName();
        widget = widget->nextInFocusChain();
    } while (widget->objectName() != "searchData");
    QCOMPARE(found, wanted);
}

QTEST_MAIN(TestWidgetTree)
#include "tst_widgettree.moc"
