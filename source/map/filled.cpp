#include "filled.h"

QString filled(const QString& pattern, std::initializer_list<QString> values)
{
    int length = pattern.size();
    for (const QString& value : values) {
        length += value.size();
    }
    QString text;
    text.reserve(length);
    const int count = static_cast<int>(values.size());
    const QChar* piece = pattern.cbegin();
    for (const QChar* c = piece; c + 1 < pattern.cend(); ++c) {
        const int number = c[1].unicode() - '0';
        if (*c != QLatin1Char('%') || number < 1 || number > count) {
            continue;
        }
        text.append(piece, static_cast<int>(c - piece));
        text += values.begin()[number - 1];
        piece = ++c + 1;
    }
    text.append(piece, static_cast<int>(pattern.cend() - piece));
    return text;
}
