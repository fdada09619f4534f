#pragma once

#include "Core/Relief/QuickKillPreset.h"
#include "UI/Kit/TableView.h"

class PresetTableModel;

/// The table of quick-kill presets. A row is edited by its button, Return or a double click, and deleted by
/// its button or Delete.
class PresetTable : public TableView {
    Q_OBJECT

public:
    explicit PresetTable(QWidget* parent = nullptr);

    /// Shows the presets. The selected one stays selected; if it is gone, the one in its place is.
    void show(const QList<QuickKillPreset>& presets);

Q_SIGNALS:
    void editRequested(const QuickKillPreset& preset);
    void deleteRequested(const QuickKillPreset& preset);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void fillMenu(QMenu& menu, const QModelIndex& index) override;

private:
    void addButtons(int row);
    /// Returns null unless the index is that of a row.
    const QuickKillPreset* preset(const QModelIndex& index) const;

    PresetTableModel* m_rows;
};
