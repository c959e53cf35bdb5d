#pragma once

#include <QVector>

class SoakWorld;

/// Something that a user can do. It may ask the dice for all that is open in it, and requires of the world what must be
/// true afterwards.
struct Command
{
    const char* name;
    int weight;                   ///< how often, beside the others
    bool (*possible)(SoakWorld&); ///< whether the user could do it now; null for always
    void (*run)(SoakWorld&);
};

QVector<Command> planCommands();
QVector<Command> gridCommands();
QVector<Command> fileCommands();
QVector<Command> searchCommands();
QVector<Command> viewCommands();
QVector<Command> mapCommands();
QVector<Command> dataCommands();
QVector<Command> procedureCommands();
QVector<Command> traceCommands();
QVector<Command> shellCommands();

/// All of them.
QVector<Command> allCommands();
