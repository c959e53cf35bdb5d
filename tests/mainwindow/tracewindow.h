#pragma once

#include "blockpeer.h"
#include "boxresponder.h"
#include "sandbox.h"
#include "windowsession.h"

#include <QStringList>

class QPushButton;

/// The window on a loaded page and with no shared block on the machine, for the tests of the trace. A tick of the
/// timer is a day away until the test asks for another interval.
class TraceWindow
{
public:
    TraceWindow();

    PageProbe& page();
    QPushButton* traceButton();
    QPushButton* centreButton();
    /// What the settings tell, in milliseconds; the next trace takes it.
    void setInterval(int milliseconds);
    /// A click on the button, and the calls to the page that it made.
    QStringList clickTrace();
    /// One tick more than the timer's own, and the calls that it made.
    QStringList tick();
    /// Runs the event loop until a tick has moved the marker there: "1,2" for 1 degree north and 2 degrees east.
    bool markerComesTo(const QString& place, const QString& heading);
    /// Where the map's middle is, "1 2".
    QString mapCentre();

    // In this order: the window ends first, the block's name last.
    NoBlock noBlock;
    BoxResponder boxes;
    std::unique_ptr<Sandbox> sandbox;
    std::unique_ptr<WindowSession> session;
};
