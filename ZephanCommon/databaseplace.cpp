#include "databaseplace.h"

#include "fileidentity.h"

#include <QCoreApplication>
#include <QFile>
#include <QHash>
#include <QMessageBox>

namespace {

struct OpenFile
{
    QString path;
    std::string identity;
};

std::string identityOf(const QString& path)
{
    return fileIdentity(QFile::encodeName(path).toStdString());
}

QHash<QString, OpenFile>& openFiles()
{
    static QHash<QString, OpenFile> files;
    return files;
}

} // namespace

void noteDatabaseFile(const QString& connection, const QString& path)
{
    openFiles().insert(connection, {path, identityOf(path)});
}

bool databaseIsInPlace(const QString& connection)
{
    const OpenFile open = openFiles().value(connection);
    if (identityOf(open.path) == open.identity) {
        return true;
    }
    const QString text = QCoreApplication::translate(
        "DatabasePlace",
        "Le fichier de la base %1 a été remplacé ou effacé depuis son ouverture.\nRien n'est modifié : "
        "redémarrez Zephan Trajector.");
    QMessageBox::warning(nullptr, QCoreApplication::translate("DatabasePlace", "Base de données déplacée"),
                         text.arg(connection));
    return false;
}
