#include "planreader.h"

#include <QStringList>
#include <QTextStream>

namespace {

constexpr int tagLength = 6;
constexpr int longestLine = 1024 * 1024; // characters; the longest value of a plan is a name

// Far above what anybody flies, and about as much as the grid and the page show in some seconds: each point costs them
// tens of kilobytes. The characters stand for the lines that are no points.
constexpr int mostPoints = 20000;
constexpr int mostCharacters = 32 * 1024 * 1024;

using TakeValue = bool (*)(CFpLine& line, const QString& value);

template <QString CFpLine::*field>
bool takeText(CFpLine& line, const QString& value)
{
    line.*field = value;
    return true;
}

bool takeAltitude(CFpLine& line, const QString& value)
{
    line.altd = value.toInt();
    return true;
}

bool takePosition(CFpLine& line, const QString& value)
{
    const QStringList parts = value.split(QLatin1Char(','));
    if (parts.size() < 3) {
        return false;
    }
    line.latS = parts.at(0).toDouble();
    line.lonS = parts.at(1).toDouble();
    line.elev = parts.at(2).toInt();
    return true;
}

struct FieldTag
{
    const char* tag;
    TakeValue take;
};

const FieldTag fieldTags[] = {
    {"<name>", takeText<&CFpLine::name>},  {"<iden>", takeText<&CFpLine::iden>},  {"<llps>", takePosition},
    {"<dbky>", takeText<&CFpLine::dbKey>}, {"<user>", takeText<&CFpLine::usage>}, {"<altd>", takeAltitude},
    {"<tkof>", takeText<&CFpLine::tkof>},  {"<land>", takeText<&CFpLine::land>},  {"<mark>", takeText<&CFpLine::mark>},
};

// The tags whose next line is read and left: were it not read, it could be taken for a tag.
const char* const ignoredTags[] = {"<desc>", "<form>", "<ceil>"};

TakeValue fieldOf(const QString& tag)
{
    for (const FieldTag& field : fieldTags) {
        if (tag == QLatin1String(field.tag)) {
            return field.take;
        }
    }
    return nullptr;
}

bool isIgnored(const QString& tag)
{
    for (const char* ignored : ignoredTags) {
        if (tag == QLatin1String(ignored)) {
            return true;
        }
    }
    return false;
}

/// The lines of a plan until they are none of a plan: a file, and a line without an end, is as long as it likes to be.
class PlanLines
{
public:
    explicit PlanLines(QIODevice& device) : stream(&device) {}

    /// The next one, trimmed. False when no line comes, which can be ahead of the stream's end: a file that holds less
    /// than its size tells, or fails under the reader, never comes to that end.
    bool next(QString& line)
    {
        if (tooLong || !stream.readLineInto(&read, longestLine + 1)) {
            line.clear();
            return false;
        }
        taken += read.size() + 1;
        tooLong = read.size() > longestLine || taken > mostCharacters;
        line = read.trimmed();
        return !tooLong;
    }

    QString next()
    {
        QString line;
        next(line);
        return line;
    }

    bool metTooLong() const
    {
        return tooLong;
    }

private:
    QTextStream stream;
    QString read;
    int taken = 0; ///< characters; of at most one line more than the most
    bool tooLong = false;
};

} // namespace

PlanFile readPlan(QIODevice& device, const std::function<CFpLinePtr()>& newLine)
{
    PlanFile plan;
    PlanLines lines(device);
    QString line;
    while (lines.next(line)) {
        const QString tag = line.left(tagLength);
        if (tag == QLatin1String("<wpnt>")) {
            if (plan.lines.size() == mostPoints) {
                plan.tooLong = true;
                return plan;
            }
            plan.lines += newLine();
            plan.lines.last()->fpType = lines.next();
        } else if (tag == QLatin1String("<vers>")) {
            // The tag's own line, which is no number: every loaded plan starts again at 0.
            plan.version = line.toInt();
            plan.versionSeen = true;
            lines.next();
        } else if (const TakeValue take = fieldOf(tag)) {
            const QString value = lines.next();
            if (plan.lines.isEmpty() || !take(*plan.lines.last(), value)) {
                ++plan.skipped;
            }
        } else if (isIgnored(tag)) {
            lines.next();
        }
    }
    plan.tooLong = lines.metTooLong();
    return plan;
}
