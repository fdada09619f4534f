#pragma once

#include "Core/StoreLater.h"

#include <QMap>

class QHeaderView;

/// Stores the widths that the user gives the columns of a table, as "group=156 pid=62". A width belongs to
/// the id of its column, wherever the column stands.
class ColumnWidths : public QObject {
    Q_OBJECT

public:
    struct Column {
        QString id;
        int defaultWidth = 0; ///< 0 for the column that takes the remaining width
    };

    ColumnWidths(QHeaderView& header, SettingsFile& file);

    /// Gives the columns the widths that are stored under `key`, or their default widths. Stores there what
    /// the user changes from then on.
    void restore(const QString& key, const QList<Column>& columns);

    /// Moves widths that are stored by position under `oldKey` to the columns `ids` under `key`. Deletes
    /// `oldKey`; widths that are under `key` already stay.
    static void migrate(SettingsFile& file, const QString& oldKey, const QString& key,
                        const QStringList& ids);

private:
    void store();

    QHeaderView& m_header;
    SettingsFile& m_file;
    StoreLater m_storeLater;
    QString m_key;
    QList<Column> m_columns;
    QMap<QString, int> m_stored; ///< also of columns that are not shown
    bool m_isRestoring = false;
};
