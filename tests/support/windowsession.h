#pragma once

#include "pageprobe.h"

#include <QAction>
#include <QString>
#include <QWidget>

#include <memory>

class MainWindow;

/// The real window in the sandbox that was made before it, with a probe on its page.
class WindowSession
{
public:
    /// Starts the window as the program does, without showing it.
    WindowSession();
    /// Ends the window, which writes the settings file.
    ~WindowSession();

    /// Shows the window and waits until the page has been fed. False when that does not happen.
    bool load();
    /// Ends the window now.
    void close();

    MainWindow& window();
    PageProbe& page();

    /// An object of the window by its name; its absence ends the test program.
    template <typename T>
    T* find(const QString& name) const
    {
        T* object = root->findChild<T*>(name);
        if (!object)
            qFatal("the window has no \"%s\" of this class", qPrintable(name));
        return object;
    }

    QAction* action(const QString& name) const;
    /// The lines of the debug tab.
    QStringList debugLines() const;

private:
    std::unique_ptr<MainWindow> mainWindow;
    QWidget* root;
    std::unique_ptr<PageProbe> probe;
};
