#pragma once

#include "Core/Sessions/Session.h"

#include <QWidget>

class IconButton;
class PushButton;
class QMenu;
class SessionHeader;
class SessionTree;

enum class SessionAction { end, pause, resume, openFolder, copyDetails };

/// One session: its line with the buttons, and its processes when it is open.
class SessionRow : public QWidget {
    Q_OBJECT

public:
    /// What a row shows besides its session.
    struct Setting {
        Instant now;
        quint64 largestBytes = 0; ///< of the largest session
        bool isFirst = false;     ///< has no line above it
        bool isExpanded = false;
        bool isEnding = false; ///< its end is under way
    };

    explicit SessionRow(QWidget* parent = nullptr);

    void set(const Session& session, const Setting& setting);
    const Session& session() const { return m_session; }
    SessionHeader* header() const { return m_header; }

Q_SIGNALS:
    void toggled(const Session& session);
    /// Emitted with the session that was shown when the button was pressed or the menu was opened.
    void triggered(SessionAction action, const Session& session);

protected:
    void paintEvent(QPaintEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    IconButton* addButton(const QString& symbol, const QString& help, SessionAction action);
    void showEnding(bool isEnding);
    void fill(QMenu& menu);

    Session m_session;
    bool m_isFirst = true;
    bool m_isEnding = false;
    SessionHeader* m_header;
    QWidget* m_buttons;
    IconButton* m_pause;
    IconButton* m_resume;
    IconButton* m_folder;
    IconButton* m_copy;
    PushButton* m_end;
    SessionTree* m_tree;
};
