#include "frenchtexts.h"

#include <QHash>
#include <QXmlStreamReader>

#include <algorithm>

namespace {

/// As it is compared: on one line, without the marks of keys.
QString plain(QString text)
{
    return text.remove('&').simplified();
}

/// A text of the program, with anything in the place of what is filled in.
QRegularExpression patternOf(const QString& text)
{
    QString pattern = QRegularExpression::escape(plain(text));
    pattern.replace(QRegularExpression("\\\\%\\d"), ".*");
    return QRegularExpression(QRegularExpression::anchoredPattern(pattern));
}

bool matchesAny(const QVector<QRegularExpression>& patterns, const QString& text)
{
    return std::any_of(patterns.begin(), patterns.end(),
                       [&text](const QRegularExpression& pattern) { return pattern.match(text).hasMatch(); });
}

const QRegularExpression& frenchLetters()
{
    static const QRegularExpression letters(QString::fromUtf8("[àâçéèêëîïôùûüœÀÂÇÉÈÊËÎÏÔÙÛÜŒ«»]"));
    return letters;
}

/// Words that a French text of a few words seldom does without, and those of flying that English writes otherwise.
const QRegularExpression& frenchWords()
{
    static const QRegularExpression words(
        "\\b(le|la|les|un|une|des|du|au|aux|et|ou|par|pas|vous|est|dans|avec|pour|sans|ce|cette|aucun|aucune|"
        "vol|avion|piste|pistes|voie|voies|effacer|ajouter|nouveau|nouvelle|enregistrer|charger|fichier|ouvrir|carte|"
        "supprimer|monter|descendre|centrer|mesurer|modifier|ici|vitesse|plafond|recherche|quitter|importer|nom|pays)"
        "\\b",
        QRegularExpression::CaseInsensitiveOption);
    return words;
}

/// The words of a map page by their keys: the lines "key: 'words'," of its table.
QHash<QString, QString> pageWords(QIODevice& page)
{
    static const QRegularExpression line("^\\s+(\\w+): '((?:[^'\\\\]|\\\\.)*)',$");
    QHash<QString, QString> words;
    while (!page.atEnd()) {
        const QRegularExpressionMatch match = line.match(QString::fromUtf8(page.readLine()).remove('\n'));
        if (match.hasMatch()) {
            words.insert(match.captured(1), match.captured(2).remove('\\'));
        }
    }
    return words;
}

} // namespace

bool FrenchTexts::readCatalogue(QIODevice& catalogue)
{
    QXmlStreamReader reader(&catalogue);
    QString source;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && reader.name() == QLatin1String("source")) {
            source = reader.readElementText();
        } else if (reader.isStartElement() && reader.name() == QLatin1String("translation")) {
            addPair(source, reader.readElementText());
        }
    }
    return !reader.hasError() && !french.isEmpty();
}

bool FrenchTexts::readPageWords(QIODevice& frenchPage, QIODevice& englishPage)
{
    const QHash<QString, QString> frenchWords = pageWords(frenchPage);
    const QHash<QString, QString> englishWords = pageWords(englishPage);
    for (auto word = frenchWords.constBegin(); word != frenchWords.constEnd(); ++word) {
        addPair(word.value(), englishWords.value(word.key()));
    }
    return !frenchWords.isEmpty() && !englishWords.isEmpty();
}

void FrenchTexts::addPair(const QString& frenchText, const QString& englishText)
{
    if (plain(frenchText) != plain(englishText)) {
        french << patternOf(frenchText);
    }
}

void FrenchTexts::readKept(QIODevice& file)
{
    while (!file.atEnd()) {
        const QString text = QString::fromUtf8(file.readLine()).section('#', 0, 0).trimmed();
        if (!text.isEmpty()) {
            kept << patternOf(text);
        }
    }
}

bool FrenchTexts::isKept(const QString& text) const
{
    return matchesAny(kept, plain(text));
}

bool FrenchTexts::isFrenchOfCatalogue(const QString& data) const
{
    return !isKept(data) && matchesAny(french, plain(data));
}

bool FrenchTexts::areFrench(const QString& words) const
{
    const QString text = plain(words);
    return !isKept(text) &&
           (matchesAny(french, text) || frenchLetters().match(text).hasMatch() || frenchWords().match(text).hasMatch());
}

QStringList FrenchTexts::find(const QSet<QString>& words, const QSet<QString>& data) const
{
    QStringList found;
    std::copy_if(words.begin(), words.end(), std::back_inserter(found),
                 [this](const QString& text) { return areFrench(text); });
    std::copy_if(data.begin(), data.end(), std::back_inserter(found),
                 [this](const QString& text) { return isFrenchOfCatalogue(text); });
    found.removeDuplicates();
    found.sort();
    return found;
}
