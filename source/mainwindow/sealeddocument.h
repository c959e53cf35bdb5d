#pragma once

#include <QTextDocument>
#include <QTextObjectInterface>

/// A rich text that loads nothing: whatever its markup names, pictures, backgrounds and style sheets of the disk or of
/// a share are not asked for. A picture takes no room. For a text field that a script of the map page can write to.
class SealedDocument : public QTextDocument
{
    Q_OBJECT

public:
    explicit SealedDocument(QObject* parent);

protected:
    QVariant loadResource(int type, const QUrl& name) override;
};

/// Stands in for Qt's own pictures in a text, which try the file themselves when the document gives them none.
class NoPicture : public QObject, public QTextObjectInterface
{
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    using QObject::QObject;
    QSizeF intrinsicSize(QTextDocument* document, int position, const QTextFormat& format) override;
    void drawObject(QPainter* painter, const QRectF& rectangle, QTextDocument* document, int position,
                    const QTextFormat& format) override;
};
