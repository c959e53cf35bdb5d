#include "programside.h"

#include <QRegularExpression>

QStringList ProgramSide::calls() const
{
    return noted;
}

QStringList ProgramSide::calls(const QString& slot) const
{
    return noted.filter(QRegularExpression("^" + slot + "( |$)"));
}

void ProgramSide::clear()
{
    noted.clear();
}

void ProgramSide::note(const QString& slot, const QStringList& texts, const QList<double>& numbers)
{
    QString call = slot;
    for (const QString& text : texts)
        call += " \"" + text + '"';
    for (double number : numbers)
        call += ' ' + QString::number(number, 'f', 5);
    note(call);
}

void ProgramSide::note(const QString& call)
{
    noted.append(call);
    emit called(call);
}

void ProgramSide::doSomething(const QString& param)
{
    note("doSomething", {param});
}

void ProgramSide::doCenter(double latD, double lonD)
{
    note("doCenter", {}, {latD, lonD});
}

void ProgramSide::doZoom(int zoom)
{
    note("doZoom " + QString::number(zoom));
}

void ProgramSide::doData(const QString& value)
{
    note("doData", {value});
}

void ProgramSide::doViewRwy(const QString& value)
{
    note("doViewRwy", {value});
}

void ProgramSide::doMoveSIT(double latD, double lonD)
{
    note("doMoveSIT", {}, {latD, lonD});
}

void ProgramSide::sAddAptToFp(const QString& param)
{
    note("sAddAptToFp", {param});
}

void ProgramSide::sAddNavToFp(const QString& param)
{
    note("sAddNavToFp", {param});
}

void ProgramSide::sAddWptToFp(const QString& param)
{
    note("sAddWptToFp", {param});
}

void ProgramSide::sAddNewWptToFp(const QString& param, double latD, double lonD)
{
    note("sAddNewWptToFp", {param}, {latD, lonD});
}

void ProgramSide::sAddSitToFp(double latD, double lonD)
{
    note("sAddSitToFp", {}, {latD, lonD});
}

void FullProgramSide::sAddWptToDB(const QString& title, double latD, double lonD)
{
    note("sAddWptToDB", {title}, {latD, lonD});
}

void FullProgramSide::sAddNavToDB(const QString& title, double latD, double lonD)
{
    note("sAddNavToDB", {title}, {latD, lonD});
}

void FullProgramSide::sDelNavFromDB(const QString& title)
{
    note("sDelNavFromDB", {title});
}

void FullProgramSide::sDelWptFromDB(const QString& title)
{
    note("sDelWptFromDB", {title});
}

void FullProgramSide::sATS(const QString& wptName, const QString& navName)
{
    note("sATS", {wptName, navName});
}
