#pragma once

#include "Core/Cleanup/CleanupChoice.h"
#include "Core/Instant.h"

#include <QAbstractItemModel>
#include <QSet>

#include <functional>

/// A choice as a tree for a view. An entry that is a folder asks for what is inside when it is opened.
class CleanupPreviewModel : public QAbstractItemModel {
    Q_OBJECT

public:
    enum Column { name, size, age, columnCount_ };

    /// `now` is the base of the ages.
    CleanupPreviewModel(QList<CacheTarget> targets, CleanupChoice::Levels levels, Instant now,
                        QObject* parent = nullptr);

    const CleanupChoice& choice() const { return m_choice; }
    CleanupChoice::Index nodeOf(const QModelIndex& index) const;
    const CleanupChoice::Node& node(const QModelIndex& index) const { return m_choice.node(nodeOf(index)); }

    bool isTicked(const QModelIndex& index) const { return m_choice.isTicked(nodeOf(index)); }
    void toggle(const QModelIndex& index);
    void setShownTicked(bool isTicked);
    void filter(const QString& text);
    /// Shows what is inside an entry, as `insideWanted` asked for it.
    void insert(CleanupChoice::Index node, const QByteArray& listing);

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    bool hasChildren(const QModelIndex& parent = {}) const override;
    bool canFetchMore(const QModelIndex& parent) const override;
    void fetchMore(const QModelIndex& parent) override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    void sort(int column, Qt::SortOrder order) override;

Q_SIGNALS:
    void ticksChanged();
    void insideWanted(CleanupChoice::Index node);

private:
    QModelIndex at(CleanupChoice::Index node, int column = name) const;
    QString text(const QModelIndex& index) const;
    QString spoken(const QModelIndex& index) const;
    void rearrange(const std::function<void()>& change);

    CleanupChoice m_choice;
    Instant m_now;
    QSet<CleanupChoice::Index> m_asked; ///< entries whose inside is on its way
};
