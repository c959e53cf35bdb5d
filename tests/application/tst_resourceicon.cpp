// The icons of rows, selected and not.
#include "resourceicon.h"

#include <QImage>
#include <QtTest>

class TestResourceIcon : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void theIconIsTheResource();
    void inASelectedRowItStandsOnAWhiteRim_data();
    void inASelectedRowItStandsOnAWhiteRim();
    void ofNoResourceItIsEmpty();
};

namespace {

QImage picture(const QString& path, QIcon::Mode mode)
{
    return resourceIcon(path).pixmap(16, mode).toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

bool isSolid(const QColor& colour)
{
    return colour.alpha() == 255;
}

bool isWhite(const QColor& colour)
{
    return colour.alpha() > 200 && colour.lightness() > 225;
}

/// Whether all beside a place is solid: of the picture, or of the rim.
bool isRimmed(const QImage& image, int x, int y)
{
    const QRect whole = image.rect();
    for (const QPoint& step : {QPoint(-1, 0), QPoint(1, 0), QPoint(0, -1), QPoint(0, 1)}) {
        const QPoint place = QPoint(x, y) + step;
        if (whole.contains(place) && !isSolid(image.pixelColor(place)))
            return false;
    }
    return true;
}

} // namespace

void TestResourceIcon::initTestCase()
{
    Q_INIT_RESOURCE(trajector);
}

void TestResourceIcon::theIconIsTheResource()
{
    const QString path = ":/icon/images/Img08.bmp";
    QCOMPARE(picture(path, QIcon::Normal), QImage(path).convertToFormat(QImage::Format_ARGB32_Premultiplied));
}

void TestResourceIcon::inASelectedRowItStandsOnAWhiteRim_data()
{
    QTest::addColumn<QString>("path");
    // Those of the search, the plan and the procedures.
    for (const char* name : {"Img03", "Img05", "Img08", "Img10", "Img12", "Img35"})
        QTest::newRow(name) << QString(":/icon/images/%1.bmp").arg(name);
}

void TestResourceIcon::inASelectedRowItStandsOnAWhiteRim()
{
    QFETCH(QString, path);
    const QImage normal = picture(path, QIcon::Normal);
    const QImage selected = picture(path, QIcon::Selected);
    QCOMPARE(selected.size(), normal.size());
    int white = 0;
    for (int y = 0; y < normal.height(); ++y)
        for (int x = 0; x < normal.width(); ++x) {
            white += isWhite(selected.pixelColor(x, y)) ? 1 : 0;
            if (!isSolid(normal.pixelColor(x, y)))
                continue;
            QCOMPARE(selected.pixelColor(x, y), normal.pixelColor(x, y));
            QVERIFY2(isRimmed(selected, x, y), qPrintable(QString("%1, %2").arg(x).arg(y)));
        }
    QVERIFY2(white > 10, qPrintable(QString::number(white)));
}

void TestResourceIcon::ofNoResourceItIsEmpty()
{
    QVERIFY(resourceIcon(":/icon/images/Img99.bmp").pixmap(16).isNull());
    QVERIFY(resourceIcon(":/icon/images/Img99.bmp").pixmap(16, QIcon::Selected).isNull());
}

QTEST_MAIN(TestResourceIcon)
#include "tst_resourceicon.moc"
