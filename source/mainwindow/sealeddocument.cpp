#include "sealeddocument.h"

#include <QAbstractTextDocumentLayout>
#include <QUrl>

SealedDocument::SealedDocument(QObject* parent) : QTextDocument(parent)
{
    documentLayout()->registerHandler(QTextFormat::ImageObject, new NoPicture(this));
}

QVariant SealedDocument::loadResource(int type, const QUrl& name)
{
    Q_UNUSED(type)
    Q_UNUSED(name)
    return {};
}

QSizeF NoPicture::intrinsicSize(QTextDocument* document, int position, const QTextFormat& format)
{
    Q_UNUSED(document)
    Q_UNUSED(position)
    Q_UNUSED(format)
    return {0, 0};
}

void NoPicture::drawObject(QPainter* painter, const QRectF& rectangle, QTextDocument* document, int position,
                           const QTextFormat& format)
{
    Q_UNUSED(painter)
    Q_UNUSED(rectangle)
    Q_UNUSED(document)
    Q_UNUSED(position)
    Q_UNUSED(format)
}
