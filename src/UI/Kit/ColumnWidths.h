#pragma once

#include "UI/Kit/StoreLater.h"

class QHeaderView;

/// Keeps the widths that the user gives the columns of a table, as "group=156 pid=62", so that they stay with
/// their columns wherever these stand. The table says which columns it has and what they are called.
class ColumnWidths : public QObject {
    Q_OBJECT

public:
    struct Column {
        QString id;
        int usual = 0; ///< 0 for the one that has what the others leave
    };

    ColumnWidths(QHeaderView& header, SettingsFile& file);

    /// Gives the head's columns the widths that are stored under the key, or the usual ones. From now on what
    /// the user changes is stored there.
    void restore(const QString& key, const QList<Column>& columns);

    /// Turns widths that are stored by position under `old` into those of the columns `ids`, unless `key` has
    /// some already. Nothing is left under `old`.
    static void takeOver(SettingsFile& file, const QString& old, const QString& key, const QStringList& ids);

private:
    void store();

    QHeaderView& m_header;
    SettingsFile& m_file;
    StoreLater m_storeLater;
    QString m_key;
    QList<Column> m_columns;
    bool m_isRestoring = false;
};
