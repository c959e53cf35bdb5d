// Pages for the tests of what they do.
#include "pagetest.h"

#include "samplechart.h"

#include <QtTest>

ProgramSide* PageTest::newProgram() const
{
    return new FullProgramSide;
}

QString PageTest::firstView() const
{
    return "map.setCenter(new google.maps.LatLng(46.50000, 2.50000));map.setZoom(8)";
}

void PageTest::open()
{
    QVERIFY(window->load());
    window->run(firstView());
}

QImage PageTest::pictureAround(double latitude, double longitude, int reach)
{
    window->settle();
    const QPoint middle = window->mouse->pointOf(latitude, longitude);
    const QSize size(2 * reach + 1, 2 * reach + 1);
    return window->view->grab().toImage().copy(QRect(middle - QPoint(reach, reach), size));
}

void PageTest::init()
{
    window.reset(); // it knows the program
    program.reset(newProgram());
    window.reset(new PageWindow(program.data()));
    open();
}

ProgramSide* LonePageTest::newProgram() const
{
    return nullptr;
}

void SampleChartTest::open()
{
    QVERIFY(samplechart::show(*window));
    program->clear();
}

QStringList SampleChartTest::commands() const
{
    return program->calls().filter(QRegularExpression("^(?!doData|doCenter|doZoom)"));
}

QStringList SampleChartTest::chosen()
{
    return samplechart::texts(*window, ".menu-entry.chosen .menu-label");
}

int SampleChartTest::panels()
{
    return window->run("document.querySelectorAll('.menu:not([hidden])').length").toInt();
}
