#include "UI/Sessions/SessionRow.h"

#include "Core/Formatters.h"
#include "UI/Kit/IconButton.h"
#include "UI/Kit/KeptFocus.h"
#include "UI/Kit/Pressed.h"
#include "UI/Kit/PushButton.h"
#include "UI/Kit/RowButton.h"
#include "UI/Sessions/SessionHeader.h"
#include "UI/Sessions/SessionTree.h"
#include "UI/Style/Margins.h"

#include <QContextMenuEvent>
#include <QHBoxLayout>
#include <QMenu>
#include <QPainter>

SessionRow::SessionRow(QWidget* parent)
    : QWidget(parent)
    , m_header(new SessionHeader)
    , m_buttons(new QWidget) {
    auto* buttons = new QHBoxLayout(m_buttons);
    buttons->setContentsMargins(mirrored({0, 0, Theme::cardPadding, 0}));
    buttons->setSpacing(Theme::textGap);
    m_pause = addButton(QStringLiteral("pause"), tr("Pause"), SessionAction::pause);
    m_resume = addButton(QStringLiteral("play"), tr("Resume"), SessionAction::resume);
    m_folder = addButton(QStringLiteral("folder"), tr("Open folder"), SessionAction::openFolder);
    m_copy = addButton(QStringLiteral("doc.on.doc"), tr("Copy details"), SessionAction::copyDetails);
    m_resume->hide();
    m_end = new PushButton(tr("End"), PushButton::Look::destructive);
    m_end->setSmall();
    m_end->setToolTip(tr("End session"));
    actOnPressed(m_end, m_session,
                 [this](const Session& session) { Q_EMIT triggered(SessionAction::end, session); });
    buttons->addSpacing(Theme::rowSpacing);
    buttons->addWidget(m_end);
    m_tree = new SessionTree(m_buttons->sizeHint().width());
    m_tree->hide();

    auto* line = new QHBoxLayout;
    line->setSpacing(0);
    line->addWidget(m_header, 1);
    line->addWidget(m_buttons);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 1, 0, 0);
    column->setSpacing(0);
    column->addLayout(line);
    column->addWidget(m_tree);

    actOnPressed(m_header, m_session, [this](const Session& session) { Q_EMIT toggled(session); });
    connect(m_header, &SessionHeader::endRequested, this, [this] {
        if (!m_isEnding)
            Q_EMIT triggered(SessionAction::end, m_session);
    });
}

IconButton* SessionRow::addButton(const QString& symbol, const QString& help, SessionAction action) {
    auto* button = new IconButton(symbol, help);
    actOnPressed(button, m_session,
                 [this, action](const Session& session) { Q_EMIT triggered(action, session); });
    m_buttons->layout()->addWidget(button);
    return button;
}

void SessionRow::set(const Session& session, const Setting& setting) {
    m_session = session;
    m_header->set(session, setting.now, setting.largestBytes);
    m_header->setExpanded(setting.isExpanded);
    const bool isPaused = session.state == SessionState::paused;
    const bool hadFocus = m_pause->hasFocus() || m_resume->hasFocus();
    m_pause->setVisible(!isPaused);
    m_resume->setVisible(isPaused);
    if (hadFocus)
        (isPaused ? m_resume : m_pause)->setFocus();
    for (IconButton* button : {m_pause, m_resume, m_folder, m_copy})
        nameRowButton(button, button->toolTip(), Formatters::visible(session.title()));
    nameRowButton(m_end, m_end->toolTip(), Formatters::visible(session.title()));
    m_folder->setEnabled(!session.folder.isEmpty());
    showEnding(setting.isEnding);
    if (setting.isExpanded)
        m_tree->set(session.processes, setting.now);
    m_tree->setVisible(setting.isExpanded);
    if (m_isFirst != setting.isFirst) {
        m_isFirst = setting.isFirst;
        update();
    }
}

void SessionRow::showEnding(bool isEnding) {
    if (isEnding == m_isEnding)
        return;
    m_isEnding = isEnding;
    const QList<QWidget*> buttons = {m_pause, m_resume, m_end};
    for (QWidget* button : buttons)
        KeptFocus::setEnabled(button, !isEnding);
    m_end->setBusy(isEnding);
}

void SessionRow::paintEvent(QPaintEvent*) {
    if (m_isFirst)
        return;
    QPainter painter(this);
    painter.fillRect(0, 0, width(), 1, Theme::color(Theme::Role::separator));
}

void SessionRow::contextMenuEvent(QContextMenuEvent* event) {
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    fill(*menu);
    menu->popup(event->globalPos());
}

void SessionRow::fill(QMenu& menu) {
    const auto add = [this, &menu](const QString& text, SessionAction action) {
        return menu.addAction(text, this,
                              [this, action, session = m_session] { Q_EMIT triggered(action, session); });
    };
    if (m_session.state == SessionState::paused)
        add(tr("Resume"), SessionAction::resume)->setEnabled(!m_isEnding);
    else
        add(tr("Pause…"), SessionAction::pause)->setEnabled(!m_isEnding);
    add(tr("Open folder"), SessionAction::openFolder)->setEnabled(!m_session.folder.isEmpty());
    add(tr("Copy details"), SessionAction::copyDetails);
    menu.addSeparator();
    add(tr("End session…"), SessionAction::end)->setEnabled(!m_isEnding);
}
