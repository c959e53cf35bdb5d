#pragma once

#include <QString>

/// The buttons of the question ahead of a deletion.
const QString erase = QStringLiteral("Effacer");
const QString eraseAndExport = QStringLiteral("Effacer\n& Exporter");
const QString keep = QStringLiteral("Annuler");

/// The title of the boxes that tell of the update file of deleted procedures.
const QString procedureExportTitle = QStringLiteral("Suppression/export d'un SIDSTAR");
