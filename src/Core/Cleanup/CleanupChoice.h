#pragma once

#include "Core/Cleanup/CacheTarget.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>
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

    struct Node {
        Kind kind = Kind::note;
        Tick tick = Tick::all;
        bool isFolder = false;
        bool isInUse = false;
        bool isListed = false; ///< its inside is known
        bool isShown = true;   ///< by the filter
        Index parent = top;
        qint32 row = 0; ///< among the shown children of its parent
        qint32 target = 0;
        qint32 folder = -1; ///< of its target
        quint64 sizeBytes = 0;
        std::optional<qint64> modified; ///< seconds since 1970
        QString text;                   ///< of a target, folder or note; of an entry what a person calls it
        QByteArrayView path;            ///< of an entry, relative to its folder
        QByteArrayView record;          ///< of an entry, in its listing
        std::vector<Index> children;
        std::vector<Index> shown; ///< those that the filter lets pass, in order
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
    const QList<CacheTarget>& targets() const { return m_targets; }
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
    /// Shows the nodes whose name contains the text, in any case, with those above and below them.
    void filter(const QString& text);

    Sum sum() const;
    /// Returns the targets with what is to go of them in `listed`, those without anything left out.
    QList<CacheTarget> chosen() const;
    /// Returns the paths that were left out by hand, the topmost of each.
    QStringList leftOut() const;

private:
    Node& at(Index index) { return m_nodes[static_cast<std::size_t>(index)]; }
    Index add(Index parent, Node node);
    void addTarget(qint32 target, Index parent);
    void addVolumes(qint32 index, Index parent);
    void addEntries(Index parent, qint32 target, qint32 folder, QByteArrayView listing);
    bool isPart(Index index) const;
    std::vector<Index> withAllBelow(Index index) const;
    void followTicks(Index index);
    void arrange(Index index);
    bool comesBefore(Index a, Index b) const;
    void collect(Index index, QByteArray& listing, quint64& bytes) const;
    void count(Index index, Sum& sum) const;
    void leaveOut(Index index, QStringList& paths) const;
    QList<ListedFolder> chosenFolders(Index index) const;

    QList<CacheTarget> m_targets;
    Levels m_levels;
    QList<QByteArray> m_listings; ///< that the views of the nodes point into
    std::vector<Node> m_nodes;
    Order m_order = Order::size;
    bool m_isDescending = true;
};
