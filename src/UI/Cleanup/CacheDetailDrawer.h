#pragma once

#include "Core/Cleanup/CacheTarget.h"
#include "Core/Instant.h"

#include <QDialog>

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
    /// `target` has what is to go of it in `listed`.
    void cleanRequested(const CacheTarget& target);

private:
    QLayout* makeHeader();
    QLayout* makeLine(const QString& symbol, const QString& text) const;
    QWidget* makeBreakdown();
    void refresh();
    void confirm();

    CacheCleanup& m_cleanup;
    CacheTarget m_target;
    Instant m_now;
    CleanupPreview* m_preview = nullptr; ///< null while nothing is known of the target
    PushButton* m_clean;
};
