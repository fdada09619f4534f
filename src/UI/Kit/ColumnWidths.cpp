#include "UI/Kit/ColumnWidths.h"

#include <QHeaderView>

namespace {

/// Returns 0 when the text is not a valid width.
int widthOf(const QString& text) {
    constexpr int minWidth = 40;
    constexpr int maxWidth = 2000;
    const int width = text.toInt();
    return width >= minWidth && width <= maxWidth ? width : 0;
}

QString entry(const QString& id, int width) {
    return QStringLiteral("%1=%2").arg(id).arg(width);
}

QMap<QString, int> widthsIn(const QString& stored) {
    QMap<QString, int> widths;
    for (const QString& each : stored.split(u' ', Qt::SkipEmptyParts))
        widths.insert(each.section(u'=', 0, 0), widthOf(each.section(u'=', 1)));
    return widths;
}

} // namespace

ColumnWidths::ColumnWidths(QHeaderView& header, SettingsFile& file)
    : m_header(header)
    , m_file(file)
    , m_storeLater(file) {
    connect(&header, &QHeaderView::sectionResized, this, [this](int section) {
        if (!m_isRestoring && m_columns.value(section).defaultWidth > 0)
            store();
    });
}

void ColumnWidths::restore(const QString& key, const QList<Column>& columns) {
    m_isRestoring = true;
    m_key = key;
    m_columns = columns;
    m_stored = widthsIn(m_file.text(key).value_or(QString()));
    for (int i = 0; i < columns.size(); ++i) {
        const int width = m_stored.value(columns[i].id);
        if (columns[i].defaultWidth > 0)
            m_header.resizeSection(i, width > 0 ? width : columns[i].defaultWidth);
    }
    m_isRestoring = false;
}

void ColumnWidths::store() {
    for (int i = 0; i < m_columns.size(); ++i) {
        if (m_columns[i].defaultWidth > 0 && !m_header.isSectionHidden(i))
            m_stored.insert(m_columns[i].id, m_header.sectionSize(i));
    }
    QStringList widths;
    for (auto width = m_stored.cbegin(); width != m_stored.cend(); ++width)
        widths.append(entry(width.key(), width.value()));
    m_storeLater.store(m_key, widths.join(u' '));
}

void ColumnWidths::migrate(SettingsFile& file, const QString& oldKey, const QString& key,
                           const QStringList& ids) {
    const auto stored = file.text(oldKey);
    if (!stored)
        return;
    const QStringList positions = stored->split(u' ', Qt::SkipEmptyParts);
    QStringList widths;
    for (qsizetype i = 0; i < ids.size(); ++i) {
        if (const int width = widthOf(positions.value(i)))
            widths.append(entry(ids[i], width));
    }
    if (!widths.isEmpty() && !file.text(key))
        file.store(key, widths.join(u' '));
    file.store(oldKey, {});
}
