// Lines that are longer than any of an update file: a picture, an archive or a database picked by mistake.
#include "updateline.h"

#include "updateworld.h"

#include <QBuffer>
#include <QtTest>

namespace {

constexpr int megabyte = 1024 * 1024;

/// A file that gives the same character for ever, as a device may.
class EndlessDevice : public QIODevice
{
public:
    EndlessDevice()
    {
        open(QIODevice::ReadOnly);
    }
    bool isSequential() const override
    {
        return true;
    }

protected:
    qint64 readData(char* data, qint64 maxSize) override
    {
        memset(data, 'x', static_cast<size_t>(maxSize));
        return maxSize;
    }
    qint64 writeData(const char*, qint64) override
    {
        return -1;
    }
};

} // namespace

class TestImportLongLines : public QObject
{
    Q_OBJECT

private slots:
    void linesAreReadWithTheirEnds()
    {
        QByteArray bytes = "a;b\r\n\n" + QByteArray(10000, 'x') + "\n" + QByteArray("n\0l\n", 4) + "last";
        QBuffer device(&bytes);
        QVERIFY(device.open(QIODevice::ReadOnly));
        for (const QByteArray& line : {QByteArray("a;b\r\n"), QByteArray("\n"), QByteArray(10000, 'x') + "\n",
                                       QByteArray("n\0l\n", 4), QByteArray("last"), QByteArray()}) {
            const QByteArray read = readUpdateLine(device);
            QCOMPARE(read, line);
            QVERIFY(isWholeLine(read));
        }
    }

    void aLineWithoutAnEndIsGivenUp()
    {
        EndlessDevice device;
        const QByteArray line = readUpdateLine(device);
        QVERIFY(!isWholeLine(line));
        QVERIFY2(line.size() < 65 * megabyte, qPrintable(QString::number(line.size())));
    }

    void aLineOf64MiBIsTooLongByOneByte()
    {
        QVERIFY(isWholeLine(QByteArray(67108863, 'x')));
        QVERIFY(!isWholeLine(QByteArray(67108864, 'x')));
    }

    void aFileOfOneHugeLineIsRefusedWithWhatStandsBeforeItWritten()
    {
        UpdateWorld world;
        const QString path = world.write(navaidLine("A1") + '\n' + QByteArray(70 * megabyte, 'x'));
        world.boxes.expectMessage(
            "Erreur SQL",
            QString("Le fichier %1 n'est pas un fichier d'import : une de ses lignes est trop longue.").arg(path));
        QVERIFY(!world.import(path));
        QCOMPARE(world.column(dbfile::gen, "SELECT ukey FROM NAV"), QString("A1"));
    }

    void theBoxOfALongLineShowsItsHead_data()
    {
        QTest::addColumn<QByteArray>("start");
        QTest::addColumn<QString>("text");
        const QString xs(QString(2000, 'x'));
        QTest::newRow("unknown database")
            << QByteArray("NIX;") << "La base de données NIX est inconnue.\nNIX;" + xs.mid(4) + "...";
        QTest::newRow("one field") << QByteArray() << "La base de données " + xs + "... est inconnue.\n" + xs + "...";
        QTest::newRow("unknown table") << QByteArray("GEN;NIX;")
                                       << "La table GEN est inconnue dans la base de données GEN;NIX;" + xs.mid(8) +
                                              "....\n%3";
    }
    void theBoxOfALongLineShowsItsHead()
    {
        QFETCH(QByteArray, start);
        QFETCH(QString, text);
        UpdateWorld world;
        world.boxes.expectMessage("Erreur SQL", text);
        QVERIFY(!world.import(world.write(start + QByteArray(20 * megabyte, 'x'))));
    }

    void aLongKeyThatFailsShowsItsHead()
    {
        UpdateWorld world;
        world.sandbox.addNavaid();
        const QByteArray key = QByteArray(3 * megabyte, 'x') + '"';
        world.boxes.expectAnyMessage();
        world.boxes.expectAnyMessage();
        QVERIFY(world.import(world.write("GEN;NAV;-;ukey;" + key)));
        QCOMPARE(world.titles(), (QStringList{"SQL Error", "Importation"}));
        QVERIFY(world.boxes.seen().value(0).text.startsWith(
            "One of the query failed to execute.Error detail: DELETE FROM NAV WHERE ukey=\"xxx"));
        QVERIFY(world.boxes.seen().value(0).text.size() < 5000);
        QCOMPARE(world.column(dbfile::gen, "SELECT ukey FROM NAV"), QString("RBT"));
    }

    void aLongLineOfAnotherKindOfFileIsNoName()
    {
        // "OSM" makes the next line a file's name.
        UpdateWorld world;
        world.boxes.expectAnyMessage();
        world.boxes.expectAnyMessage();
        QVERIFY(world.import(world.write("OSM\n" + QByteArray(3 * megabyte, 'x') + "\nid\n")));
        QCOMPARE(world.titles(), (QStringList{"Ouverture de la base de données impossible.", "Importation"}));
        QVERIFY(world.boxes.seen().value(0).text.size() < 5000);
    }

    void aRowWithALargeTextureGoesIn()
    {
        UpdateWorld world;
        QVERIFY(world.importToTheEnd("M3D;TEXTURE;+;T;1024;1024;" + QByteArray(8 * megabyte, 'a') + '\n'));
        QVERIFY(world.column(dbfile::m3d, "SELECT length(tex) FROM TEXTURE").toInt() >= 4 * megabyte);
    }
};

QTEST_MAIN(TestImportLongLines)
#include "tst_importlonglines.moc"
