#pragma once

#include <QObject>
#include <QStringList>

/// The window as the page sees it: notes which slots the page calls. The slots here are those of a program that cannot
/// edit navaids and waypoints.
class ProgramSide : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// All calls so far, such as `doMoveSIT 48.50000 2.25000`, texts between double quotes.
    QStringList calls() const;
    /// Those of one slot.
    QStringList calls(const QString& slot) const;
    void clear();

signals:
    /// Comes while the page waits for the slot to return.
    void called(const QString& call);

public slots:
    void doSomething(const QString& param);
    void doCenter(double latD, double lonD);
    void doZoom(int zoom);
    void doData(const QString& value);
    void doViewRwy(const QString& value);
    void doMoveSIT(double latD, double lonD);
    void sAddAptToFp(const QString& param);
    void sAddNavToFp(const QString& param);
    void sAddWptToFp(const QString& param);
    void sAddNewWptToFp(const QString& param, double latD, double lonD);
    void sAddSitToFp(double latD, double lonD);

protected:
    void note(const QString& call);
    void note(const QString& slot, const QStringList& texts, const QList<double>& numbers = {});

private:
    QStringList noted;
};

/// A program with all commands.
class FullProgramSide : public ProgramSide
{
    Q_OBJECT

public:
    using ProgramSide::ProgramSide;

public slots:
    void sAddWptToDB(const QString& title, double latD, double lonD);
    void sAddNavToDB(const QString& title, double latD, double lonD);
    void sDelNavFromDB(const QString& title);
    void sDelWptFromDB(const QString& title);
    void sATS(const QString& wptName, const QString& navName);
};
