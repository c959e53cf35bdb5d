// The user's manuals against the program: its texts, its boxes, the pictures that the tour takes of it.
#include "manualpictures.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImageReader>
#include <QRegularExpression>
#include <QSet>
#include <QXmlStreamReader>
#include <QtTest>

class TestManual : public QObject
{
    Q_OBJECT

private slots:
    void bothHaveTheSameChapters();
    void bothShowTheSamePicturesInTheSamePlaces();
    void linksLeadToChapters_data();
    void linksLeadToChapters();
    void everyPictureTakenIsNamedAndThere_data();
    void everyPictureTakenIsNamedAndThere();
    void picturesAreSmall();
    void everyTextOfTheProgramIsThere_data();
    void everyTextOfTheProgramIsThere();
    void everyBoxIsInTheLastChapter_data();
    void everyBoxIsInTheLastChapter();
    void everyRowOfTheLastChapterTellsTheCause_data();
    void everyRowOfTheLastChapterTellsTheCause();
    void everyWordOfTheMapIsThere_data();
    void everyWordOfTheMapIsThere();
};

namespace {

const QString project = ZEPHAN_PROJECT;

const QStringList languages{"fr", "en"};

QString readText(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no %s", qPrintable(path));
    return QString::fromUtf8(file.readAll());
}

QString manualText(const QString& language)
{
    return readText(QString("%1/docs/manual.%2.md").arg(project, language));
}

QString pictureFolder(const QString& language)
{
    return QString("%1/docs/images/manual/%2").arg(project, language);
}

void addLanguages()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("French") << "fr";
    QTest::newRow("English") << "en";
}

/// All that a pattern's group captures, in its order.
QStringList captures(const QString& text, const char* pattern)
{
    QStringList all;
    auto match = QRegularExpression(pattern, QRegularExpression::MultilineOption).globalMatch(text);
    while (match.hasNext())
        all << match.next().captured(1);
    return all;
}

/// Headings as marks ("##"), and pictures as names, in the order of the manual.
QStringList skeleton(const QString& language)
{
    return captures(manualText(language), R"((?:^|\()(#+(?= )|images/manual/[a-z]+/[a-z-]+\.png))")
        .replaceInStrings(QRegularExpression("images/manual/[a-z]+/"), QString());
}

QStringList namedPictures(const QString& language)
{
    return captures(manualText(language), R"(!\[[^\]]+\]\(images/manual/(?:fr|en)/([^)]+)\.png\))");
}

/// As texts are compared: on one line, without the marks of bold, of links and of what Markdown would take for its own.
QString plain(QString text)
{
    text.remove("**").remove("\\").remove('`').replace(QChar(0xa0), ' ');
    return text.simplified();
}

/// The text of a box on one line, with anything in italics in the place of what is filled in.
QString patternText(const QString& text)
{
    QString pattern = QRegularExpression::escape(plain(text));
    return pattern.replace(QRegularExpression("\\\\%\\d"), "(?:\\*[^*|]+\\*|%\\d|\\d+)");
}

QRegularExpression patternOf(const QString& text)
{
    return QRegularExpression(patternText(text));
}

/// The text as a whole: "X has been deleted" is not told by "X has been deleted but the export failed". Ahead of it may
/// stand what another text goes on with, behind it a word in brackets.
QRegularExpression wholePatternOf(const QString& text)
{
    return QRegularExpression("^(?:.*\\* )?" + patternText(text) + "(?: \\([^)]*\\))?$");
}

QString lastChapter(const QString& language)
{
    const QString text = manualText(language);
    return text.mid(text.indexOf("\n## 10. "));
}

/// The rows of a chapter's tables as cells; a table's first one is its heading, its second one the line below that.
QVector<QStringList> rowsOf(const QString& chapter)
{
    QVector<QStringList> rows;
    for (const QString& row : captures(chapter, R"(^\|(.*)\|$)")) {
        QStringList cells;
        for (const QString& cell : row.split('|'))
            cells << cell.trimmed();
        rows << cells;
    }
    return rows;
}

/// What the last chapter tells of: the cells of its tables, and titles and buttons.
QStringList toldTexts(const QString& chapter)
{
    QStringList told;
    for (const QStringList& cells : rowsOf(chapter))
        for (const QString& cell : cells)
            told << plain(cell);
    for (const QString& bold : captures(chapter, R"(\*\*([^*]+)\*\*)"))
        told << plain(bold);
    return told;
}

bool isTold(const QStringList& told, const QString& text)
{
    return told.indexOf(wholePatternOf(text)) >= 0;
}

/// Texts of the manual that are not those of the catalogue, for either nobody sees them or they say nothing.
const QSet<QString> unseen{"toolBar", "about:blank", "POD", "Ouvrir un POD", "Fichier POD (*pod)", // never shown
                           "Lat.",    "Long.", // of columns that the plan has not got
                           "\u00b0"};

/// The texts of the program's C++ sources that stand in no box.
QSet<QString> outsideBoxes()
{
    QSet<QString> texts;
    for (const QString& line : readText(project + "/tests/tools/outside_boxes.txt").split('\n', Qt::SkipEmptyParts))
        if (!line.startsWith('#'))
            texts.insert(QString(line).replace("\\n", "\n"));
    return texts;
}

struct Message
{
    QString source;
    QString translation;
};

QVector<Message> catalogue()
{
    QVector<Message> messages;
    QXmlStreamReader reader(readText(project + "/resources/translations/zephantrajector_en.ts"));
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && reader.name() == "source")
            messages.append({reader.readElementText(), {}});
        else if (reader.isStartElement() && reader.name() == "translation")
            messages.last().translation = reader.readElementText();
    }
    return messages;
}

QString inLanguage(const Message& message, const QString& language)
{
    return language == "fr" ? message.source : message.translation;
}

/// A file filter shows its first entry; a list of them is written for the dialog.
QString firstOfFilter(const QString& text)
{
    return text.section(";;", 0, 0);
}

/// What stands in quotes in the C++ sources, as the compiler would join and read it.
QSet<QString> quotedInSources()
{
    QSet<QString> quoted;
    for (const char* folder : {"source", "ZephanCommon", "tools/launcher"}) {
        QDirIterator files(project + '/' + folder, {"*.cpp"}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString text = readText(files.next());
            for (QString piece : captures(text, R"(((?:"(?:[^"\\\n]|\\.)*"\s*)+))")) {
                piece.remove(QRegularExpression(R"re((?<!\\)"\s*"(?=.))re"));
                piece = piece.trimmed();
                piece = piece.mid(1, piece.size() - 2);
                quoted.insert(piece.replace("\\n", "\n").replace("\\\"", "\""));
            }
        }
    }
    return quoted;
}

} // namespace

void TestManual::bothHaveTheSameChapters()
{
    const QStringList french = skeleton("fr").filter(QRegularExpression("^#"));
    QVERIFY(french.count("##") == 10);
    QCOMPARE(skeleton("en").filter(QRegularExpression("^#")), french);
    for (const QString& language : languages)
        QCOMPARE(captures(manualText(language), R"(^## (\d+)\. )"),
                 QStringList({"1", "2", "3", "4", "5", "6", "7", "8", "9", "10"}));
}

void TestManual::bothShowTheSamePicturesInTheSamePlaces()
{
    QCOMPARE(skeleton("en"), skeleton("fr"));
    for (const QString& language : languages)
        for (const QString& folder : captures(manualText(language), R"(images/manual/([a-z]+)/)"))
            QCOMPARE(folder, language);
}

void TestManual::linksLeadToChapters_data()
{
    addLanguages();
}

void TestManual::linksLeadToChapters()
{
    QFETCH(QString, language);
    const QString text = manualText(language);
    QSet<QString> places;
    for (QString heading : captures(text, R"(^#+ (.+)$)")) {
        heading =
            heading.toLower().remove(QRegularExpression("[^\\w -]", QRegularExpression::UseUnicodePropertiesOption));
        places.insert(heading.replace(' ', '-'));
    }
    const QStringList links = captures(text, R"(\(#([^)]+)\))");
    QVERIFY(links.size() > 10);
    for (const QString& link : links)
        QVERIFY2(places.contains(link), qPrintable(link));
}

void TestManual::everyPictureTakenIsNamedAndThere_data()
{
    addLanguages();
}

void TestManual::everyPictureTakenIsNamedAndThere()
{
    QFETCH(QString, language);
    QStringList taken;
    for (const ManualPicture& picture : manualPictures())
        taken << QString(picture.name);
    taken.sort();
    QStringList named = namedPictures(language);
    named.sort();
    QCOMPARE(named, taken);
    const QDir folder(pictureFolder(language));
    for (const QString& name : named)
        QVERIFY2(!QImageReader(folder.filePath(name + ".png")).read().isNull(), qPrintable(name));
    QCOMPARE(folder.entryList(QDir::Files).size(), taken.size());
}

void TestManual::picturesAreSmall()
{
    qint64 bytes = 0;
    for (const QString& language : languages)
        for (const QFileInfo& file : QDir(pictureFolder(language)).entryInfoList(QDir::Files))
            bytes += file.size();
    QVERIFY2(bytes < 3000000, qPrintable(QString::number(bytes)));
}

void TestManual::everyTextOfTheProgramIsThere_data()
{
    addLanguages();
}

void TestManual::everyTextOfTheProgramIsThere()
{
    QFETCH(QString, language);
    const QString text = plain(manualText(language));
    QStringList missing;
    for (const Message& message : catalogue()) {
        const QString wanted = firstOfFilter(inLanguage(message, language));
        if (!unseen.contains(message.source) && !message.source.startsWith("Centre: ") &&
            !patternOf(wanted).match(text).hasMatch())
            missing << wanted;
    }
    QVERIFY2(missing.isEmpty(), qPrintable(missing.join(" | ")));
}

void TestManual::everyBoxIsInTheLastChapter_data()
{
    addLanguages();
}

void TestManual::everyBoxIsInTheLastChapter()
{
    QFETCH(QString, language);
    const QString last = lastChapter(language);
    const QStringList told = toldTexts(last);
    const QSet<QString> quoted = quotedInSources();
    const QSet<QString> outside = outsideBoxes();
    QStringList missing;
    int boxes = 0;
    for (const Message& message : catalogue()) {
        const bool inBox = quoted.contains(message.source) && !outside.contains(message.source.trimmed());
        if (!inBox || unseen.contains(message.source))
            continue;
        ++boxes;
        if (!isTold(told, inLanguage(message, language)))
            missing << inLanguage(message, language);
    }
    QVERIFY2(missing.isEmpty(), qPrintable(missing.join(" | ")));
    // No text may leave the boxes unnoticed.
    QVERIFY2(boxes > 100, qPrintable(QString::number(boxes)));
    // It is not translated.
    QVERIFY(patternOf("One of the query failed to execute.Error detail: %1 %2").match(plain(last)).hasMatch());
}

void TestManual::everyRowOfTheLastChapterTellsTheCause_data()
{
    addLanguages();
}

void TestManual::everyRowOfTheLastChapterTellsTheCause()
{
    QFETCH(QString, language);
    const QVector<QStringList> rows = rowsOf(lastChapter(language));
    const QString cause("Cause");
    int causeColumn = -1;
    int columns = 0;
    int told = 0;
    for (const QStringList& cells : rows) {
        if (cells.contains(cause)) {
            causeColumn = cells.indexOf(cause);
            columns = cells.size();
            continue;
        }
        QCOMPARE(cells.size(), columns);
        QVERIFY2(!cells.at(causeColumn).isEmpty(), qPrintable(cells.join(" | ")));
        ++told;
    }
    QVERIFY2(told > 100, qPrintable(QString::number(told)));
}

void TestManual::everyWordOfTheMapIsThere_data()
{
    addLanguages();
}

void TestManual::everyWordOfTheMapIsThere()
{
    QFETCH(QString, language);
    const QString text = plain(manualText(language));
    const QString page = readText(QString("%1/maps/gm_trajector_%2.html").arg(project, language));
    // The kinds of objects, what a box adds to a list, and how a measure goes on, are read on the spot.
    const QStringList words = captures(page, R"(^ +(?!kind|moreHere|measureHint)\w+: '((?:[^'\\]|\\.)*)',$)");
    QVERIFY(words.size() > 30);
    for (const QString& word : words)
        QVERIFY2(patternOf(word).match(text).hasMatch(), qPrintable(word));
}

QTEST_GUILESS_MAIN(TestManual)
#include "tst_manual.moc"
