// The English catalogue, as the program finds it beside itself.
#include <QCoreApplication>
#include <QDir>
#include <QRegularExpression>
#include <QTranslator>
#include <QXmlStreamReader>
#include <QtTest>

class TestCatalogue : public QObject
{
    Q_OBJECT

private slots:
    void itIsFoundInTheCurrentDirectory();
    void translates_data();
    void translates();
    void everyTextIsTranslated();
    void placesForValuesAreKept();
};

namespace {

struct Message
{
    QString source;
    QString translation;
    bool unfinished;
};

QVector<Message> messages()
{
    QFile file(ZEPHAN_CATALOGUE);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no catalogue");
    QVector<Message> list;
    QXmlStreamReader reader(&file);
    QString source;
    while (!reader.atEnd()) {
        reader.readNext();
        if (!reader.isStartElement())
            continue;
        if (reader.name() == "source")
            source = reader.readElementText();
        else if (reader.name() == "translation") {
            const bool unfinished = reader.attributes().hasAttribute("type");
            list << Message{source, reader.readElementText(), unfinished};
        }
    }
    return list;
}

/// What a text leaves to be filled in, sorted.
QStringList places(const QString& text)
{
    QStringList found;
    QRegularExpressionMatchIterator match = QRegularExpression("%\\d+|\\*\\.?[a-z]+|\n").globalMatch(text);
    while (match.hasNext())
        found << match.next().captured();
    found.sort();
    return found;
}

} // namespace

void TestCatalogue::itIsFoundInTheCurrentDirectory()
{
    QVERIFY(QDir::setCurrent(QCoreApplication::applicationDirPath()));
    QTranslator translator;
    QVERIFY(translator.load("zephantrajector_en"));
    QVERIFY(!translator.isEmpty());
}

void TestCatalogue::translates_data()
{
    QTest::addColumn<QByteArray>("context");
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QString>("english");
    QTest::newRow("menu") << QByteArray("MainWindow") << QByteArray("Plan de vol") << "Flight plan";
    QTest::newRow("button") << QByteArray("MainWindow") << QByteArray("Départ") << "Start";
    QTest::newRow("column") << QByteArray("MainWindow") << QByteArray("OACI") << "ICAO";
    QTest::newRow("tool tip with a slip")
        << QByteArray("MainWindow") << QByteArray("Zone de contôle") << "Control zones";
    QTest::newRow("folder dialog") << QByteArray("MainWindow") << QByteArray("Sélectionner le répertoire de travail")
                                   << "Select the work folder";
    QTest::newRow("version box") << QByteArray("SqlMgr") << QByteArray("Erreur de version de base de données")
                                 << "Database version error";
}

void TestCatalogue::translates()
{
    QFETCH(QByteArray, context);
    QFETCH(QByteArray, source);
    QTranslator translator;
    QVERIFY(translator.load("zephantrajector_en", QCoreApplication::applicationDirPath()));
    QTEST(translator.translate(context.constData(), source.constData()), "english");
}

void TestCatalogue::everyTextIsTranslated()
{
    QVERIFY(messages().size() > 100);
    for (const Message& message : messages())
        QVERIFY2(!message.unfinished && !message.translation.isEmpty(), qPrintable(message.source));
}

void TestCatalogue::placesForValuesAreKept()
{
    for (const Message& message : messages())
        QVERIFY2(places(message.source) == places(message.translation), qPrintable(message.source));
}

QTEST_GUILESS_MAIN(TestCatalogue)
#include "tst_catalogue.moc"
