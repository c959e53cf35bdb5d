#include "pagecopy.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>

QUrl PageCopy::with(const QMap<QString, QString>& settings)
{
    const QString from = QCoreApplication::applicationDirPath();
    QProcess::execute("cp", {"-r", from + "/maps", from + "/gm_trajector_fr.html", folder.path()});
    QFile file(path("maps/service.js"));
    if (!file.open(QIODevice::ReadWrite))
        return {};
    QString text = QString::fromUtf8(file.readAll());
    for (auto setting = settings.begin(); setting != settings.end(); ++setting) {
        const QRegularExpression line("^  " + setting.key() + ": .*,$", QRegularExpression::MultilineOption);
        if (!text.contains(line))
            return {};
        text.replace(line, "  " + setting.key() + ": " + setting.value() + ",");
    }
    file.resize(0);
    file.write(text.toUtf8());
    return QUrl::fromLocalFile(path("gm_trajector_fr.html"));
}
