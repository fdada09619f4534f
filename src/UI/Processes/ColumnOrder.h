#pragma once

#include "Core/StoreLater.h"

#include <QObject>
#include <QStringList>

class QHeaderView;

/// Stores the order that the user gives the columns of a table, as the ids from left to right. The first
/// column stays where it is.
class ColumnOrder : public QObject {
    Q_OBJECT

public:
    ColumnOrder(QHeaderView& header, SettingsFile& file);

    /// Puts the columns, whose ids are in the order of the model, into the order that is stored under `key`.
    /// A column that is not stored stands behind the one that it follows in the model. Stores there what the
    /// user moves from then on.
    void restore(const QString& key, const QStringList& ids);
    /// Moves a column by one place: -1 to the left, 1 to the right.
    void move(int section, int by);
    bool canMove(int section, int by) const;

private:
    QStringList arranged(QStringList stored) const;
    void store();

    QHeaderView& m_header;
    SettingsFile& m_file;
    StoreLater m_storeLater;
    QString m_key;
    QStringList m_ids; ///< in the order of the model
    bool m_isRestoring = false;
};
