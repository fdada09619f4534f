#pragma once

#include "Core/Announcements/MessageFeed.h"

#include <QAbstractButton>

/// The button that opens a message's link, in the colours of its severity. A long caption is shortened.
class ActionCapsule : public QAbstractButton {
    Q_OBJECT

public:
    explicit ActionCapsule(QWidget* parent = nullptr);

    /// Sets the link and its plain caption, in which an ampersand is a character.
    void set(const QString& caption, const QUrl& link, Message::Severity severity);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_caption;
    Message::Severity m_severity = Message::Severity::info;
};

/// A cross, with a background while it is hovered.
class DismissButton : public QAbstractButton {
    Q_OBJECT

public:
    explicit DismissButton(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};
