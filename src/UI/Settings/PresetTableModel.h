#pragma once

#include "Core/Relief/QuickKillPreset.h"

#include <QAbstractTableModel>

/// The quick-kill presets as rows, in stored order.
class PresetTableModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { symbol, name, pattern, idle, ram, force, actions };
    static constexpr int columns = 7;

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
