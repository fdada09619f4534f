#pragma once

#include "Core/Cleanup/CacheTarget.h"

#include <QDialog>

/// What one cleanup target consists of, and the button that cleans it after asking. It shows the target as
/// it was when the drawer was opened. Deletes itself when it is closed.
class CacheDetailDrawer : public QDialog {
    Q_OBJECT

public:
    CacheDetailDrawer(CacheTarget target, QWidget* parent);

Q_SIGNALS:
    void cleanRequested(const CacheTarget& target);

private:
    QLayout* makeHeader();
    QLayout* makeLine(const QString& symbol, const QString& text) const;
    QWidget* makeBreakdown() const;
    void confirm();

    CacheTarget m_target;
};
