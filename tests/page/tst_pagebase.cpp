// The pages as they are shipped: both load in silence, ask for nothing outside their folder, speak one language, and
// show the world.
#include "pagewindow.h"

#include <QDirIterator>
#include <QSignalSpy>
#include <QtTest>

class TestPageBase : public QObject
{
    Q_OBJECT

private slots:
    void thePageLoadsInSilence_data();
    void thePageLoadsInSilence();
    void everyScriptIsLoaded_data();
    void everyScriptIsLoaded();
    void nothingIsAskedOfTheNetwork_data();
    void nothingIsAskedOfTheNetwork();
    void bothPagesHaveTheSameWords();
    void everyWordIsTranslated();
    void everyWordOfTheScriptsIsThere();
    void noPageShowsTheOthersWords_data();
    void noPageShowsTheOthersWords();
    void anAlertGoesToTheLog();
    void theEnginesOwnMenuStaysAway();
    void aReloadStartsWithEmptyLists();
    void landAndSeaAreWhereTheyAre_data();
    void landAndSeaAreWhereTheyAre();
    void noFalseLineRunsAroundTheWorld();
    void theDateLineIsNoCoast();
    void theScaleTellsMilesAndKilometres();
    void theZoomButtonsHaveNames_data();
    void theZoomButtonsHaveNames();
    void thePageWorksInAViewWithoutSize();

private:
    QScopedPointer<ProgramSide> program;
    QScopedPointer<PageWindow> window;

    void open(const QString& page = "gm_trajector_fr.html")
    {
        window.reset();
        program.reset(new FullProgramSide);
        window.reset(new PageWindow(program.data()));
        QVERIFY(window->load(page));
    }
    void showRestedPointer();
    void showSeveralObjects();
    void showMeasureAndPopup();
    QStringList shownLines();
};

namespace {

const QColor land("#f6f3ea");
const QColor sea("#d3e4ee");
const QColor coast("#7f9cab");

/// Whether a line begins with a text of the page, any number in its place for one.
bool isSaid(const QStringList& lines, const QVariant& word)
{
    QStringList parts = word.toString().split("%1");
    for (QString& part : parts)
        part = QRegularExpression::escape(part);
    const QRegularExpression start('^' + parts.join("\\d+") + "(?!\\p{L})");
    return !lines.filter(start).isEmpty();
}

void bothPages()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("language");
    QTest::newRow("French") << "gm_trajector_fr.html"
                            << "fr";
    QTest::newRow("English") << "gm_trajector_en.html"
                             << "en";
}

} // namespace

void TestPageBase::thePageLoadsInSilence_data()
{
    bothPages();
}

void TestPageBase::thePageLoadsInSilence()
{
    QFETCH(QString, page);
    QFETCH(QString, language);
    open(page);
    window->settle();
    QCOMPARE(window->page->messages, QStringList());
    QCOMPARE(window->run("document.documentElement.lang").toString(), language);
}

void TestPageBase::everyScriptIsLoaded_data()
{
    bothPages();
}

/// A new script that no page lists is noticed here, and one that is listed and not shipped.
void TestPageBase::everyScriptIsLoaded()
{
    QFETCH(QString, page);
    open(page);
    const QDir sources(ZEPHAN_MAPS);
    QStringList written;
    for (const QString& room : sources.entryList({"page", "engine"}, QDir::Dirs))
        for (const QString& name : QDir(sources.filePath(room)).entryList({"*.js", "*.css"}, QDir::Files))
            written << "maps/" + room + '/' + name;
    QVERIFY(written.size() > 30);
    // What the build makes or brings along.
    const QDir folder(QCoreApplication::applicationDirPath());
    for (const char* made : {"maps/leaflet", "maps/world"})
        for (const QString& name : QDir(folder.filePath(made)).entryList({"*.js", "*.css"}, QDir::Files))
            written << QString(made) + '/' + name;
    QVERIFY(written.contains("maps/leaflet/leaflet.js") && written.contains("maps/world/names.js"));
    const QStringList loaded = window
                                   ->run("Array.from(document.querySelectorAll('script[src], link')).map(e => "
                                         "e.getAttribute('src') || e.getAttribute('href'))")
                                   .toStringList();
    for (const QString& file : qAsConst(written))
        QVERIFY2(loaded.contains(file), qPrintable(file + " stands in no page"));
    for (const QString& file : loaded) {
        QVERIFY2(folder.exists(file), qPrintable(file + " is not shipped"));
        QVERIFY2(window->requests.contains(QUrl::fromLocalFile(folder.filePath(file))), qPrintable(file));
    }
    QCOMPARE(window->page->messages, QStringList());
}

void TestPageBase::nothingIsAskedOfTheNetwork_data()
{
    bothPages();
}

void TestPageBase::nothingIsAskedOfTheNetwork()
{
    QFETCH(QString, page);
    open(page);
    window->run("addAPTMarker(new google.maps.LatLng(46.50000, 2.50000),\"LFXX\",1,\"<b>X</b>\");pushAPT();"
                "map.setCenter(new google.maps.LatLng(46.50000, 2.50000));");
    for (double zoom : {2, 5, 8, 14}) {
        window->run(QString("map.setZoom(%1)").arg(zoom));
        window->settle();
    }
    window->click(46.5, 2.5);
    QCOMPARE(window->popupText(), "X");
    window->menuAt(46.5, 2.5);
    QTest::qWait(50);
    QVERIFY(window->requests.size() > 30);
    const QString folder = QUrl::fromLocalFile(QCoreApplication::applicationDirPath()).toString() + '/';
    for (const QUrl& url : qAsConst(window->requests))
        QVERIFY2(url.scheme() == "data" || url.scheme() == "about" || url.toString().startsWith(folder),
                 qPrintable(url.toString()));
}

void TestPageBase::bothPagesHaveTheSameWords()
{
    const QString keys = "Object.keys(pageWords).filter(key => pageWords[key].trim())";
    open("gm_trajector_fr.html");
    const QStringList french = window->run(keys).toStringList();
    open("gm_trajector_en.html");
    QCOMPARE(window->run(keys).toStringList(), french);
    QVERIFY(french.size() > 10);
}

void TestPageBase::everyWordIsTranslated()
{
    // What pilots of both languages say.
    const QStringList shared{"VOR", "VOR-DME", "VORTAC", "TACAN",    "NDB-DME",
                             "DME", "NDB",     "Navaid", "Waypoint", "Total"};
    open("gm_trajector_fr.html");
    const QVariantMap french = window->run("pageWords").toMap();
    open("gm_trajector_en.html");
    const QVariantMap english = window->run("pageWords").toMap();
    for (auto word = french.cbegin(); word != french.cend(); ++word) {
        const QString text = word.value().toString();
        QVERIFY2(text != english.value(word.key()).toString() || shared.contains(text), qPrintable(word.key()));
        // Places for numbers are the same.
        QCOMPARE(text.count("%1"), english.value(word.key()).toString().count("%1"));
    }
}

/// A word that no page has would be shown as "undefined".
void TestPageBase::everyWordOfTheScriptsIsThere()
{
    open();
    const QVariantMap words = window->run("pageWords").toMap();
    const QRegularExpression asked(R"((?:\bpageWords\.|\bword: '|\b(?:plain|byKey|edit|here)\(')(\w+))");
    int count = 0;
    QDirIterator scripts(QString(ZEPHAN_MAPS) + "/page", {"*.js"});
    while (scripts.hasNext()) {
        QFile script(scripts.next());
        QVERIFY(script.open(QIODevice::ReadOnly));
        for (auto found = asked.globalMatch(QString::fromUtf8(script.readAll())); found.hasNext(); ++count) {
            const QString key = found.next().captured(1);
            QVERIFY2(words.contains(key), qPrintable(script.fileName() + ": " + key));
        }
    }
    QVERIFY(count > 30);
}

/// Ten VOR on one place, the first one without a key; the pointer rests on them.
void TestPageBase::showRestedPointer()
{
    window->run("map.setCenter(new google.maps.LatLng(46.50000, 2.50000));map.setZoom(8);"
                "addAPTMarker(new google.maps.LatLng(46.20000, 2.20000),\"LFXX\",1,\"<b>X</b>\");pushAPT();"
                "for (let i = 0; i < 10; ++i)"
                "  addVORMarker(map.getCenter(), i ? `V${i}-V${i}FR` : 'V0', 0, 'x');"
                "addNavMgr();VORMgr.addMarkers(listVOR);");
    window->settle();
    window->mouse->moveTo(window->mouse->pointOf(46.5, 2.5));
    QTRY_VERIFY_WITH_TIMEOUT(window->run("!document.getElementById('tooltip').hidden").toBool(), 20000);
}

/// By night, the menu of several objects and the submenu of the one without a key.
void TestPageBase::showSeveralObjects()
{
    window->run("document.getElementById('palette-switch').click();"
                "page.openMenuOf(map.getCenter(), listVOR[0], { x: 5, y: 5 })");
    window->pressKey(Qt::Key_Right);
}

void TestPageBase::showMeasureAndPopup()
{
    window->run("page.startMeasure(map.getCenter(), '');page.measureTo(new google.maps.LatLng(46, 2), '');"
                "page.measureTo(new google.maps.LatLng(45, 2), '');page.openPopup(listApt[0]);"
                "page.openMenuOf(listApt[0].position, listApt[0], { x: 5, y: 5 })");
}

/// The text on the page, with the names that a button tells when asked, and those that only a reader of the screen is
/// told.
QStringList TestPageBase::shownLines()
{
    const QString shown =
        window
            ->run("document.body.innerText + Array.from(document.querySelectorAll('[aria-label], [title]')).map(e => "
                  "'\\n' + e.getAttribute('aria-label') + '\\n' + e.title).join('')")
            .toString();
    return shown.split(QRegularExpression("[\\n,]\\s*"));
}

void TestPageBase::noPageShowsTheOthersWords_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("other");
    QTest::newRow("French") << "gm_trajector_fr.html"
                            << "gm_trajector_en.html";
    QTest::newRow("English") << "gm_trajector_en.html"
                             << "gm_trajector_fr.html";
}

void TestPageBase::noPageShowsTheOthersWords()
{
    QFETCH(QString, page);
    QFETCH(QString, other);
    open(other);
    const QVariantMap foreign = window->run("pageWords").toMap();
    open(page);
    const QVariantMap own = window->run("pageWords").toMap();
    QStringList lines;
    showRestedPointer();
    lines << shownLines();
    showSeveralObjects();
    lines << shownLines();
    showMeasureAndPopup();
    lines << shownLines();
    // Of everything that is to be seen there is something.
    for (const char* word : {"moreHere", "nightPalette", "dayPalette", "severalHere", "menu", "noKey", "noRunways",
                             "mapMenu", "addToPlan", "measure", "kindAirport"})
        QVERIFY2(isSaid(lines, own.value(word)), word);
    for (auto word = foreign.cbegin(); word != foreign.cend(); ++word)
        if (!own.values().contains(word.value()))
            QVERIFY2(!isSaid(lines, word.value()), qPrintable(word.value().toString()));
    // The cross of a pop-up is the engine's own, which has its word in both languages.
    QVERIFY(lines.contains(page.contains("_fr") ? "Fermer" : "Close"));
    QVERIFY(lines.filter(QRegularExpression(page.contains("_fr") ? "^Close" : "^Fermer")).isEmpty());
}

void TestPageBase::anAlertGoesToTheLog()
{
    open();
    QSignalSpy sent(window->page, &myWebPage::sendData);
    window->run("alert('au log')");
    QCOMPARE(sent.size(), 1);
    QCOMPARE(sent.first().first().toString(), "au log");
}

void TestPageBase::theEnginesOwnMenuStaysAway()
{
    open();
    const QPoint place(100, 500);
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, window->view->mapToGlobal(place));
    QVERIFY(window->page->swallowContextMenuEvent(&event));
    // Nor does it come on a pop-up, which keeps its mouse events from the map.
    window->run("addAPTMarker(new google.maps.LatLng(46.50000, 2.50000),\"LFXX\",1,\"<b>X</b>\");pushAPT();");
    window->settle();
    window->click(46.5, 2.5);
    QCOMPARE(window->popupText(), "X");
    const QVariantList text = window
                                  ->run("var box = document.querySelector('.popup-text').getBoundingClientRect();"
                                        "[box.left + 3, box.top + 3]")
                                  .toList();
    const QPoint inside(text.value(0).toInt(), text.value(1).toInt());
    QContextMenuEvent onPopup(QContextMenuEvent::Mouse, inside, window->view->mapToGlobal(inside));
    QVERIFY(window->page->swallowContextMenuEvent(&onPopup));
}

void TestPageBase::aReloadStartsWithEmptyLists()
{
    open();
    window->run("addVORMarker2(new google.maps.LatLng(46.70000, 2.30000),\"A-A\",1,\"x\")");
    QCOMPARE(window->run("listVOR.length").toInt(), 1);
    QVERIFY(window->load());
    QCOMPARE(window->run("listVOR.length").toInt(), 0);
    program->clear();
    window->run("map.setZoom(9)");
    QCOMPARE(program->calls(), QStringList{"doZoom 9"});
}

void TestPageBase::landAndSeaAreWhereTheyAre_data()
{
    QTest::addColumn<double>("zoom");
    for (double zoom : {2.0, 3.0, 4.0, 5.5, 6.5, 8.0, 11.0})
        QTest::addRow("zoom %g", zoom) << zoom;
}

void TestPageBase::landAndSeaAreWhereTheyAre()
{
    QFETCH(double, zoom);
    open();
    struct Place
    {
        double latitude, longitude;
        QColor colour;
    };
    // Away from meridians, parallels and names at all these zooms.
    const Place places[] = {{46.73, 2.27, land},    {45.53, -4.77, sea},    {24.37, 1.27, land},
                            {-26.43, 126.87, land}, {40.13, 51.23, sea},    {-76.77, 22.87, land},
                            {66.13, 101.77, land},  {-40.33, -131.23, sea}, {67.13, -178.23, land},
                            {65.87, 177.77, land},  {-51.63, 33.37, sea},   {72.83, -38.77, land}};
    window->run(QString("map.setZoom(%1)").arg(zoom));
    for (const Place& place : places) {
        window->run(QString("map.setCenter(new google.maps.LatLng(%1,%2));")
                        .arg(place.latitude, 3, 'f', 5)
                        .arg(place.longitude, 3, 'f', 5));
        QVERIFY2(window->colourAt(place.latitude, place.longitude) == place.colour,
                 qPrintable(QString("%1 %2").arg(place.latitude).arg(place.longitude)));
    }
}

void TestPageBase::noFalseLineRunsAroundTheWorld()
{
    // Where rings over 180 degrees, drawn uncut, would run across the open sea.
    const QPair<double, double> places[] = {{67, 0}, {68, -20}, {66.5, 5}, {71, 10}, {-16.5, -20}, {-17, 70}, {71, -2}};
    open();
    for (double zoom : {3.0, 5.0, 7.0}) {
        window->run(QString("map.setZoom(%1)").arg(zoom));
        for (const auto& place : places) {
            window->run(QString("map.setCenter(new google.maps.LatLng(%1,%2));").arg(place.first).arg(place.second));
            QCOMPARE(window->pixelsAround(place.first, place.second, 12, coast), 0);
        }
    }
}

void TestPageBase::theDateLineIsNoCoast()
{
    open();
    for (double zoom : {3.0, 5.0, 8.0}) {
        // Inside the land of the far east of Russia, and of Antarctica.
        for (double latitude : {67.3, -84.8}) {
            window->run(
                QString("map.setZoom(%1);map.setCenter(new google.maps.LatLng(%2,180))").arg(zoom).arg(latitude));
            QCOMPARE(window->pixelsAround(latitude, 180, 4, coast), 0);
            // All but the meridian itself.
            QCOMPARE(window->pixelsAround(latitude, 180, 4, land), 72);
        }
    }
}

void TestPageBase::theScaleTellsMilesAndKilometres()
{
    open();
    window->run("map.setCenter(new google.maps.LatLng(60.00000, 2.00000));map.setZoom(8)");
    const QStringList lines = window
                                  ->run("Array.from(document.querySelectorAll('.scale-bar-line')).map(e => "
                                        "e.textContent + ' ' + e.style.width)")
                                  .toStringList();
    // At 60 degrees a pixel is 156543 m / 256 / 2.
    QCOMPARE(lines, (QStringList{"10 NM 61px", "20 km 65px"}));
}

void TestPageBase::theZoomButtonsHaveNames_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QStringList>("names");

    QTest::newRow("French") << "gm_trajector_fr.html" << QStringList{"Zoom avant", "Zoom arrière"};
    QTest::newRow("English") << "gm_trajector_en.html" << QStringList{"Zoom in", "Zoom out"};
}

void TestPageBase::theZoomButtonsHaveNames()
{
    QFETCH(QString, page);
    QFETCH(QStringList, names);
    open(page);
    const QString told = "Array.from(document.querySelectorAll('.leaflet-control-zoom a'))";
    QCOMPARE(window->run(told + ".map(e => e.getAttribute('aria-label'))").toStringList(), names);
    QCOMPARE(window->run(told + ".map(e => e.title)").toStringList(), names);
}

void TestPageBase::thePageWorksInAViewWithoutSize()
{
    program.reset(new FullProgramSide);
    window.reset(new PageWindow(program.data()));
    window->view->resize(0, 0);
    QVERIFY(window->load());
    window->run("map.setCenter(new google.maps.LatLng(46.70000, 2.30000));map.setZoom(8)");
    window->run("addAPTMarker(new google.maps.LatLng(46.70000, 2.30000),\"LFXX\",1,\"x\");pushAPT();");
    window->view->resize(800, 600);
    QTRY_COMPARE_WITH_TIMEOUT(window->run("innerWidth").toInt(), 800, 20000);
    window->settle();
    QCOMPARE(window->run("map.getCenter().lat()").toDouble(), 46.7);
    QVERIFY(window->pixelsAround(46.7, 2.3, 8, land) < 17 * 17);
    QVERIFY(window->pixelsAround(46.4, 2.3, 8, land) == 17 * 17);
    QCOMPARE(window->page->messages, QStringList());
}

QTEST_MAIN(TestPageBase)
#include "tst_pagebase.moc"
