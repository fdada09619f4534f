#pragma once

#include "Core/Cleanup/ProjectLeftovers.h"
#include "UI/Style/Theme.h"

#include <QAbstractButton>

/// One project with leftovers, which can be ticked unless a program works in it. A click means the project
/// that was shown at the press.
class LeftoverRow : public QAbstractButton {
    Q_OBJECT

public:
    explicit LeftoverRow(QWidget* parent = nullptr);

    /// Shows the project, with its last use relative to `now`.
    void set(const LeftoverProject& project, bool isTicked, Instant now);

    QSize sizeHint() const override;

    /// Widths of the columns, for the heads.
    static constexpr Theme::Length sizeWidth{76};
    static constexpr Theme::Length lastUseWidth{110};
    static constexpr Theme::Length noteWidth{170};
    static constexpr int padding = 12;

Q_SIGNALS:
    void ticked(const QByteArray& project);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QByteArray m_path;
    LeftoverProject m_project;
    QString m_lastUse;
};
