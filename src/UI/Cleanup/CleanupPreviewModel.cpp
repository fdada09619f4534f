#include "UI/Cleanup/CleanupPreviewModel.h"

#include "Core/Formatters.h"
#include "Core/Translations.h"

#include <algorithm>

using Kind = CleanupChoice::Kind;
using Tick = CleanupChoice::Tick;

namespace {

Qt::CheckState checkStateOf(Tick tick) {
    switch (tick) {
    case Tick::none:
        return Qt::Unchecked;
    case Tick::some:
        return Qt::PartiallyChecked;
    case Tick::all:
        break;
    }
    return Qt::Checked;
}

} // namespace

CleanupPreviewModel::CleanupPreviewModel(QList<CacheTarget> targets, CleanupChoice::Levels levels,
                                         Instant now, QObject* parent)
    : QAbstractItemModel(parent)
    , m_choice(std::move(targets), levels)
    , m_now(now) {}

CleanupChoice::Index CleanupPreviewModel::nodeOf(const QModelIndex& index) const {
    return index.isValid() ? static_cast<CleanupChoice::Index>(index.internalId()) : CleanupChoice::top;
}

QModelIndex CleanupPreviewModel::at(CleanupChoice::Index node, int column) const {
    if (node == CleanupChoice::top)
        return {};
    return createIndex(m_choice.node(node).row, column, static_cast<quintptr>(node));
}

QModelIndex CleanupPreviewModel::index(int row, int column, const QModelIndex& parent) const {
    if (!hasIndex(row, column, parent))
        return {};
    const CleanupChoice::Index node = m_choice.shown(nodeOf(parent))[static_cast<std::size_t>(row)];
    return createIndex(row, column, static_cast<quintptr>(node));
}

QModelIndex CleanupPreviewModel::parent(const QModelIndex& child) const {
    return at(node(child).parent);
}

int CleanupPreviewModel::rowCount(const QModelIndex& parent) const {
    return parent.column() > 0 ? 0 : static_cast<int>(m_choice.shown(nodeOf(parent)).size());
}

int CleanupPreviewModel::columnCount(const QModelIndex&) const {
    return columnCount_;
}

bool CleanupPreviewModel::hasChildren(const QModelIndex& parent) const {
    const CleanupChoice::Node& found = node(parent);
    return !m_choice.shown(nodeOf(parent)).empty() || (found.isFolder && !found.isListed);
}

bool CleanupPreviewModel::canFetchMore(const QModelIndex& parent) const {
    const CleanupChoice::Node& found = node(parent);
    return found.isFolder && !found.isListed && !m_asked.contains(nodeOf(parent));
}

void CleanupPreviewModel::fetchMore(const QModelIndex& parent) {
    if (!canFetchMore(parent))
        return;
    m_asked.insert(nodeOf(parent));
    Q_EMIT insideWanted(nodeOf(parent));
}

void CleanupPreviewModel::insert(CleanupChoice::Index node, const QByteArray& listing) {
    rearrange([&] { m_choice.insert(node, listing); });
    Q_EMIT ticksChanged();
}

void CleanupPreviewModel::toggle(const QModelIndex& index) {
    if (node(index).kind != Kind::note)
        setData(index, isTicked(index) ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}

bool CleanupPreviewModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::CheckStateRole || node(index).kind == Kind::note)
        return false;
    m_choice.setTicked(nodeOf(index), value.toInt() != Qt::Unchecked);
    Q_EMIT dataChanged(index, index, {Qt::CheckStateRole});
    Q_EMIT ticksChanged();
    return true;
}

void CleanupPreviewModel::setShownTicked(bool isTicked) {
    m_choice.setTicked(CleanupChoice::top, isTicked);
    Q_EMIT ticksChanged();
}

void CleanupPreviewModel::filter(const QString& text) {
    rearrange([&] { m_choice.filter(text); });
}

void CleanupPreviewModel::sort(int column, Qt::SortOrder order) {
    using Order = CleanupChoice::Order;
    const Order orders[] = {Order::name, Order::size, Order::age};
    const Order wanted = orders[std::clamp(column, 0, 2)];
    const bool isDescending = order == Qt::DescendingOrder;
    if (!m_choice.isSortedBy(wanted, isDescending))
        rearrange([&] { m_choice.sort(wanted, isDescending); });
}

/// Changes rows, and keeps what is open and selected.
void CleanupPreviewModel::rearrange(const std::function<void()>& change) {
    Q_EMIT layoutAboutToBeChanged();
    const QModelIndexList before = persistentIndexList();
    change();
    QModelIndexList after;
    for (const QModelIndex& each : before)
        after.append(node(each).isShown ? at(nodeOf(each), each.column()) : QModelIndex());
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged();
}

QString CleanupPreviewModel::text(const QModelIndex& index) const {
    const CleanupChoice::Node& found = node(index);
    const QString own = m_choice.nameOf(nodeOf(index));
    switch (index.column()) {
    case Column::name:
        return Formatters::visible(found.kind == Kind::target ? Translations::of(own) : own);
    case Column::size:
        return found.kind == Kind::note && found.sizeBytes == 0 ? QString()
                                                                : Formatters::bytes(found.sizeBytes);
    default:
        break;
    }
    if (found.kind != Kind::entry)
        return {};
    const auto modified = static_cast<double>(m_choice.entryOf(nodeOf(index)).modified);
    return Formatters::ago(secondsOf(m_now) - modified);
}

/// Returns the row in words.
QString CleanupPreviewModel::spoken(const QModelIndex& index) const {
    QStringList parts{text(index.siblingAtColumn(name))};
    if (const QString figure = text(index.siblingAtColumn(size)); !figure.isEmpty())
        parts.append(figure);
    if (const QString changed = text(index.siblingAtColumn(age)); !changed.isEmpty())
        parts.append(tr("changed %1").arg(changed));
    if (node(index).isInUse)
        parts.append(tr("in use"));
    return Formatters::list(parts);
}

QVariant CleanupPreviewModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return text(index);
    case Qt::CheckStateRole:
        return index.column() == name && node(index).kind != Kind::note ? checkStateOf(node(index).tick)
                                                                        : QVariant();
    case Qt::ToolTipRole:
        return Formatters::toolTip(Formatters::visible(m_choice.pathOf(nodeOf(index))));
    case Qt::AccessibleTextRole:
        return index.column() == name ? spoken(index) : text(index);
    default:
        return {};
    }
}

Qt::ItemFlags CleanupPreviewModel::flags(const QModelIndex& index) const {
    if (!index.isValid())
        return Qt::NoItemFlags;
    const bool isTickable = index.column() == name && node(index).kind != Kind::note;
    const Qt::ItemFlags plain = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    return isTickable ? plain | Qt::ItemIsUserCheckable : plain;
}

QVariant CleanupPreviewModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant(section == name ? Qt::AlignLeft | Qt::AlignVCenter
                                        : Qt::AlignRight | Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return {};
    switch (section) {
    case Column::name:
        return tr("Name");
    case Column::size:
        return tr("Size");
    default:
        return tr("Changed");
    }
}
