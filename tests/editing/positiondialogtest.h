#pragma once

#include "cdialoglatlon.h"
#include "editingworld.h"

#include <QDoubleSpinBox>
#include <QScopedPointer>
#include <QSpinBox>

/// The tests of the position dialog: a new one is shown to each.
class PositionDialogTest : public QObject
{
    Q_OBJECT

protected:
    int whole(const QString& name) const
    {
        return widgetOf<QSpinBox>(*dialog, name)->value();
    }
    double real(const QString& name) const
    {
        return widgetOf<QDoubleSpinBox>(*dialog, name)->value();
    }
    /// Hemisphere, degrees, minutes and seconds of a row: "N 50 0 0.00".
    QString row(const QString& hemisphere, const QString& stem) const
    {
        return QStringLiteral("%1 %2 %3 %4")
            .arg(textOf(*dialog, hemisphere))
            .arg(whole(stem + "Deg"))
            .arg(whole(stem + "Min"))
            .arg(real(stem + "Sec"), 0, 'f', 2);
    }
    QString latitude() const
    {
        return row("cbNS", "sbLat");
    }
    QString longitude() const
    {
        return row("cbEW", "sbLon");
    }

    QScopedPointer<CDialogLatLon> dialog;

private slots:
    void init()
    {
        dialog.reset(new CDialogLatLon(nullptr));
        present(*dialog);
    }
};
