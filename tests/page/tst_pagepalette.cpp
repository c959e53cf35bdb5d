// The chart by day and by night: every colour has its pair, and a press of the button changes all that is drawn.
#include "pagetest.h"

#include <QtTest>

namespace {

const QColor dayLand("#f6f3ea");
const QColor daySea("#d3e4ee");
const QColor nightLand("#1c252c");
const QColor nightSea("#0f1a24");

} // namespace

class TestPagePalette : public PageTest
{
    Q_OBJECT

private slots:
    void theDayComesFirst();
    void bothPalettesNameTheSameColours();
    void theButtonGoesToTheNightAndBack();
    void theButtonSaysWhatItDoes();
    void boxesOfThePageAreDarkByNight();
    void thePopupIsDarkByNight();
    void whoeverListensIsCalledNowAndAtEachChange();
    void anUnknownPaletteChangesNothing();
    void theChoiceEndsWithThePage();
    void aMapWithoutStylesKeepsItsColours();
    void aPartThatIsSwitchedOffIsNotDrawn();

private:
    QString firstView() const override
    {
        return "map.setCenter(new google.maps.LatLng(46.50000, -1.00000));map.setZoom(6)";
    }

    void pressButton()
    {
        const QVariantList at = window
                                    ->run("var box = document.getElementById('palette-switch').getBoundingClientRect();"
                                          "[box.left + box.width / 2, box.top + box.height / 2]")
                                    .toList();
        window->mouse->click({at.value(0).toInt(), at.value(1).toInt()});
    }
    QColor styleOf(const QString& selector, const QString& property)
    {
        const QString text =
            window->run(QString("getComputedStyle(document.querySelector('%1')).%2").arg(selector, property))
                .toString();
        const QStringList parts = text.section('(', 1).section(')', 0, 0).split(',');
        return QColor(parts.value(0).toInt(), parts.value(1).toInt(), parts.value(2).toInt());
    }
};

void TestPagePalette::theDayComesFirst()
{
    QCOMPARE(window->run("page.palette.name").toString(), "day");
    QCOMPARE(window->colourAt(46.73, 1.27), dayLand);
    QCOMPARE(window->colourAt(45.53, -4.77), daySea);
}

void TestPagePalette::bothPalettesNameTheSameColours()
{
    const QString names = "Object.keys(page.palette).sort().join(' ')";
    const QString wrong = "Object.keys(page.palette).filter(name => name !== 'name'"
                          " && !/^(#[0-9a-f]{6}|rgba\\(\\d+, \\d+, \\d+, [\\d.]+\\))$/.test(page.palette[name]))";
    const QString day = window->run(names).toString();
    QCOMPARE(window->run(wrong).toStringList(), QStringList());
    window->run("page.setPalette('night')");
    QCOMPARE(window->run(names).toString(), day);
    QCOMPARE(window->run(wrong).toStringList(), QStringList());
    QVERIFY(day.count(' ') > 30);
}

void TestPagePalette::theButtonGoesToTheNightAndBack()
{
    pressButton();
    QCOMPARE(window->run("page.palette.name").toString(), "night");
    QCOMPARE(window->colourAt(46.73, 1.27), nightLand);
    QCOMPARE(window->colourAt(45.53, -4.77), nightSea);
    pressButton();
    QCOMPARE(window->run("page.palette.name").toString(), "day");
    QCOMPARE(window->colourAt(46.73, 1.27), dayLand);
    QCOMPARE(window->colourAt(45.53, -4.77), daySea);
    // The button's press is no press on the map.
    QCOMPARE(window->run("map.getZoom()").toInt(), 6);
    QVERIFY(program->calls("doCenter").size() <= 1);
}

void TestPagePalette::theButtonSaysWhatItDoes()
{
    const QString title = "document.getElementById('palette-switch').title";
    QCOMPARE(window->run(title).toString(), "Carte de nuit");
    pressButton();
    QCOMPARE(window->run(title).toString(), "Carte de jour");
    QVERIFY(window->load("gm_trajector_en.html"));
    QCOMPARE(window->run(title).toString(), "Night map");
    window->run("page.setPalette('night')");
    QCOMPARE(window->run(title).toString(), "Day map");
}

void TestPagePalette::boxesOfThePageAreDarkByNight()
{
    QVERIFY(!window->menuAt(46.73, 1.27).isEmpty());
    QVERIFY(styleOf("#menu", "backgroundColor").lightness() > 230);
    QVERIFY(styleOf("#menu", "color").lightness() < 60);
    window->run("page.setPalette('night')");
    QVERIFY(styleOf("#menu", "backgroundColor").lightness() < 60);
    QVERIFY(styleOf("#menu", "color").lightness() > 150);
    QVERIFY(styleOf(".chart-button", "backgroundColor").lightness() < 60);
}

void TestPagePalette::thePopupIsDarkByNight()
{
    window->run("addAPTMarker(new google.maps.LatLng(46.50000, 1.00000),\"LFXX\",1,"
                "\"<font color=blue><b>A</b><font color=black><br/>B\");pushAPT();page.setPalette('night')");
    window->settle();
    window->click(46.5, 1);
    QCOMPARE(window->popupText(), "A\nB");
    QVERIFY(styleOf(".leaflet-popup-content-wrapper", "backgroundColor").lightness() < 60);
    for (const char* text : {".popup-text", ".popup-text font", ".popup-text font font"})
        QVERIFY2(styleOf(text, "color").lightness() > 130, text);
}

void TestPagePalette::whoeverListensIsCalledNowAndAtEachChange()
{
    window->run("var heard = [];page.onPalette(palette => heard.push(palette.name));"
                "page.setPalette('night');page.setPalette('day')");
    QCOMPARE(window->run("heard").toStringList(), (QStringList{"day", "night", "day"}));
}

void TestPagePalette::anUnknownPaletteChangesNothing()
{
    window->run("page.setPalette('dusk');page.setPalette('toString');page.setPalette(undefined)");
    QCOMPARE(window->run("page.palette.name").toString(), "day");
    QCOMPARE(window->colourAt(46.73, 1.27), dayLand);
    QCOMPARE(window->page->messages, QStringList());
}

void TestPagePalette::theChoiceEndsWithThePage()
{
    window->run("page.setPalette('night')");
    QVERIFY(window->load());
    QCOMPARE(window->run("page.palette.name").toString(), "day");
}

void TestPagePalette::aMapWithoutStylesKeepsItsColours()
{
    window->run("page.setPalette('night');map.setOptions({styles: null})");
    QCOMPARE(window->colourAt(46.73, 1.27), dayLand);
    window->run("map.setOptions({zoom: 7})");
    QCOMPARE(window->run("map.getZoom()").toInt(), 7);
    QCOMPARE(window->colourAt(46.73, 1.27), dayLand);
}

void TestPagePalette::aPartThatIsSwitchedOffIsNotDrawn()
{
    window->run(
        "map.setOptions({styles: [{featureType: 'water', elementType: 'geometry', stylers: [{color: '#123456'}]},"
        "{featureType: 'landscape', stylers: [{visibility: 'off'}]}]})");
    QCOMPARE(window->colourAt(46.73, 1.27), QColor("#123456"));
}

QTEST_MAIN(TestPagePalette)
#include "tst_pagepalette.moc"
