#pragma once

#include "Core/Pressure/FlightRecorder.h"

#include <QDialog>

/// What went on in the minutes before an alert: memory and pressure as lines, and the largest processes with
/// what they had gained. It deletes itself when it is closed.
class IncidentDialog : public QDialog {
    Q_OBJECT

public:
    explicit IncidentDialog(const Incident& incident, QWidget* parent = nullptr);

private:
    QLayout* makeFigure(const QString& name, const QList<double>& values, const QColor& color,
                        const QString& range);
    QWidget* makeList(const Incident& incident);
};
