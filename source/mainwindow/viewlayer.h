#pragma once

#include "mainwindow.h"

#include "cnavglobalvar.h"

#include <QLatin1String>

/// One toggle of the view tool bar, from its looks to what it asks of the page.
struct ViewLayer
{
    QAction* MainWindow::*action;
    QLatin1String objectName;
    const char* text;      ///< source text, for translation
    const char* statusTip; ///< source text, for translation
    QLatin1String icon;
    void (MainWindow::*slot)();
    bool CNavGlobalVar::*flag;       ///< keeps the state
    bool CNavGlobalVar::*firstState; ///< gives the state at the start
    QLatin1String manager;           ///< of a marker layer, else empty
    QLatin1String list;              ///< of a marker layer, else empty
    char level;                      ///< of an airway layer, else 0

    /// What shows or hides the layer on the page; empty for a toggle that the page does not know.
    QString script(bool shown) const;
};
