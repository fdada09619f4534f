#pragma once

#include "UI/Kit/TableView.h"

class CleanupPreviewModel;

/// The tree of a preview: a box to tick in each row, and what programs use is marked.
class CleanupPreviewView : public TableView {
    Q_OBJECT

public:
    explicit CleanupPreviewView(CleanupPreviewModel& model, QWidget* parent = nullptr);

Q_SIGNALS:
    void failed(const QString& text);

protected:
    void drawBranches(QPainter* painter, const QRect& area, const QModelIndex& index) const override;
    void keyPressEvent(QKeyEvent* event) override;
    void fillMenu(QMenu& menu, const QModelIndex& index) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void reveal(const QModelIndex& index);
    void fitColumns();

    CleanupPreviewModel& m_model;
};
