#pragma once

#include <QSet>
#include <QString>

class QObject;

/// What a user could read: every text of every widget and action, shown or not, with tool tips and status tips, and of
/// the map page.
class SeenTexts
{
public:
    /// Adds what can be read now.
    void readAll();

    /// Texts that somebody wrote for this program, such as labels, titles, questions.
    const QSet<QString>& words() const;
    /// What the simulator's data or the user put there: cells of lists, contents of fields.
    const QSet<QString>& data() const;

private:
    void add(const QString& words);
    void readProperties(const QObject& object);
    void readItems(const QObject& object);

    QSet<QString> wordTexts;
    QSet<QString> dataTexts;
};
