#pragma once

#include "UI/Style/Theme.h"

#include <QList>
#include <QString>
#include <QWidget>

#include <optional>

/// Figures over time, with axes and a legend. The pointer, or the arrow keys, show the figures of one moment.
class Graph : public QWidget {
    Q_OBJECT

public:
    enum class Unit { percent, bytes, bytesPerSecond, degrees };
    enum class Size {
        large,
        compact, ///< for a panel: lower, and not on a card
        small    ///< for one of many: without axes
    };

    struct Series {
        QString name; ///< may be empty for a single one, whose figure then stands beside the title
        Theme::Role role;
        QList<double> values; ///< one for each time; NaN where unknown, which all are then
    };
    struct Data {
        QList<double> times; ///< seconds since the epoch, in order
        QList<Series> series;
        bool isStacked = false; ///< each series stands on the one before
        double top = 0;         ///< of the scale; 0 for a round figure above the largest
        QString note = {};      ///< beside the title, while no moment is chosen
    };

    Graph(QString title, Unit unit, Size size = Size::large, QWidget* parent = nullptr);

    void set(Data data);

    /// Returns the figure as a text: "43%", "1.5 GB", "2 MB/s", "61 °C"; a dash where it is unknown.
    static QString text(Unit unit, double value);
    /// Returns the top of a scale for that largest value: 1, 2 or 5 times a power of ten, of a unit of bytes.
    /// Its half is another text than its ends.
    static double roundTop(Unit unit, double largest);

    QSize sizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    struct Run { ///< of moments whose figures are known
        qsizetype begin;
        qsizetype end;
    };

    bool hasLegend() const;
    bool hasAxes() const { return m_size != Size::small; }
    bool isDrawable() const;
    int padding() const;
    double top() const;
    QString scaleText(int step) const;
    QRectF plot() const;
    double x(const QRectF& plot, qsizetype index) const;
    qsizetype shownIndex() const; ///< of the moment under the cursor, else the last; -1 without a moment
    qsizetype indexForKey(int key) const;
    QString momentText() const;
    void moveCursor(std::optional<double> time);
    void describe();
    QList<std::pair<QString, Theme::Role>> legend() const;
    int legendLines(int width) const;
    QList<Run> runs() const;
    void paintHead(QPainter& painter) const;
    void paintLegend(QPainter& painter, QRectF line) const;
    void paintAxes(QPainter& painter, const QRectF& plot) const;
    void paintTimes(QPainter& painter, const QRectF& plot) const;
    void paintRun(QPainter& painter, const QRectF& plot, Run run) const;
    void paintCursor(QPainter& painter, const QRectF& plot) const;

    QString m_title;
    Unit m_unit;
    Size m_size;
    Data m_data;
    std::optional<double> m_cursor; ///< seconds since the epoch
};
