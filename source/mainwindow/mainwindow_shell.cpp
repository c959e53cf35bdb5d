// What the start hangs on the bare widget tree: actions, menus, headers, labels, the about boxes.

#include "mainwindow.h"
#include "ui_mainwindow.h"

#include "datadictionary.h"
#include "resourceicon.h"
#include "viewlayer.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>

namespace {

struct Column
{
    const char* label; ///< source text, for translation
    int width;         ///< pixels
};

const Column foundColumns[] = {
    {"", 40},
    {QT_TRANSLATE_NOOP("MainWindow", "OACI"), 60},
    {QT_TRANSLATE_NOOP("MainWindow", "Pays"), 30},
    {QT_TRANSLATE_NOOP("MainWindow", "Nom"), 130},
    {QT_TRANSLATE_NOOP("MainWindow", "Clé unique"), 60},
};

const Column planColumns[] = {
    {"", 20},
    {QT_TRANSLATE_NOOP("MainWindow", "ID"), 60},
    {QT_TRANSLATE_NOOP("MainWindow", "Nom"), 120},
    {QT_TRANSLATE_NOOP("MainWindow", "Fréq."), 80},
    {QT_TRANSLATE_NOOP("MainWindow", "Vitesse"), 45},
    {QT_TRANSLATE_NOOP("MainWindow", "Route"), 40},
    {QT_TRANSLATE_NOOP("MainWindow", "Dist"), 60},
    {QT_TRANSLATE_NOOP("MainWindow", "Durée"), 50},
    {QT_TRANSLATE_NOOP("MainWindow", "Temps"), 50},
    {QT_TRANSLATE_NOOP("MainWindow", "Altitude"), 60},
};

constexpr int narrowestColumn = 20; // pixels
constexpr int headerPointSize = 8;  // the widest label then fits its column

QIcon bitmapIcon(QLatin1String name)
{
    return resourceIcon(QStringLiteral(":/icon/images/%1.bmp").arg(name));
}

} // namespace

void MainWindow::createViewActions()
{
    addToolBar(Qt::LeftToolBarArea, ui->mainToolBar);
    ui->mainToolBar->addSeparator();
    for (const ViewLayer& layer : viewLayers()) {
        auto* action = new QAction(bitmapIcon(layer.icon), tr(layer.text), this);
        action->setObjectName(layer.objectName);
        action->setStatusTip(tr(layer.statusTip));
        action->setCheckable(true);
        action->setChecked(settings->*layer.firstState);
        connect(action, &QAction::triggered, this, layer.slot);
        ui->mainToolBar->addAction(action);
        this->*layer.action = action;
    }
    ui->mainToolBar->setToolButtonStyle(Qt::ToolButtonIconOnly);
}

void MainWindow::connectMenuActions()
{
    // A menu entry and its button are one command.
    connect(ui->menuNewFlightPlan, &QAction::triggered, this, &MainWindow::on_btnNewFlightPlan_clicked);
    connect(ui->menuLoadFlightPlan, &QAction::triggered, this, &MainWindow::on_btnLoadFlightPlan_clicked);
    connect(ui->menuSaveFlightPlan, &QAction::triggered, this, &MainWindow::on_btnSaveFlightPlan_clicked);
}

void MainWindow::setupGridHeaders()
{
    const auto translated = [](const Column& column) { return *column.label == '\0' ? QString() : tr(column.label); };
    QStringList labels;
    for (const Column& column : foundColumns) {
        labels << translated(column);
    }
    ui->treeWFound->setHeaderLabels(labels);
    ui->treeWFound->header()->setVisible(false);

    labels.clear();
    for (const Column& column : planColumns) {
        labels << translated(column);
    }
    // Four labels more than the grid has columns: they stay without effect.
    labels << tr("Lat.") << tr("Long.") << tr("Latitude") << tr("Longitude");
    ui->fltplnGrid->setHorizontalHeaderLabels(labels);

    ui->fltplnGrid->horizontalHeader()->setFont(QFont(QApplication::font().family(), headerPointSize));

    // A style's own minimum would widen the narrow columns.
    ui->treeWFound->header()->setMinimumSectionSize(narrowestColumn);
    ui->fltplnGrid->horizontalHeader()->setMinimumSectionSize(narrowestColumn);
    for (int i = 0; i < int(std::size(foundColumns)); ++i) {
        ui->treeWFound->setColumnWidth(i, foundColumns[i].width);
    }
    for (int i = 0; i < int(std::size(planColumns)); ++i) {
        ui->fltplnGrid->setColumnWidth(i, planColumns[i].width);
    }
}

void MainWindow::createContextMenus()
{
    struct Entry
    {
        QWidget* widget;
        ActionMember member;
        const char* objectName;
        QString text;
        void (MainWindow::*slot)();
    };
    const Entry entries[] = {
        {ui->treeWFound, &MainWindow::actFndCenter, "actFndCenter", tr("Centrer sur ce point"),
         &MainWindow::sFndCenterAt},
        {ui->fltplnGrid, &MainWindow::actFpCenter, "actFpCenter", tr("Centrer sur ce point"), &MainWindow::sFpCenterAt},
        {ui->fltplnGrid, &MainWindow::actFpDel, "actFpDel", tr("Supprimer la ligne"), &MainWindow::sFpLineDel},
        {ui->fltplnGrid, &MainWindow::actFpUp, "actFpUp", tr("Monter la ligne"), &MainWindow::sFpLineUp},
        {ui->fltplnGrid, &MainWindow::actFpDown, "actFpDown", tr("Descendre la ligne"), &MainWindow::sFpLineDown},
    };
    for (const Entry& entry : entries) {
        auto* action = new QAction(bitmapIcon(QLatin1String("Img00")), entry.text, this);
        action->setObjectName(QLatin1String(entry.objectName));
        connect(action, &QAction::triggered, this, entry.slot);
        entry.widget->setContextMenuPolicy(Qt::ActionsContextMenu);
        entry.widget->addAction(action);
        this->*entry.member = action;
    }
}

void MainWindow::createStatusLabels()
{
    const auto addLabel = [this](const QString& objectName) {
        auto* label = new QLabel;
        label->setObjectName(objectName);
        label->setTextFormat(Qt::PlainText); // what the page tells holds names
        statusBar()->addPermanentWidget(label, 0);
        return label;
    };
    lblData = addLabel(QStringLiteral("lblData"));
    lblCenter = addLabel(QStringLiteral("lblCenter"));
    lblZoom = addLabel(QStringLiteral("lblZoom"));
}

void MainWindow::on_actionAbout_triggered()
{
    QMessageBox::about(this, tr("A propos de Zephan Trajector"), tr("Zephan Trajector\nversion %1").arg(version));
}

void MainWindow::on_actionAboutQt_triggered()
{
    QMessageBox::aboutQt(this);
}
