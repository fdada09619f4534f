#pragma once

#include "Core/Cleanup/CacheTarget.h"
#include "Core/Cleanup/CleanupPlan.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <vector>

/// What a scan found, as a tree in which each part is chosen or left out: targets, their folders, the entries
/// of these, and what is inside an entry once that was listed. Where targets have nodes, the only folder of
/// one has none. What a program uses is not chosen at first.
class CleanupChoice {
public:
    enum class Kind : quint8 { target, folder, entry, note };
    enum class Tick : quint8 { none, some, all };
    enum class Order : quint8 { name, size, age };

    /// The index of a node; `top` is above the first level.
    using Index = qint32;
    static constexpr Index top = 0;

    /// Takes 40 bytes, as there may be a million: `entryOf` has the rest of an entry.
    struct Node {
        Kind kind = Kind::note;
        Tick tick = Tick::all;
        bool isFolder = false;
        bool isInUse = false;
        bool isListed = false; ///< its inside is known
        bool isShown = true;   ///< by the filter
        qint16 target = 0;
        Index parent = top;
        qint32 row = 0;     ///< among the shown children of its parent
        qint32 folder = -1; ///< of its target
        qint32 branch = -1; ///< what is in it; -1 for nothing
        quint64 sizeBytes = 0;
        const char* record = nullptr; ///< of an entry, in its listing, up to the NUL
    };

    /// The parts that are to go.
    struct Sum {
        quint64 bytes = 0;   ///< what several parts have in common counts once
        qsizetype count = 0; ///< of entries
        qsizetype leftOut = 0;

        bool operator==(const Sum&) const = default;
    };

    enum class Levels { ofTargets, ofFolders };

    /// With `ofFolders` there is one target, which has no node of its own.
    CleanupChoice(QList<CacheTarget> targets, Levels levels);

    const Node& node(Index index) const { return m_nodes[static_cast<std::size_t>(index)]; }
    const std::vector<Index>& children(Index index) const { return branchOf(index).children; }
    /// Returns the children that the filter lets pass, in order.
    const std::vector<Index>& shown(Index index) const { return branchOf(index).shown; }
    const QList<CacheTarget>& targets() const { return m_targets; }
    /// Returns what its listing says of an entry; of another node nothing.
    CleanupPlan::Entry entryOf(Index index) const;
    /// Returns the last part of an entry's path, behind what a person calls it, or the text of another node.
    QString nameOf(Index index) const;
    /// Returns the absolute path of a folder or an entry, else an empty text.
    QString pathOf(Index index) const;

    /// Whether all that the filter shows of a node is ticked.
    bool isTicked(Index index) const;
    /// Ticks what the filter shows of a node, or takes the ticks away. Notes have none.
    void setTicked(Index index, bool isTicked);
    /// Adds what is inside an entry, by a listing of its folder. Returns whether the listing was readable.
    bool insert(Index index, const QByteArray& listing);

    void sort(Order order, bool isDescending);
    bool isSortedBy(Order order, bool isDescending) const {
        return order == m_order && isDescending == m_isDescending;
    }
    /// Shows the nodes whose name contains the text, in any case, with those above and below them.
    void filter(const QString& text);

    Sum sum() const;
    /// Returns whether nothing is to go.
    bool isEmpty() const { return m_targets.isEmpty() || node(top).tick == Tick::none; }
    /// Returns the targets with what is to go of them in `listed`, those without anything left out.
    QList<CacheTarget> chosen() const { return chosen(Listings::whole); }
    /// Returns the paths that were left out by hand, the topmost of each.
    QStringList leftOut() const;

private:
    enum class Listings { whole, headersOnly };
    struct Branch {
        std::vector<Index> children;
        std::vector<Index> shown;
    };

    Node& at(Index index) { return m_nodes[static_cast<std::size_t>(index)]; }
    const Branch& branchOf(Index index) const;
    Branch& growBranch(Index index);
    Index add(Index parent, Node node, const QString& text = {});
    void addTarget(qint16 target, Index parent);
    void addVolumes(qint16 index, Index parent);
    void addEntries(Index parent, qint16 target, qint32 folder, QByteArrayView listing);
    bool isPart(Index index) const;
    std::vector<Index> withAllBelow(Index index) const;
    void followTicks(Index index);
    void arrange(Index index);
    void putInOrder(std::vector<Index>& nodes) const;
    void collect(Index index, ListedFolder& part, Listings listings) const;
    void leaveOut(Index index, QStringList& paths) const;
    QList<CacheTarget> chosen(Listings listings) const;
    QList<ListedFolder> chosenFolders(Index index, Listings listings) const;

    QList<CacheTarget> m_targets;
    Levels m_levels;
    QList<QByteArray> m_listings; ///< that the views of the nodes point into
    std::vector<Node> m_nodes;
    std::vector<Branch> m_branches;
    /// Of targets, folders and notes; of an entry what a person calls it.
    QHash<Index, QString> m_texts;
    Order m_order = Order::size;
    bool m_isDescending = true;
};
