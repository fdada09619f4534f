#pragma once

#include "Core/Cleanup/CacheTarget.h"

#include <QAbstractButton>

/// One cleanup target: its size and the time of its scan. A click means the target that was shown at the
/// press.
class CacheCard : public QAbstractButton {
    Q_OBJECT

public:
    explicit CacheCard(QWidget* parent = nullptr);

    /// Shows the target, with the time of its scan relative to `now`.
    void set(const CacheTarget& target, bool isSelected, Instant now);

    QSize sizeHint() const override;

Q_SIGNALS:
    void opened(const CacheTarget& target);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    CacheTarget m_target;
    QString m_scanned;
    bool m_isSelected = false;
};
