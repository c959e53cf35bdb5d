#include "shorttexts.h"

#include <QAbstractItemView>
#include <QStyledItemDelegate>

namespace {

class ShortTexts : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant& value, const QLocale& locale) const override
    {
        constexpr int longest = 1000;
        const QString text = QStyledItemDelegate::displayText(value, locale);
        return text.size() <= longest ? text : text.left(longest) + QLatin1String("...");
    }
};

} // namespace

void shortenTexts(std::initializer_list<QAbstractItemView*> views)
{
    for (QAbstractItemView* view : views) {
        view->setItemDelegate(new ShortTexts(view));
    }
}
