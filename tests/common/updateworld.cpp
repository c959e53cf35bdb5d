// Databases, boxes and log for the tests of update files.
#include "updateworld.h"

#include <QFile>

namespace {

const QString errorTitle = QStringLiteral("SQL Error");
const QString errorStart = QStringLiteral("One of the query failed to execute.Error detail: ");

class Variables : public CGlobalVar
{
public:
    explicit Variables(const Sandbox& sandbox)
    {
        dirZephan.setPath(sandbox.root());
        init();
    }
    void saveSettings() override {}
    void loadSettings() override {}
};

/// Without what the platform says of a box.
QStringList ours(const QStringList& messages)
{
    QStringList kept;
    for (const QString& message : messages) {
        if (!message.startsWith("This plugin does not support ") && !message.startsWith("QXcbConnection: "))
            kept << message;
    }
    return kept;
}

} // namespace

UpdateWorld::UpdateWorld() : variables(new Variables(sandbox))
{
    log.clear();
}

QString UpdateWorld::write(const QByteArray& lines, const QString& name) const
{
    sandbox.writeFile(name, lines);
    return sandbox.path(name);
}

bool UpdateWorld::import(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s cannot be read", qPrintable(path));
    return exchange.importDB(file, variables.get());
}

bool UpdateWorld::importToTheEnd(const QByteArray& lines)
{
    const QString path = write(lines);
    expectImported(path);
    return import(path);
}

void UpdateWorld::expectImported(const QString& path)
{
    boxes.expectMessage("Importation", "Importation terminée\n " + path);
}

void UpdateWorld::expectSqlError()
{
    boxes.expectAnyMessage();
}

QStringList UpdateWorld::sqlErrors() const
{
    QStringList texts;
    for (const SeenBox& box : boxes.seen()) {
        if (box.title == errorTitle && box.text.startsWith(errorStart) && box.icon == QMessageBox::Information)
            texts << box.text.mid(errorStart.size());
    }
    return texts;
}

QStringList UpdateWorld::titles() const
{
    QStringList list;
    for (const SeenBox& box : boxes.seen())
        list << box.title;
    return list;
}

QStringList UpdateWorld::logged() const
{
    return ours(log.messages());
}

QStringList UpdateWorld::logged(QtMsgType type) const
{
    return ours(log.messages(type));
}

QVector<QStringList> UpdateWorld::rows(const QString& file, const QString& statement) const
{
    QVector<QStringList> texts;
    for (const QVariantList& row : sandbox.sql(file, statement)) {
        QStringList values;
        for (const QVariant& value : row)
            values << value.toString();
        texts << values;
    }
    return texts;
}

QString UpdateWorld::column(const QString& file, const QString& statement) const
{
    QStringList values;
    for (const QStringList& row : rows(file, statement))
        values << row.first();
    return values.join(' ');
}

QByteArray navaidLine(const QByteArray& key)
{
    return "GEN;NAV;+;65702;" + key + ";ABB;ABBEVILLE;108.45;-1.5;0;FR;;6;2;1;180485.5;6667.25;220;100;130";
}

QByteArray numberedValues(int count)
{
    QByteArrayList values;
    for (int number = 101; number <= 100 + count; ++number)
        values << QByteArray::number(number);
    return values.join(';');
}
