#pragma once

#include <QIODevice>
#include <QRegularExpression>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVector>

/// Finds the texts of an English interface that have stayed French.
class FrenchTexts
{
public:
    /// Takes what the program has translated from its catalogue (.ts): the French sides that read otherwise in English.
    /// False when it is no catalogue.
    bool readCatalogue(QIODevice& catalogue);
    /// Takes the words of the two map pages: the French ones that read otherwise in English. False when there are none.
    bool readPageWords(QIODevice& frenchPage, QIODevice& englishPage);
    /// Takes the texts that stay French: one a line, with "%1" for what is filled in; "#" begins the reason.
    void readKept(QIODevice& kept);

    /// Whether words that somebody wrote for the program are French: by the catalogue and the pages, by their letters,
    /// by words that no English text has.
    bool areFrench(const QString& words) const;
    /// Whether a text out of the simulator's data is one of the program's French texts.
    bool isFrenchOfCatalogue(const QString& data) const;

    /// Those of the first that are French words and those of the second that are French of the catalogue, sorted.
    QStringList find(const QSet<QString>& words, const QSet<QString>& data) const;

private:
    void addPair(const QString& frenchText, const QString& englishText);
    bool isKept(const QString& text) const;

    QVector<QRegularExpression> french;
    QVector<QRegularExpression> kept;
};
