#pragma once

#include "Core/Sessions/Session.h"
#include "UI/Sessions/RowHeader.h"
#include "UI/Style/Theme.h"

class Sparkline;

/// The line of a session: state, project, agent, activity, number of processes, and the figures.
class SessionHeader : public RowHeader {
    Q_OBJECT

public:
    explicit SessionHeader(QWidget* parent = nullptr);

    /// Shows the session. The bar is full at `largestBytes`.
    void set(const Session& session, Instant now, quint64 largestBytes);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void describeState() override;

private:
    struct Texts {
        QString heading; ///< the project
        QString aside;   ///< the name and what it waits for
        QString lastActive;
        QStringList details; ///< what follows: processes, agent, swap
        QString memory;
        QString cpu;

        bool operator==(const Texts&) const = default;
    };

    static Texts textsOf(const Session& session, Instant now);
    void paintFigures(QPainter& painter, QRectF& line);
    void paintTexts(QPainter& painter, QRectF line);
    Theme::Role tint() const;
    void tintSparkline();

    SessionState m_state = SessionState::idle;
    Texts m_texts;
    QString m_parts;
    QList<double> m_trend;
    double m_share = 0;
    Sparkline* m_sparkline;
};
