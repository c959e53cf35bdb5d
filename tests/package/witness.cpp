// Loaded by Qt into the installed program itself, which knows nothing of it: waits until the window shows its map with
// airports on it, writes down what it sees into the file that ZEPHAN_WITNESS names, and closes the window as a user
// would.
#include <QApplication>
#include <QDockWidget>
#include <QFile>
#include <QGenericPlugin>
#include <QMainWindow>
#include <QTextStream>
#include <QTimer>
#include <QWebElement>
#include <QWebFrame>
#include <QWebView>

namespace {

/// Asked while the page is still read too, when an error would count as the page's own.
const char airports[] = "typeof listApt === 'undefined' ? 0 : listApt.length";

QMainWindow* shownWindow()
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        auto* window = qobject_cast<QMainWindow*>(widget);
        if (window && window->isVisible())
            return window;
    }
    return nullptr;
}

QWebFrame* pageOf(const QMainWindow* window)
{
    const auto* view = window->findChild<QWebView*>("map");
    return view ? view->page()->mainFrame() : nullptr;
}

void writeDown(const QMainWindow* window, QWebFrame* page)
{
    QFile file(QString::fromLocal8Bit(qgetenv("ZEPHAN_WITNESS")));
    if (!file.open(QIODevice::WriteOnly))
        return;
    const auto* dock = window->findChild<QDockWidget*>("dockWFlightPlan");
    QTextStream out(&file);
    out.setCodec("UTF-8");
    out << "page " << page->url().toLocalFile() << '\n'
        << "dock " << (dock ? dock->windowTitle() : QString()) << '\n'
        << "incomplete " << !page->findFirstElement("#incomplete").isNull() << '\n';
}

class Witness : public QObject
{
    Q_OBJECT

public:
    Witness()
    {
        auto* timer = new QTimer(this);
        connect(timer, &QTimer::timeout, this, &Witness::look);
        timer->start(50);
    }

private:
    void look()
    {
        QMainWindow* window = shownWindow();
        QWebFrame* page = window ? pageOf(window) : nullptr;
        if (!page || page->evaluateJavaScript(airports).toInt() == 0)
            return;
        writeDown(window, page);
        window->close();
    }
};

class WitnessPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "witness.json")

public:
    QObject* create(const QString&, const QString&) override
    {
        return new Witness;
    }
};

} // namespace

#include "witness.moc"
