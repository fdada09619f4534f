#pragma once

#include <QHeaderView>

/// The head of a table in the theme's looks. Alignments come from the model.
class TableHeader : public QHeaderView {
    Q_OBJECT

public:
    explicit TableHeader(QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintSection(QPainter* painter, const QRect& area, int section) const override;
    void paintEvent(QPaintEvent* event) override;

private:
    void drawChevron(QPainter& painter, const QRectF& area) const;
};
