#pragma once

#include "UI/Style/Theme.h"

#include <QList>
#include <QString>
#include <QWidget>

#include <optional>

class Sparkline;
struct MemoryLineUp;
struct SystemSample;

/// What one dashboard tile shows.
struct Metric {
    QString title;
    QString value;
    std::optional<QString> sub;
    Theme::Role accent = Theme::Role::green;
    QList<double> history; ///< the points of its sparkline; may be empty
    QString toolTip = {};
    QList<double> pressure = {}; ///< the points of a second line, in percent; empty while there was none

    bool operator==(const Metric&) const = default;
};

/// The tiles' contents. Colours are decided on unrounded figures.
namespace Metrics {
Metric cpu(const SystemSample& sample, const QList<SystemSample>& history);
Metric memory(const SystemSample& sample, const QList<SystemSample>& history, const MemoryLineUp& lineUp);
Metric disk(const SystemSample& sample);
Metric thermal(const SystemSample& sample);
/// Returns those of the dashboard, in order.
QList<Metric> all(const SystemSample& sample, const QList<SystemSample>& history, const MemoryLineUp& lineUp);
} // namespace Metrics

/// One tile of the dashboard: a title, a big figure, a second line and a sparkline.
class MetricTile : public QWidget {
    Q_OBJECT

public:
    explicit MetricTile(QWidget* parent = nullptr);

    void set(const Metric& metric);

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void paintFigures(QPainter& painter);
    void tintSparkline();

    Metric m_metric;
    Sparkline* m_sparkline;
};
