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

    struct Series {
        QString name;
        Theme::Role role;
        QList<double> values; ///< one for each time
    };
    struct Data {
        QList<double> times; ///< seconds since the epoch, in order
        QList<Series> series;
        bool isStacked = false; ///< each series stands on the one before
        double top = 0;         ///< of the scale; 0 for a round figure above the largest
    };

    Graph(QString title, Unit unit, QWidget* parent = nullptr);

    /// Makes it a small one, without a legend. For the default size, a large one.
    void setSmall();
    void set(Data data);

    /// Returns the figure as a text: "43%", "1.5 GB", "2 MB/s", "61 °C".
    static QString text(Unit unit, double value);
    /// Returns the top of a scale for that largest value: 1, 2 or 5 times a power of ten, of a unit of bytes.
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
    double top() const;
    QRectF plot() const;
    double x(const QRectF& plot, qsizetype index) const;
    qsizetype shownIndex() const; ///< of the moment under the cursor, else the last; -1 without a moment
    void moveCursor(std::optional<double> time);
    void describe();
    QList<std::pair<QString, Theme::Role>> legend() const;
    int legendLines(int width) const;
    void paintHead(QPainter& painter) const;
    void paintAxes(QPainter& painter, const QRectF& plot) const;
    void paintSeries(QPainter& painter, const QRectF& plot) const;
    void paintCursor(QPainter& painter, const QRectF& plot) const;

    QString m_title;
    Unit m_unit;
    Data m_data;
    bool m_isSmall = false;
    std::optional<double> m_cursor; ///< seconds since the epoch
};
