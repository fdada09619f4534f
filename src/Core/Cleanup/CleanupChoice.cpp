#include "Core/Cleanup/CleanupChoice.h"

#include "Core/Cleanup/CleanupOverlap.h"

#include <QCoreApplication>
#include <QFile>

#include <algorithm>
#include <ranges>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

QByteArrayView lastPart(QByteArrayView path) {
    return path.sliced(path.lastIndexOf('/') + 1);
}

/// A target that a command cleans, or that was never listed, is chosen as a whole.
bool isWhole(const CacheTarget& target) {
    return target.pruneCommand || target.listed.isEmpty();
}

/// Sorts by keys that lie side by side, which takes a fraction of the time of looking into each node. What is
/// in order already, as `cleanup` lists it, takes no memory.
template <typename KeyOf>
void sortBy(std::vector<CleanupChoice::Index>& nodes, bool isDescending, KeyOf keyOf) {
    const auto isInOrder = [isDescending](const auto& a, const auto& b) {
        return isDescending ? b < a : a < b;
    };
    if (std::ranges::is_sorted(nodes, isInOrder, keyOf))
        return;
    using Keyed = std::pair<std::invoke_result_t<KeyOf, CleanupChoice::Index>, CleanupChoice::Index>;
    std::vector<Keyed> keyed;
    keyed.reserve(nodes.size());
    for (const CleanupChoice::Index node : nodes)
        keyed.emplace_back(keyOf(node), node);
    std::ranges::stable_sort(keyed, isInOrder, &Keyed::first);
    std::ranges::transform(keyed, nodes.begin(), &Keyed::second);
}

} // namespace

CleanupChoice::CleanupChoice(QList<CacheTarget> targets, Levels levels)
    : m_targets(std::move(targets))
    , m_levels(levels) {
    m_nodes.push_back({.kind = Kind::target, .isListed = true});
    for (qint16 i = 0; i < m_targets.size(); ++i) {
        const CacheTarget& target = m_targets[i];
        Index parent = top;
        if (m_levels == Levels::ofTargets)
            parent = add(top,
                         {.kind = Kind::target,
                          .isFolder = true,
                          .isListed = true,
                          .target = i,
                          .sizeBytes = target.sizeBytes},
                         target.name);
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

const CleanupChoice::Branch& CleanupChoice::branchOf(Index index) const {
    static const Branch nothing;
    const qint32 branch = node(index).branch;
    return branch < 0 ? nothing : m_branches[static_cast<std::size_t>(branch)];
}

/// Returns the branch of a node, which has one from now on.
CleanupChoice::Branch& CleanupChoice::growBranch(Index index) {
    qint32& branch = at(index).branch;
    if (branch < 0) {
        branch = static_cast<qint32>(m_branches.size());
        m_branches.emplace_back();
    }
    return m_branches[static_cast<std::size_t>(branch)];
}

CleanupChoice::Index CleanupChoice::add(Index parent, Node node, const QString& text) {
    const auto index = static_cast<Index>(m_nodes.size());
    node.parent = parent;
    m_nodes.push_back(node);
    growBranch(parent).children.push_back(index);
    if (!text.isEmpty())
        m_texts.insert(index, text);
    return index;
}

void CleanupChoice::addTarget(qint16 index, Index parent) {
    const CacheTarget& target = m_targets[index];
    const bool isOldFiles = target.rule.measure == CleanupRule::Measure::oldFiles;
    for (qint32 i = 0; i < target.listed.size() && !target.pruneCommand; ++i) {
        const ListedFolder& folder = target.listed[i];
        Index above = parent;
        if (target.listed.size() > 1 || (parent == top && !isOldFiles) || folder.listing.isEmpty())
            above = add(parent,
                        {.kind = folder.listing.isEmpty() ? Kind::note : Kind::folder,
                         .isFolder = !folder.listing.isEmpty(),
                         .isListed = true,
                         .target = index,
                         .folder = i,
                         .sizeBytes = folder.sizeBytes},
                        folder.path);
        m_listings.append(folder.listing);
        addEntries(above, index, i, m_listings.last());
    }
    if (!isWhole(target))
        return;
    for (const CacheEntry& entry : target.details)
        add(parent, {.target = index, .sizeBytes = entry.sizeBytes}, entry.path);
    if (target.rule.measure == CleanupRule::Measure::containers && !target.details.isEmpty())
        addVolumes(index, parent);
}

void CleanupChoice::addVolumes(qint16 index, Index parent) {
    const bool isKnown = m_targets[index].volumes.has_value();
    const QStringList volumes = m_targets[index].volumes.value_or(QStringList());
    const QString heading =
        !isKnown ? QCoreApplication::translate("CleanupTexts",
                                               "It is unknown which volumes go, with all that is in them.")
        : volumes.isEmpty()
            ? QCoreApplication::translate("CleanupChoice", "No volumes go")
            : QCoreApplication::translate("CleanupChoice", "Volumes that go, with all that is in them: %1")
                  .arg(volumes.size());
    const Index above =
        add(parent, {.isFolder = !volumes.isEmpty(), .isListed = true, .target = index}, heading);
    for (const QString& volume : volumes)
        add(above, {.target = index}, volume);
}

void CleanupChoice::addEntries(Index parent, qint16 target, qint32 folder, QByteArrayView listing) {
    const auto records = static_cast<std::size_t>(std::ranges::count(listing, '\0'));
    if (const std::size_t needed = m_nodes.size() + records; needed > m_nodes.capacity())
        m_nodes.reserve(std::max(needed, 2 * m_nodes.capacity()));
    growBranch(parent).children.reserve(records);
    const QHash<QString, QString>& names = m_targets[target].listed[folder].names;
    CleanupPlan::ListingReader reader(listing);
    while (const auto entry = reader.next()) {
        add(parent,
            {.kind = Kind::entry,
             .isFolder = entry->isFolder,
             .isInUse = entry->isInUse,
             .target = target,
             .folder = folder,
             .sizeBytes = entry->sizeBytes,
             .record = entry->record.data()},
            names.isEmpty() ? QString() : names.value(QFile::decodeName(entry->path.toByteArray())));
    }
}

CleanupPlan::Entry CleanupChoice::entryOf(Index index) const {
    const char* record = node(index).record;
    if (!record)
        return {};
    return CleanupPlan::entryOf({record, static_cast<qsizetype>(qstrlen(record)) + 1})
        .value_or(CleanupPlan::Entry());
}

QString CleanupChoice::nameOf(Index index) const {
    const Node& found = node(index);
    const QString text = m_texts.value(index);
    if (found.kind != Kind::entry)
        return text;
    // Old files are found anywhere below their folder.
    const bool isBelowFolder = node(found.parent).kind != Kind::entry;
    const QByteArrayView path = entryOf(index).path;
    const QString name = QFile::decodeName((isBelowFolder ? path : lastPart(path)).toByteArray());
    return text.isEmpty() ? name : text + u" — "_s + name;
}

QString CleanupChoice::pathOf(Index index) const {
    const Node& found = node(index);
    if (found.folder < 0)
        return {};
    const QString folder = m_targets[found.target].listed[found.folder].path;
    return found.kind == Kind::entry ? folder + u'/' + QFile::decodeName(entryOf(index).path.toByteArray())
                                     : folder;
}

/// Returns whether the node is chosen or left out as one.
bool CleanupChoice::isPart(Index index) const {
    const auto isNote = [this](Index child) { return node(child).kind == Kind::note; };
    return node(index).kind != Kind::note && std::ranges::all_of(children(index), isNote);
}

/// Returns the node and all below it, each behind the one that it is in.
std::vector<CleanupChoice::Index> CleanupChoice::withAllBelow(Index index) const {
    std::vector<Index> all{index};
    for (std::size_t i = 0; i < all.size(); ++i) {
        const std::vector<Index>& inside = children(all[i]);
        all.insert(all.end(), inside.begin(), inside.end());
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
    for (const Index child : children(index)) {
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
    if (isSortedBy(order, isDescending))
        return;
    m_order = order;
    m_isDescending = isDescending;
    arrange(top);
}

void CleanupChoice::putInOrder(std::vector<Index>& nodes) const {
    switch (m_order) {
    case Order::size:
        return sortBy(nodes, m_isDescending, [this](Index each) { return node(each).sizeBytes; });
    case Order::age: // the oldest is the largest
        return sortBy(nodes, m_isDescending, [this](Index each) { return -entryOf(each).modified; });
    case Order::name:
        return sortBy(nodes, m_isDescending,
                      [this](Index each) { return std::pair(m_texts.value(each), entryOf(each).path); });
    }
}

/// Puts what is shown below the node in order.
void CleanupChoice::arrange(Index index) {
    std::vector<Index> waiting{index};
    while (!waiting.empty()) {
        Branch& branch = growBranch(waiting.back());
        waiting.pop_back();
        branch.shown.clear();
        std::ranges::copy_if(branch.children, std::back_inserter(branch.shown),
                             [this](Index child) { return node(child).isShown; });
        putInOrder(branch.shown);
        for (qint32 row = 0; const Index child : branch.shown) {
            at(child).row = row++;
            if (node(child).branch >= 0)
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
    for (Index i = top; i < static_cast<Index>(m_nodes.size()); ++i) {
        if (node(i).kind == Kind::entry && children(i).empty())
            ++(node(i).tick == Tick::none ? sum.leftOut : sum.count);
    }
    // One target shares nothing.
    QList<CacheTarget> targets = chosen(m_targets.size() > 1 ? Listings::whole : Listings::headersOnly);
    CleanupOverlap::mark(targets);
    sum.bytes = CleanupOverlap::totalBytes(targets);
    return sum;
}

QList<CacheTarget> CleanupChoice::chosen(Listings listings) const {
    QList<CacheTarget> chosen;
    for (qint32 i = 0; i < m_targets.size(); ++i) {
        const bool hasNode = m_levels == Levels::ofTargets;
        const Index index = hasNode ? children(top)[static_cast<std::size_t>(i)] : top;
        if (node(index).tick == Tick::none)
            continue;
        CacheTarget target = m_targets[i];
        if (node(index).tick == Tick::some) {
            target.listed = chosenFolders(index, listings);
            target.sizeBytes = 0;
            for (const ListedFolder& folder : target.listed)
                target.sizeBytes += folder.sizeBytes;
        }
        chosen.append(target);
    }
    return chosen;
}

/// Returns the folders of a target with the part that is to go.
QList<ListedFolder> CleanupChoice::chosenFolders(Index index, Listings listings) const {
    const Node& first = node(children(index).front());
    const QList<ListedFolder>& all = m_targets[first.target].listed;
    const bool areNodes = first.kind != Kind::entry;
    QList<ListedFolder> chosen;
    for (const Index above : areNodes ? children(index) : std::vector<Index>{index}) {
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
        if (listings == Listings::whole)
            part.listing.reserve(folder.listing.size());
        collect(above, part, listings);
        chosen.append(part);
    }
    return chosen;
}

void CleanupChoice::collect(Index index, ListedFolder& part, Listings listings) const {
    std::vector<Index> waiting{index};
    while (!waiting.empty()) {
        const Index next = waiting.back();
        const Node& each = node(next);
        waiting.pop_back();
        if (each.kind == Kind::entry && each.tick == Tick::all) {
            part.sizeBytes += each.sizeBytes;
            if (listings == Listings::whole)
                part.listing.append(each.record, qstrlen(each.record) + 1);
        } else if (each.tick != Tick::none) {
            waiting.insert(waiting.end(), children(next).rbegin(), children(next).rend());
        }
    }
}

QStringList CleanupChoice::leftOut() const {
    QStringList paths;
    leaveOut(top, paths);
    return paths;
}

void CleanupChoice::leaveOut(Index index, QStringList& paths) const {
    for (const Index child : children(index)) {
        const Node& each = node(child);
        const bool isPart = each.kind == Kind::entry || each.kind == Kind::folder;
        if (each.tick == Tick::none && isPart && !each.isInUse)
            paths.append(pathOf(child));
        else if (each.tick == Tick::some)
            leaveOut(child, paths);
    }
}
