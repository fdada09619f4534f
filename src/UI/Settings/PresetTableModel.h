#pragma once

#include "Core/Relief/QuickKillPreset.h"

#include <QAbstractTableModel>

struct PresetColumn {
    const char* title = nullptr;             ///< in the context "Columns"
    int width = 0;                           ///< 0 for what the others leave
    Qt::Alignment alignment = Qt::AlignLeft; ///< right for a figure
    QString (*text)(const QuickKillPreset&) = [](const QuickKillPreset&) { return QString(); };
};

/// The quick-kill presets as rows, in stored order.
class PresetTableModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { symbol, name, pattern, idle, ram, force, actions };
    static constexpr int columns = 7;

    static const PresetColumn& column(int index);

    using QAbstractTableModel::QAbstractTableModel;

    const QList<QuickKillPreset>& presets() const { return m_presets; }
    void setPresets(const QList<QuickKillPreset>& presets);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QList<QuickKillPreset> m_presets;
};
