#pragma once

#include "Core/Cleanup/CacheTarget.h"
#include "Core/Instant.h"

#include <QDialog>
#include <QStringList>

class CacheCleanup;
class CleanupPreview;
class PushButton;

/// What one cleanup target consists of, to the last entry, and the button that cleans what is ticked after
/// asking. It shows the target as it was when the drawer was opened. Deletes itself when it is closed.
class CacheDetailDrawer : public QDialog {
    Q_OBJECT

public:
    CacheDetailDrawer(CacheCleanup& cleanup, CacheTarget target, Instant now, QWidget* parent);

Q_SIGNALS:
    /// `target` has what is to go of it in `listed`; `leftOut` has the paths that were left out.
    void cleanRequested(const CacheTarget& target, const QStringList& leftOut);
    void trashRequested(const CacheTarget& target, const QStringList& leftOut);

private:
    QLayout* makeHeader();
    QLayout* makeLine(const QString& symbol, const QString& text) const;
    QWidget* makeBreakdown();
    QLayout* makeActions();
    CacheTarget chosen() const;
    QStringList leftOut() const;
    void refresh();
    void confirm();

    CacheCleanup& m_cleanup;
    CacheTarget m_target;
    Instant m_now;
    CleanupPreview* m_preview = nullptr; ///< null while nothing is known of the target
    PushButton* m_clean;
    PushButton* m_trash = nullptr; ///< null where nothing is to be kept
};
