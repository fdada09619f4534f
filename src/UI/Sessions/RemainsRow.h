#pragma once

#include "UI/Sessions/Remains.h"
#include "UI/Sessions/RowHeader.h"

class PushButton;
class SessionTree;

/// The line of left-overs or duplicates: what they are, and their memory.
class RemainsHeader : public RowHeader {
    Q_OBJECT

public:
    using RowHeader::RowHeader;

    void set(const Remains& remains, Instant now);

protected:
    void paintEvent(QPaintEvent* event) override;
    void describeState() override;

private:
    QString m_symbol;
    QString m_title;
    QString m_details;
    QString m_memory;
    QString m_parts;
};

/// Left-overs or duplicates: their line with the button that ends them, and the processes when it is open.
class RemainsRow : public QWidget {
    Q_OBJECT

public:
    struct Setting {
        Instant now;
        bool isFirst = false; ///< has no line above it
        bool isExpanded = false;
        bool isEnding = false;
    };

    explicit RemainsRow(QWidget* parent = nullptr);

    void set(const Remains& remains, const Setting& setting);
    RemainsHeader* header() const { return m_header; }

Q_SIGNALS:
    void toggled(const Remains& remains);
    /// Emitted with what was shown when the button was pressed.
    void endRequested(const Remains& remains);

protected:
    void paintEvent(QPaintEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    Remains m_remains;
    bool m_isFirst = true;
    RemainsHeader* m_header;
    PushButton* m_end;
    SessionTree* m_tree;
};
