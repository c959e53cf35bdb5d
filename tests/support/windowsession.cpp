// The real window under test.
#include "windowsession.h"

#include "mainwindow.h"

#include <QTextEdit>

WindowSession::WindowSession()
    : mainWindow(new MainWindow), root(mainWindow.get()), probe(new PageProbe(mainWindow.get()))
{
}

WindowSession::~WindowSession() = default;

bool WindowSession::load()
{
    mainWindow->show();
    return probe->waitUntilLoaded();
}

void WindowSession::close()
{
    // The program's end of a run: the window closes first, its destructor asks the page for the view.
    mainWindow->close();
    mainWindow.reset();
    probe.reset();
}

MainWindow& WindowSession::window()
{
    return *mainWindow;
}

PageProbe& WindowSession::page()
{
    return *probe;
}

QAction* WindowSession::action(const QString& name) const
{
    return find<QAction>(name);
}

QStringList WindowSession::debugLines() const
{
    return find<QTextEdit>("debugText")->toPlainText().split('\n', Qt::SkipEmptyParts);
}
