#pragma once

#include "pagewindow.h"
#include "programside.h"

#include <QImage>
#include <QObject>
#include <QScopedPointer>

/// What the tests of the pages begin with: a page of its own for each, loaded and looking at 46.5 north and 2.5 east at
/// zoom 8, and a program on the other side that has all slots.
class PageTest : public QObject
{
    Q_OBJECT

protected:
    /// Another program; null is a page without one.
    virtual ProgramSide* newProgram() const;
    /// The script that brings the view to its first place.
    virtual QString firstView() const;
    /// Loads the page and brings the view there.
    virtual void open();

    /// What shows around a position, so many pixels to each side.
    QImage pictureAround(double latitude, double longitude, int reach);

    QScopedPointer<ProgramSide> program;
    QScopedPointer<PageWindow> window;

private slots:
    void init();
};

/// A page that has no program on the other side.
class LonePageTest : public PageTest
{
    Q_OBJECT

protected:
    ProgramSide* newProgram() const override;
};

/// A page that shows the chart of samplechart.h; the program has forgotten the calls of its start.
class SampleChartTest : public PageTest
{
    Q_OBJECT

protected:
    void open() override;

    /// The calls that are no reports of pointer and view.
    QStringList commands() const;
    /// The chosen entries of the open menus.
    QStringList chosen();
    /// How many menus are open, submenus included.
    int panels();
};
