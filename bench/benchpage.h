#pragma once

#include "measure.h"

#include <QImage>
#include <QString>
#include <QVariant>
#include <QWebView>

/// The program as the page sees it while the map moves.
class StatusSide : public QObject
{
    Q_OBJECT

public slots:
    void doCenter(double, double) {}
    void doZoom(int) {}
    void doData(const QString&) {}
    /// The measurement's clock, for the page too.
    double clockMs()
    {
        return nowMs();
    }
};

/// The map page in a view of 1280 by 800 pixels. Its frames come when they are asked for, and a frame ends with the
/// view painted into an image: what a canvas or the engine puts off is done and counted then, whoever draws.
class BenchPage : public QWebView
{
    Q_OBJECT

public:
    BenchPage();

    /// Loads the page beside this program anew. Ends the process with a message when it does not load.
    void loadPage();
    QVariant run(const QString& script);

    /// Milliseconds of one frame: the script, what it made wait for the next frame and for timers, and the painting.
    double frameMs(const QString& script);
    /// The same without the painting.
    double workMs(const QString& script);
    /// Milliseconds that the page takes for a move of the pointer to a place in the view.
    double pointerMs(const QPoint& place);

    /// The view as it was painted last.
    const QImage& picture() const
    {
        return image;
    }

private:
    void runQueued();

    StatusSide program;
    QImage image;
};
