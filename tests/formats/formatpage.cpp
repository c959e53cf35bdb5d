// The examples and tables of the pages that tell the formats.
#include "formatpage.h"

#include <QFile>
#include <QRegularExpression>

namespace {

const QString fence = QStringLiteral("```");

/// What a page shows in place of a character that nobody sees.
QString unveiled(QString text)
{
    return text.replace(QStringLiteral("→"), QStringLiteral("\t")).replace(QStringLiteral("↵"), QStringLiteral("\n"));
}

QString value(const QString& cell)
{
    const QString text = cell.trimmed();
    const bool quoted = text.size() > 1 && text.startsWith('`') && text.endsWith('`') && text.count('`') == 2;
    const QString bare = quoted ? text.mid(1, text.size() - 2) : text;
    return bare == QLatin1String("(empty)") ? QString() : unveiled(bare);
}

QStringList cells(const QString& line)
{
    QStringList values = line.split('|');
    values.removeFirst();
    values.removeLast();
    for (QString& cell : values)
        cell = value(cell);
    return values;
}

QString letters(const QByteArray& bytes)
{
    QString text;
    for (const char byte : bytes)
        text += byte >= 0x20 && byte < 0x7f ? QLatin1Char(byte) : QLatin1Char('.');
    return text;
}

} // namespace

FormatPage::FormatPage(const QString& pageName) : name(pageName)
{
    QFile file(QStringLiteral(FORMAT_PAGES "/%1.md").arg(name));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no page %s", qPrintable(file.fileName()));
    lines = QString::fromUtf8(file.readAll()).split('\n');
}

QStringList FormatPage::section(const QString& heading) const
{
    static const QRegularExpression headings("^#+ +");
    QStringList found;
    bool inside = false;
    bool seen = false;
    bool fenced = false;
    for (const QString& line : lines) {
        fenced = fenced != line.startsWith(fence);
        if (!fenced && headings.match(line).hasMatch()) {
            inside = QString(line).remove(headings) == heading;
            seen = seen || inside;
        } else if (inside) {
            found << line;
        }
    }
    if (!seen)
        qFatal("%s.md has no heading \"%s\"", qPrintable(name), qPrintable(heading));
    return found;
}

QByteArray FormatPage::example(const QString& heading, const QString& kind) const
{
    const QStringList text = section(heading);
    const int start = text.indexOf(fence + kind);
    const int end = start < 0 ? -1 : text.indexOf(fence, start + 1);
    if (end < 0)
        qFatal("%s.md has no %s below \"%s\"", qPrintable(name), qPrintable(kind), qPrintable(heading));
    return (unveiled(text.mid(start + 1, end - start - 1).join('\n')) + '\n').toUtf8();
}

QByteArray FormatPage::dump(const QString& heading) const
{
    static const QRegularExpression shape("^([0-9a-f]{8})  ([0-9a-f ]{48})  \\|(.{1,16})\\|$");
    QByteArray bytes;
    QByteArray last;
    const QString text = QString::fromUtf8(example(heading, "hexdump"));
    for (const QString& line : text.split('\n', Qt::SkipEmptyParts)) {
        if (line == QLatin1String("*"))
            continue; // the next offset tells how many
        const int offset = line.left(8).toInt(nullptr, 16);
        while (last.size() == 16 && bytes.size() < offset)
            bytes += last;
        if (bytes.size() != offset)
            qFatal("%s.md: %d bytes ahead of %s", qPrintable(name), bytes.size(), qPrintable(line));
        const QRegularExpressionMatch match = shape.match(line);
        if (line.size() == 8)
            return bytes;
        last = QByteArray::fromHex(match.captured(2).toLatin1());
        if (!match.hasMatch() || letters(last) != match.captured(3))
            qFatal("%s.md: no line of a dump: %s", qPrintable(name), qPrintable(line));
        bytes += last;
    }
    qFatal("%s.md: a dump without its last offset", qPrintable(name));
}

QVector<QMap<QString, QString>> FormatPage::table(const QString& heading) const
{
    QStringList rows = section(heading).filter(QRegularExpression("^\\|"));
    if (rows.size() < 3)
        qFatal("%s.md has no table below \"%s\"", qPrintable(name), qPrintable(heading));
    const QStringList titles = cells(rows.takeFirst());
    rows.removeFirst();
    QVector<QMap<QString, QString>> values;
    for (const QString& row : rows) {
        const QStringList columns = cells(row);
        if (columns.size() != titles.size())
            qFatal("%s.md: not %d columns: %s", qPrintable(name), titles.size(), qPrintable(row));
        QMap<QString, QString> byTitle;
        for (int column = 0; column < titles.size(); ++column)
            byTitle.insert(titles.at(column), columns.at(column));
        byTitle.insert(QString(), columns.first());
        values << byTitle;
    }
    return values;
}

QMap<QString, QString> FormatPage::row(const QString& heading, const QString& first) const
{
    for (const QMap<QString, QString>& row : table(heading)) {
        if (row.value(QString()) == first)
            return row;
    }
    qFatal("%s.md has no row \"%s\" below \"%s\"", qPrintable(name), qPrintable(first), qPrintable(heading));
}

bool FormatPage::names(const QString& text) const
{
    return lines.join('\n').contains('`' + text + '`');
}
