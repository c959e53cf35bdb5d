#include "pagewindow.h"

#include "pagenetwork.h"
#include "waiting.h"

#include <QApplication>
#include <QMouseEvent>
#include <QNetworkRequest>
#include <QSignalSpy>
#include <QWebFrame>
#include <QtTest>

#include <algorithm>

namespace {

/// Whether a request stays on this machine; its servers are those of the tests.
bool isLocal(const QUrl& url)
{
    return url.isLocalFile() || url.scheme() == "data" || url.scheme() == "about" || url.host() == "127.0.0.1";
}

/// Notes every request and lets it go on. One that leaves this machine fails whatever test the page makes it in.
class NotingNetwork : public PageNetwork
{
public:
    NotingNetwork(QList<QUrl>* noted, QObject* parent) : PageNetwork(parent), requests(noted) {}

protected:
    QNetworkReply* createRequest(Operation operation, const QNetworkRequest& request, QIODevice* data) override
    {
        requests->append(request.url());
        if (!isLocal(request.url()))
            QTest::qFail(qPrintable("the page asks the network for " + request.url().toString()), __FILE__, __LINE__);
        return PageNetwork::createRequest(operation, request, data);
    }

private:
    QList<QUrl>* requests;
};

} // namespace

void LoudWebPage::expectFault(const QString& part)
{
    expected.append(part);
}

void LoudWebPage::javaScriptConsoleMessage(const QString& message, int lineNumber, const QString& sourceID)
{
    messages.append(QString("%1:%2: %3").arg(sourceID).arg(lineNumber).arg(message));
    const auto isExpected = [this](const QString& part) { return messages.last().contains(part); };
    if (std::none_of(expected.cbegin(), expected.cend(), isExpected))
        QTest::qFail(qPrintable("the page reports " + messages.last()), __FILE__, __LINE__);
}

PageWindow::PageWindow(ProgramSide* program) : view(new QWebView(this)), page(new LoudWebPage(view))
{
    resize(800, 600);
    view->setObjectName("map");
    view->setGeometry(0, 0, 800, 600);
    page->setNetworkAccessManager(new NotingNetwork(&requests, page));
    view->setPage(page);
    QWebFrame* frame = page->mainFrame();
    if (program)
        connect(frame, &QWebFrame::javaScriptWindowObjectCleared, this,
                [frame, program] { frame->addToJavaScriptWindowObject("mainWindow", program); });
    mouse.reset(new PageProbe(this));
    show();
}

bool PageWindow::load(const QString& file)
{
    return load(QUrl::fromLocalFile(QCoreApplication::applicationDirPath() + '/' + file));
}

bool PageWindow::load(const QUrl& url)
{
    QSignalSpy finished(view, &QWebView::loadFinished);
    view->load(url);
    if (finished.isEmpty() && !finished.wait(30000))
        return false;
    return finished.last().value(0).toBool();
}

QVariant PageWindow::run(const QString& script)
{
    return page->mainFrame()->evaluateJavaScript(script);
}

void PageWindow::settle()
{
    run("var settledFrames = 0;"
        "requestAnimationFrame(function () { requestAnimationFrame(function () { settledFrames = 2; }); });");
    QVERIFY(waitUntil([this] { return run("settledFrames").toInt() == 2; }));
}

QImage PageWindow::picture()
{
    settle();
    return view->grab().toImage();
}

QColor PageWindow::colourAt(double latitude, double longitude)
{
    return picture().pixelColor(mouse->pointOf(latitude, longitude));
}

int PageWindow::pixelsAround(double latitude, double longitude, int reach, const QColor& colour)
{
    const QImage image = picture();
    const QPoint middle = mouse->pointOf(latitude, longitude);
    const QRect area = QRect(middle - QPoint(reach, reach), middle + QPoint(reach, reach)) & image.rect();
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            count += image.pixelColor(x, y) == colour ? 1 : 0;
    return count;
}

QStringList PageWindow::menuAt(double latitude, double longitude)
{
    closeMenu();
    mouse->contextMenu(mouse->pointOf(latitude, longitude));
    return menuEntries();
}

void PageWindow::closeMenu()
{
    QMouseEvent press(QEvent::MouseButtonPress, QPoint(1, 1), Qt::RightButton, Qt::RightButton, Qt::NoModifier);
    QMouseEvent release(QEvent::MouseButtonRelease, QPoint(1, 1), Qt::RightButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(view, &press);
    QApplication::sendEvent(view, &release);
}

QStringList PageWindow::menuEntries()
{
    return mouse->menuEntries();
}

bool PageWindow::chooseEntry(const QString& text)
{
    return mouse->chooseEntry(text);
}

void PageWindow::click(double latitude, double longitude)
{
    mouse->click(mouse->pointOf(latitude, longitude));
}

void PageWindow::pressKey(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    // Without a window manager nobody else makes a window the active one.
    QApplication::setActiveWindow(this);
    view->setFocus();
    QTest::keyClick(view, key, modifiers);
}

QString PageWindow::popupText()
{
    return mouse->popupText();
}
