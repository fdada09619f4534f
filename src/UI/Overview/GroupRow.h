#pragma once

#include "Core/Grouping/GroupRollup.h"
#include "Core/Sampling/ProcSample.h"
#include "UI/Kit/Card.h"
#include "UI/Kit/RowPool.h"

#include <QAbstractButton>

class GroupHeader;
class ProcessRow;
class QVBoxLayout;
class TextLabel;

/// One process group: a header that opens and closes it, and, when open, its largest members.
class GroupRow : public Card {
    Q_OBJECT

public:
    static constexpr qsizetype shownMembers = 50;

    explicit GroupRow(ProcGroup group, QWidget* parent = nullptr);

    /// Shows the group. `totalRAM` is the machine's memory in bytes. `members` are the processes in the order
    /// to show, and read only when the group is open.
    void set(const GroupRollup& rollup, quint64 totalRAM, bool isExpanded, const QList<ProcSample>& members);
    /// Sets a line for the tool tip and the description, or none.
    void setNote(const QString& note);
    /// Returns whether the pointer or the focus is on the members.
    bool isInUse() const;

Q_SIGNALS:
    void toggled();
    void quitRequested(const ProcSample& process);
    void forceKillRequested(const ProcSample& process);

private:
    void showMembers(const QList<ProcSample>& members);

    GroupHeader* m_header;
    QVBoxLayout* m_rowsLayout;
    QWidget* m_body;
    RowPool<ProcessRow> m_rows;
    TextLabel* m_overflow;
};

/// The header of a group: symbol, label, count, share of memory, figures and a chevron.
class GroupHeader : public QAbstractButton {
    Q_OBJECT

public:
    explicit GroupHeader(ProcGroup group, QWidget* parent = nullptr);

    void set(const GroupRollup& rollup, quint64 totalRAM, bool isExpanded);
    void setNote(const QString& note);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void describe();
    void paintLabel(QPainter& painter, QRectF area);

    GroupRollup m_rollup;
    double m_share = 0;
    bool m_expanded = false;
    QString m_note;
};
