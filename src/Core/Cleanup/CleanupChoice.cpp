#include "Core/Cleanup/CleanupChoice.h"

#include "Core/Cleanup/CleanupOverlap.h"
#include "Core/Cleanup/CleanupPlan.h"

#include <QCoreApplication>
#include <QFile>

#include <algorithm>
#include <ranges>

using namespace Qt::StringLiterals;

namespace {

QByteArrayView lastPart(QByteArrayView path) {
    return path.sliced(path.lastIndexOf('/') + 1);
}

/// A target that a command cleans, or that was never listed, is chosen as a whole.
bool isWhole(const CacheTarget& target) {
    return target.pruneCommand || target.listed.isEmpty();
}

} // namespace

CleanupChoice::CleanupChoice(QList<CacheTarget> targets, Levels levels)
    : m_targets(std::move(targets))
    , m_levels(levels) {
    m_nodes.push_back({.kind = Kind::target, .isListed = true, .text = {}});
    for (qint32 i = 0; i < m_targets.size(); ++i) {
        const CacheTarget& target = m_targets[i];
        Index parent = top;
        if (m_levels == Levels::ofTargets)
            parent = add(top, {.kind = Kind::target,
                               .isFolder = true,
                               .isListed = true,
                               .target = i,
                               .sizeBytes = target.sizeBytes,
                               .text = target.name});
        addTarget(i, parent);
    }
    for (Index i = static_cast<Index>(m_nodes.size()) - 1; i > top; --i) {
        if (node(i).isInUse)
            at(i).tick = Tick::none;
    }
    for (Index i = static_cast<Index>(m_nodes.size()) - 1; i >= top; --i)
        followTicks(i);
    arrange(top);
}

CleanupChoice::Index CleanupChoice::add(Index parent, Node node) {
    const auto index = static_cast<Index>(m_nodes.size());
    node.parent = parent;
    m_nodes.push_back(std::move(node));
    at(parent).children.push_back(index);
    return index;
}

void CleanupChoice::addTarget(qint32 index, Index parent) {
    const CacheTarget& target = m_targets[index];
    const bool isOldFiles = target.rule.measure == CleanupRule::Measure::oldFiles;
    for (qint32 i = 0; i < target.listed.size() && !target.pruneCommand; ++i) {
        const ListedFolder& folder = target.listed[i];
        Index above = parent;
        if (target.listed.size() > 1 || (parent == top && !isOldFiles) || folder.listing.isEmpty())
            above = add(parent, {.kind = folder.listing.isEmpty() ? Kind::note : Kind::folder,
                                 .isFolder = !folder.listing.isEmpty(),
                                 .isListed = true,
                                 .target = index,
                                 .folder = i,
                                 .sizeBytes = folder.sizeBytes,
                                 .text = folder.path});
        m_listings.append(folder.listing);
        addEntries(above, index, i, m_listings.last());
    }
    if (!isWhole(target))
        return;
    for (const CacheEntry& entry : target.details)
        add(parent, {.target = index, .sizeBytes = entry.sizeBytes, .text = entry.path});
    if (target.rule.measure == CleanupRule::Measure::containers && !target.details.isEmpty())
        addVolumes(index, parent);
}

void CleanupChoice::addVolumes(qint32 index, Index parent) {
    const QStringList& volumes = m_targets[index].volumes;
    const QString heading =
        volumes.isEmpty()
            ? QCoreApplication::translate("CleanupChoice", "No volumes go")
            : QCoreApplication::translate("CleanupChoice", "Volumes that go, with all that is in them: %1")
                  .arg(volumes.size());
    const Index above =
        add(parent, {.isFolder = !volumes.isEmpty(), .isListed = true, .target = index, .text = heading});
    for (const QString& volume : volumes)
        add(above, {.target = index, .text = volume});
}

void CleanupChoice::addEntries(Index parent, qint32 target, qint32 folder, QByteArrayView listing) {
    const auto records = std::ranges::count(listing, '\0');
    m_nodes.reserve(m_nodes.size() + static_cast<std::size_t>(records));
    const QHash<QString, QString>& names = m_targets[target].listed[folder].names;
    CleanupPlan::ListingReader reader(listing);
    while (const auto entry = reader.next()) {
        const QByteArrayView path = entry->record.chopped(1).last(entry->path.size());
        add(parent, {.kind = Kind::entry,
                     .isFolder = entry->isFolder,
                     .isInUse = entry->isInUse,
                     .target = target,
                     .folder = folder,
                     .sizeBytes = entry->sizeBytes,
                     .modified = entry->modified,
                     .text = names.isEmpty() ? QString() : names.value(QFile::decodeName(path.toByteArray())),
                     .path = path,
                     .record = entry->record});
    }
}

QString CleanupChoice::nameOf(Index index) const {
    const Node& found = node(index);
    if (found.kind != Kind::entry)
        return found.text;
    // Old files are found anywhere below their folder.
    const bool isBelowFolder = node(found.parent).kind != Kind::entry;
    const QString name = QFile::decodeName((isBelowFolder ? found.path : lastPart(found.path)).toByteArray());
    return found.text.isEmpty() ? name : found.text + u" — "_s + name;
}

QString CleanupChoice::pathOf(Index index) const {
    const Node& found = node(index);
    if (found.folder < 0)
        return {};
    const QString folder = m_targets[found.target].listed[found.folder].path;
    return found.kind == Kind::entry ? folder + u'/' + QFile::decodeName(found.path.toByteArray()) : folder;
}

/// Returns whether the node is chosen or left out as one.
bool CleanupChoice::isPart(Index index) const {
    const auto isNote = [this](Index child) { return node(child).kind == Kind::note; };
    return node(index).kind != Kind::note && std::ranges::all_of(node(index).children, isNote);
}

/// Returns the node and all below it, each behind the one that it is in.
std::vector<CleanupChoice::Index> CleanupChoice::withAllBelow(Index index) const {
    std::vector<Index> all{index};
    for (std::size_t i = 0; i < all.size(); ++i) {
        const std::vector<Index>& children = node(all[i]).children;
        all.insert(all.end(), children.begin(), children.end());
    }
    return all;
}

bool CleanupChoice::isTicked(Index index) const {
    return std::ranges::none_of(withAllBelow(index), [this](Index each) {
        return isPart(each) && node(each).isShown && node(each).tick == Tick::none;
    });
}

void CleanupChoice::setTicked(Index index, bool isTicked) {
    for (const Index each : withAllBelow(index) | std::views::reverse) {
        if (isPart(each) && node(each).isShown)
            at(each).tick = isTicked ? Tick::all : Tick::none;
        followTicks(each);
    }
    for (Index above = index; above != top;) {
        above = node(above).parent;
        followTicks(above);
    }
}

/// Sets the tick of a node by those of its children that have one.
void CleanupChoice::followTicks(Index index) {
    std::optional<Tick> common;
    for (const Index child : node(index).children) {
        if (node(child).kind == Kind::note)
            continue;
        const Tick tick = node(child).tick;
        common = !common || *common == tick ? tick : Tick::some;
        if (common == Tick::some)
            break;
    }
    if (common)
        at(index).tick = *common;
}

bool CleanupChoice::insert(Index index, const QByteArray& listing) {
    if (node(index).isListed || CleanupPlan::ListingReader(listing).header().isEmpty())
        return false;
    m_listings.append(listing);
    const Tick tick = node(index).tick;
    const auto first = static_cast<Index>(m_nodes.size());
    addEntries(index, node(index).target, node(index).folder, m_listings.last());
    at(index).isListed = true;
    for (Index i = first; i < static_cast<Index>(m_nodes.size()); ++i) {
        at(i).tick = tick == Tick::all && !node(i).isInUse ? Tick::all : Tick::none;
        at(i).isShown = true;
    }
    for (Index above = index;; above = node(above).parent) {
        followTicks(above);
        if (above == top)
            break;
    }
    arrange(index);
    return true;
}

void CleanupChoice::sort(Order order, bool isDescending) {
    if (order == m_order && isDescending == m_isDescending)
        return;
    m_order = order;
    m_isDescending = isDescending;
    arrange(top);
}

bool CleanupChoice::comesBefore(Index a, Index b) const {
    const Node& first = node(m_isDescending ? b : a);
    const Node& second = node(m_isDescending ? a : b);
    switch (m_order) {
    case Order::size:
        return first.sizeBytes < second.sizeBytes;
    case Order::age: // the oldest is the largest
        return first.modified.value_or(0) > second.modified.value_or(0);
    case Order::name:
        break;
    }
    if (first.text == second.text)
        return first.path < second.path;
    return first.text < second.text;
}

/// Puts what is shown below the node in order.
void CleanupChoice::arrange(Index index) {
    std::vector<Index> waiting{index};
    while (!waiting.empty()) {
        Node& each = at(waiting.back());
        waiting.pop_back();
        each.shown.clear();
        std::ranges::copy_if(each.children, std::back_inserter(each.shown),
                             [this](Index child) { return node(child).isShown; });
        std::ranges::stable_sort(each.shown, [this](Index a, Index b) { return comesBefore(a, b); });
        for (qint32 row = 0; const Index child : each.shown) {
            at(child).row = row++;
            if (!node(child).children.empty())
                waiting.push_back(child);
        }
    }
}

void CleanupChoice::filter(const QString& text) {
    const auto last = static_cast<Index>(m_nodes.size()) - 1;
    for (Index i = top + 1; i <= last; ++i) {
        const bool isInMatch = node(i).parent != top && node(node(i).parent).isShown;
        at(i).isShown = text.isEmpty() || isInMatch || nameOf(i).contains(text, Qt::CaseInsensitive);
    }
    for (Index i = last; i > top; --i) {
        if (node(i).isShown)
            at(node(i).parent).isShown = true;
    }
    arrange(top);
}

CleanupChoice::Sum CleanupChoice::sum() const {
    Sum sum;
    count(top, sum);
    QList<CacheTarget> targets = chosen();
    CleanupOverlap::mark(targets);
    sum.bytes = CleanupOverlap::totalBytes(targets);
    return sum;
}

void CleanupChoice::count(Index index, Sum& sum) const {
    std::vector<Index> waiting{index};
    while (!waiting.empty()) {
        const Node& each = node(waiting.back());
        waiting.pop_back();
        if (each.kind == Kind::entry && each.children.empty())
            ++(each.tick == Tick::none ? sum.leftOut : sum.count);
        waiting.insert(waiting.end(), each.children.begin(), each.children.end());
    }
}

QList<CacheTarget> CleanupChoice::chosen() const {
    QList<CacheTarget> chosen;
    for (qint32 i = 0; i < m_targets.size(); ++i) {
        const bool hasNode = m_levels == Levels::ofTargets;
        const Index index = hasNode ? node(top).children[static_cast<std::size_t>(i)] : top;
        if (node(index).tick == Tick::none)
            continue;
        CacheTarget target = m_targets[i];
        if (node(index).tick == Tick::some) {
            target.listed = chosenFolders(index);
            target.sizeBytes = 0;
            for (const ListedFolder& folder : target.listed)
                target.sizeBytes += folder.sizeBytes;
        }
        chosen.append(target);
    }
    return chosen;
}

/// Returns the folders of a target with the part that is to go.
QList<ListedFolder> CleanupChoice::chosenFolders(Index index) const {
    const Node& target = node(index);
    const QList<ListedFolder>& all = m_targets[node(target.children.front()).target].listed;
    const bool areNodes = node(target.children.front()).kind != Kind::entry;
    QList<ListedFolder> chosen;
    for (const Index above : areNodes ? target.children : std::vector<Index>{index}) {
        const ListedFolder& folder = areNodes ? all[node(above).folder] : all.front();
        if (node(above).tick == Tick::none)
            continue;
        if (node(above).tick == Tick::all) {
            chosen.append(folder);
            continue;
        }
        ListedFolder part = folder;
        part.sizeBytes = 0;
        part.listing = CleanupPlan::ListingReader(folder.listing).header().toByteArray();
        collect(above, part.listing, part.sizeBytes);
        chosen.append(part);
    }
    return chosen;
}

void CleanupChoice::collect(Index index, QByteArray& listing, quint64& bytes) const {
    std::vector<Index> waiting{index};
    while (!waiting.empty()) {
        const Node& each = node(waiting.back());
        waiting.pop_back();
        if (each.kind == Kind::entry && each.tick == Tick::all) {
            listing += each.record;
            bytes += each.sizeBytes;
        } else if (each.tick != Tick::none) {
            waiting.insert(waiting.end(), each.children.rbegin(), each.children.rend());
        }
    }
}

QStringList CleanupChoice::leftOut() const {
    QStringList paths;
    leaveOut(top, paths);
    return paths;
}

void CleanupChoice::leaveOut(Index index, QStringList& paths) const {
    for (const Index child : node(index).children) {
        const Node& each = node(child);
        const bool isPart = each.kind == Kind::entry || each.kind == Kind::folder;
        if (each.tick == Tick::none && isPart && !each.isInUse)
            paths.append(pathOf(child));
        else if (each.tick == Tick::some)
            leaveOut(child, paths);
    }
}
