#pragma once

#include "UI/Style/Theme.h"

#include <QAbstractButton>
#include <QList>
#include <QString>

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
    QList<double> times = {};    ///< of the points, in seconds since the epoch

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

/// One tile of the dashboard: a title, a big figure, a second line and a sparkline with its scale. The
/// pointer, or the arrow keys, show one moment of the line. A click opens the page of the figure.
class MetricTile : public QAbstractButton {
    Q_OBJECT

public:
    explicit MetricTile(QWidget* parent = nullptr);

    void set(const Metric& metric);

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void paintFigures(QPainter& painter);
    void paintScale(QPainter& painter);
    void moveMark(qsizetype index);
    void describe();
    QStringList markText() const;
    void tintSparkline();

    Metric m_metric;
    Sparkline* m_sparkline;
    qsizetype m_marked = -1; ///< the index of a point, or -1
};
