#pragma once

#include "Core/Cleanup/CleanupChoice.h"
#include "Core/Instant.h"

#include <QWidget>

class CacheCleanup;
class CleanupPreviewModel;
class CleanupPreviewView;
class SearchField;
class TextLabel;

/// Shows what cleaning these targets would remove, to the last entry, and lets the user leave out parts.
class CleanupPreview : public QWidget {
    Q_OBJECT

public:
    CleanupPreview(CacheCleanup& cleanup, const QList<CacheTarget>& targets, CleanupChoice::Levels levels,
                   Instant now, QWidget* parent = nullptr);

    /// Returns the targets with what is to go of them.
    QList<CacheTarget> chosen() const;
    CleanupChoice::Sum sum() const { return m_sum; }
    /// Returns whether nothing is to go.
    bool isEmpty() const;
    /// Returns the paths that the user left out.
    QStringList leftOut() const;

Q_SIGNALS:
    void changed();

private:
    QLayout* makeTools();
    void listInside(CleanupChoice::Index node);
    void refresh();

    CacheCleanup& m_cleanup;
    CleanupPreviewModel* m_model;
    CleanupPreviewView* m_view;
    SearchField* m_search;
    TextLabel* m_summary;
    CleanupChoice::Sum m_sum;
};
