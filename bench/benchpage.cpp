// The map page under a clock: frames on demand, each with the view painted.
#include "benchpage.h"

#include "mywebpage.h"

#include <QApplication>
#include <QFile>
#include <QMouseEvent>
#include <QPainter>
#include <QSignalSpy>
#include <QWebFrame>

namespace {

constexpr QSize viewSize(1280, 800);
constexpr int loadPatience = 120000; // milliseconds
/// Something that asks for a frame in each frame is a movement without an end.
constexpr int queuedRounds = 3;

QString resourceText(const QString& name)
{
    QFile file(":/bench/" + name);
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("no resource %s", qPrintable(name));
    }
    return QString::fromUtf8(file.readAll());
}

} // namespace

BenchPage::BenchPage() : image(viewSize, QImage::Format_ARGB32_Premultiplied)
{
    setPage(new myWebPage(this));
    resize(viewSize);
    const QString frameQueue = resourceText("framequeue.js");
    QWebFrame* frame = page()->mainFrame();
    connect(frame, &QWebFrame::javaScriptWindowObjectCleared, this, [this, frame, frameQueue] {
        frame->addToJavaScriptWindowObject("mainWindow", &program);
        frame->evaluateJavaScript(frameQueue);
    });
    show();
}

void BenchPage::loadPage()
{
    QSignalSpy finished(this, &QWebView::loadFinished);
    load(QUrl::fromLocalFile(QCoreApplication::applicationDirPath() + "/gm_trajector_fr.html"));
    if ((finished.isEmpty() && !finished.wait(loadPatience)) || !finished.last().value(0).toBool()) {
        qFatal("the map page did not load");
    }
}

QVariant BenchPage::run(const QString& script)
{
    return page()->mainFrame()->evaluateJavaScript(script);
}

void BenchPage::runQueued()
{
    for (int round = 0; round < queuedRounds; ++round) {
        const int called = run("benchFrame()").toInt();
        QApplication::processEvents();
        if (called == 0) {
            break;
        }
    }
}

double BenchPage::workMs(const QString& script)
{
    return elapsedMs([&] {
        if (!script.isEmpty()) {
            run(script);
        }
        runQueued();
    });
}

double BenchPage::frameMs(const QString& script)
{
    const double work = workMs(script);
    return work + elapsedMs([this] { render(&image); });
}

double BenchPage::pointerMs(const QPoint& place)
{
    QMouseEvent event(QEvent::MouseMove, place, mapToGlobal(place), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    return elapsedMs([&] { QApplication::sendEvent(this, &event); });
}
