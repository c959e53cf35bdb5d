#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVector>

/// A page of docs/formats. Tests take its examples and tables out of it and hold them against the program, so that a
/// page that goes stale fails. What is asked for and is not there ends the test program.
class FormatPage
{
public:
    /// `name` without folder and ending: "plan".
    explicit FormatPage(const QString& name);

    /// The fenced block of this kind ("fpl") below a heading, up to the next heading: its bytes, UTF-8, each line with
    /// its line feed, "→" made the tab that it stands for.
    QByteArray example(const QString& heading, const QString& kind) const;
    /// The bytes that a block of kind "hexdump" below a heading shows. Its letters have to agree with them.
    QByteArray dump(const QString& heading) const;
    /// The rows of the table below a heading, each value under its column's title. The backticks around a value are
    /// gone; "(empty)" is the empty text; "→" and "↵" are the tab and the line feed that they stand for.
    QVector<QMap<QString, QString>> table(const QString& heading) const;
    /// One row of that table, found by the value of its first column.
    QMap<QString, QString> row(const QString& heading, const QString& first) const;
    /// Whether the page has this text in backticks.
    bool names(const QString& text) const;

private:
    /// The lines between a heading and the next one. A heading is none inside a fenced block.
    QStringList section(const QString& heading) const;

    QString name;
    QStringList lines;
};
