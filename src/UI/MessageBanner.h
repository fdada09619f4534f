#pragma once

#include "Core/Announcements/MessageCenter.h"

#include <QWidget>

#include <functional>

class ActionCapsule;
class ClampedLabel;
class SymbolView;

/// The message of the center in one row, with its link and a way to dismiss it; hidden while there is none.
class MessageBanner : public QWidget {
    Q_OBJECT

public:
    using OpenLink = std::function<void(const QUrl&)>;

    /// `open` follows a link; the desktop's own handler unless set.
    explicit MessageBanner(MessageCenter& center, OpenLink open = openInDesktop, QWidget* parent = nullptr);

    static void openInDesktop(const QUrl& link);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void refresh();
    void set(const MessageCenter::Message& message);

    MessageCenter& m_center;
    OpenLink m_open;
    MessageCenter::Message m_message; ///< the one on show
    SymbolView* m_symbol;
    ClampedLabel* m_title;
    ClampedLabel* m_body;
    ActionCapsule* m_action;
};
