#pragma once

#include "Core/Announcements/MessageCenter.h"

#include <QWidget>

#include <functional>

class ActionCapsule;
class ClampedLabel;
class SymbolView;

/// The center's current message in one row, with its link and a button to dismiss it. Hidden without one.
class MessageBanner : public QWidget {
    Q_OBJECT

public:
    using OpenLink = std::function<void(const QUrl&)>;

    /// `open` opens a link; by default the desktop does.
    explicit MessageBanner(MessageCenter& center, OpenLink open = openInDesktop, QWidget* parent = nullptr);

    static void openInDesktop(const QUrl& link);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void refresh();
    void set(const MessageCenter::Message& message);

    MessageCenter& m_center;
    OpenLink m_open;
    MessageCenter::Message m_message; ///< the one that is shown
    SymbolView* m_symbol;
    ClampedLabel* m_title;
    ClampedLabel* m_body;
    ActionCapsule* m_action;
};
