// Another program at work on a database: takes a lock on the file, tells so, and lets go when its input ends.
//
//   dblocker FILE reserved | exclusive    reserved keeps others from writing, exclusive from reading too

#include <QCoreApplication>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QStringList>

#include <cstdio>

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3)
        return 2;
    QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE");
    database.setDatabaseName(arguments.at(1));
    if (!database.open())
        return 1;
    QSqlQuery query(database);
    const QString begin = arguments.at(2) == "exclusive" ? "BEGIN EXCLUSIVE" : "BEGIN IMMEDIATE";
    if (!query.exec(begin)) {
        std::fprintf(stderr, "dblocker: %s\n", qPrintable(query.lastError().text()));
        return 1;
    }
    std::puts("locked");
    std::fflush(stdout);
    while (std::getchar() != EOF) {
    }
    return query.exec("COMMIT") ? 0 : 1;
}
