#include "Cli/ProcessRows.h"

#include "Core/Report/Report.h"

#include <QHash>
#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using Rows = QList<QJsonObject>;

struct Order {
    QString name;
    QString key;
    bool isDescending = true;
};

const QList<Order>& table() {
    static const QList<Order> orders = {{u"memory"_s, u"rss_bytes"_s}, {u"cpu"_s, u"cpu_percent"_s},
                                        {u"swap"_s, u"swap_bytes"_s},  {u"idle"_s, u"idle_seconds"_s},
                                        {u"pid"_s, u"pid"_s, false},   {u"name"_s, u"name"_s, false}};
    return orders;
}

bool isLess(const QJsonValue& one, const QJsonValue& other) {
    if (one.isString())
        return one.toString().compare(other.toString(), Qt::CaseInsensitive) < 0;
    return one.toDouble() < other.toDouble();
}

void sort(Rows& rows, const QString& name) {
    const auto found = std::ranges::find(table(), name, &Order::name);
    const Order order = found == table().end() ? table().constFirst() : *found;
    std::ranges::stable_sort(rows, [&order](const QJsonObject& one, const QJsonObject& other) {
        const QJsonValue first = one.value(order.key);
        const QJsonValue second = other.value(order.key);
        return order.isDescending ? isLess(second, first) : isLess(first, second);
    });
}

/// Appends the processes in the order of a tree. A process is the root of one where its parent is not listed.
class Tree {
public:
    explicit Tree(const Rows& rows)
        : m_rows(rows) {
        QSet<qint64> listed;
        for (const QJsonObject& row : rows)
            listed.insert(row.value(u"pid"_s).toInteger());
        for (const QJsonObject& row : rows) {
            const qint64 parent = row.value(u"parent_pid"_s).toInteger();
            m_children[listed.contains(parent) ? parent : 0].append(row);
        }
    }

    Rows lines() {
        append(0, 0);
        for (const QJsonObject& row : m_rows) { // a circle of reused PIDs
            if (!m_done.contains(row.value(u"pid"_s).toInteger()))
                appendOne(row, 0);
        }
        return m_lines;
    }

private:
    void append(qint64 parent, int depth) {
        for (const QJsonObject& row : m_children.value(parent)) {
            if (!m_done.contains(row.value(u"pid"_s).toInteger()))
                appendOne(row, depth);
        }
    }
    void appendOne(QJsonObject row, int depth) {
        const qint64 pid = row.value(u"pid"_s).toInteger();
        m_done.insert(pid);
        row.insert(u"depth"_s, depth);
        m_lines.append(row);
        append(pid, depth + 1);
    }

    const Rows& m_rows;
    QHash<qint64, Rows> m_children;
    QSet<qint64> m_done;
    Rows m_lines;
};

} // namespace

QStringList ProcessRows::orders() {
    QStringList names;
    for (const Order& order : table())
        names.append(order.name);
    return names;
}

QStringList ProcessRows::groups() {
    QStringList names;
    for (const ProcGroup group : allCases<ProcGroup>())
        names.append(Report::groupName(group));
    return names;
}

QJsonArray ProcessRows::chosen(const QJsonArray& processes, const Choice& choice) {
    Rows rows;
    for (const QJsonValue& value : processes) {
        const QJsonObject row = value.toObject();
        const bool isInGroup = choice.group.isEmpty() || row.value(u"group"_s).toString() == choice.group;
        if (isInGroup && static_cast<quint64>(row.value(u"rss_bytes"_s).toInteger()) >= choice.minBytes)
            rows.append(row);
    }
    sort(rows, choice.order);
    QJsonArray result;
    for (const QJsonObject& row : choice.isTree ? Tree(rows).lines() : rows)
        result.append(row);
    return result;
}

Column ProcessRows::name(const QString& title) {
    return {.title = title, .text = [](const QJsonObject& row) {
                const QString indent(2 * row.value(u"depth"_s).toInt(), u' ');
                return indent + Table::safe(row.value(u"name"_s).toString());
            }};
}
