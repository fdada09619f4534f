#pragma once

#include <QWidget>

/// A small label over a figure that changes in place.
class FigureColumn : public QWidget {
    Q_OBJECT

public:
    explicit FigureColumn(QString label, QWidget* parent = nullptr);

    void setFigure(const QString& figure);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_label;
    QString m_figure;
};
