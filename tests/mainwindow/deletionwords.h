#pragma once

#include <QString>

/// The buttons of the question ahead of a deletion.
const QString erase = QStringLiteral("Effacer");
const QString eraseAndExport = QStringLiteral("Effacer\n& Exporter");
const QString keep = QStringLiteral("Annuler");

/// The titles of the question and boxes of a navaid, and of the box that tells of its update file.
const QString navaidDeletion = QStringLiteral("Suppression d'un navaid");
const QString navaidExportTitle = QStringLiteral("Suppression/export d'un navaid");

/// The title of the boxes that tell of the update file of deleted procedures.
const QString procedureExportTitle = QStringLiteral("Suppression/export d'un SIDSTAR");
