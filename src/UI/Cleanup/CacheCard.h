#pragma once

#include "Core/Cleanup/CacheTarget.h"

#include <QAbstractButton>

/// One cleanup target: its size and when it was measured. A press opens the target that was shown then.
class CacheCard : public QAbstractButton {
    Q_OBJECT

public:
    explicit CacheCard(QWidget* parent = nullptr);

    /// `now` is what the time of the last scan is told against.
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
