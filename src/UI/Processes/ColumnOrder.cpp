#include "UI/Processes/ColumnOrder.h"

#include <QHeaderView>

ColumnOrder::ColumnOrder(QHeaderView& header, SettingsFile& file)
    : m_header(header)
    , m_file(file)
    , m_storeLater(file) {
    header.setSectionsMovable(true);
    header.setFirstSectionMovable(false);
    connect(&header, &QHeaderView::sectionMoved, this, [this] {
        if (!m_isRestoring)
            store();
    });
}

void ColumnOrder::restore(const QString& key, const QStringList& ids) {
    m_isRestoring = true;
    m_key = key;
    m_ids = ids;
    const QStringList order = arranged(m_file.text(key).value_or(QString()).split(u' ', Qt::SkipEmptyParts));
    for (int place = 0; place < order.size(); ++place)
        m_header.moveSection(m_header.visualIndex(static_cast<int>(ids.indexOf(order[place]))), place);
    m_isRestoring = false;
}

QStringList ColumnOrder::arranged(QStringList stored) const {
    stored.removeIf([this](const QString& id) { return !m_ids.contains(id) || id == m_ids.first(); });
    stored.removeDuplicates();
    stored.prepend(m_ids.first());
    for (qsizetype i = 1; i < m_ids.size(); ++i) {
        if (!stored.contains(m_ids[i]))
            stored.insert(stored.indexOf(m_ids[i - 1]) + 1, m_ids[i]);
    }
    return stored;
}

bool ColumnOrder::canMove(int section, int by) const {
    const int to = m_header.visualIndex(section) + by;
    return section > 0 && to > 0 && to < m_header.count();
}

void ColumnOrder::move(int section, int by) {
    if (canMove(section, by))
        m_header.moveSection(m_header.visualIndex(section), m_header.visualIndex(section) + by);
}

/// Keeps the places of columns that are not on show, behind those that they followed.
void ColumnOrder::store() {
    QStringList shown;
    for (int place = 0; place < m_header.count(); ++place)
        shown.append(m_ids.value(m_header.logicalIndex(place)));
    const QStringList before = m_file.text(m_key).value_or(QString()).split(u' ', Qt::SkipEmptyParts);
    for (qsizetype i = 0; i < before.size(); ++i) {
        if (!shown.contains(before[i]))
            shown.insert(i > 0 ? shown.indexOf(before[i - 1]) + 1 : 0, before[i]);
    }
    m_storeLater.store(m_key, shown.join(u' '));
}
