#include "UI/Cleanup/LeftoverRow.h"

#include "Core/Formatters.h"
#include "UI/Cleanup/LeftoverTexts.h"
#include "UI/Kit/Pressed.h"
#include "UI/Style/Painting.h"

#include <QFile>
#include <QPainter>

using Theme::Role;
using Theme::TextStyle;

namespace {

constexpr Theme::Length leftoverRowHeight{44};
constexpr Theme::Length leftoverTickSide{16};
constexpr double tickedStrength = 0.12;

} // namespace

LeftoverRow::LeftoverRow(QWidget* parent)
    : QAbstractButton(parent) {
    setCheckable(true);
    Theme::fixHeight(this, leftoverRowHeight);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setFocusPolicy(Qt::TabFocus);
    actOnPressed(this, m_path, [this](const QByteArray& path) { Q_EMIT ticked(path); });
}

QSize LeftoverRow::sizeHint() const {
    return {560, leftoverRowHeight};
}

void LeftoverRow::set(const LeftoverProject& project, bool isTicked, Instant now) {
    const QString lastUse = LeftoverTexts::lastUse(project, now);
    setChecked(isTicked);
    setEnabled(project.users.isEmpty());
    if (project == m_project && lastUse == m_lastUse)
        return;
    m_path = project.path;
    m_project = project;
    m_lastUse = lastUse;
    QStringList spoken{LeftoverTexts::pathOf(project), LeftoverTexts::folders(project),
                       Formatters::bytes(project.sizeBytes), lastUse, LeftoverTexts::note(project)};
    spoken.removeAll(QString());
    setAccessibleName(Formatters::list(spoken));
    setToolTip(Formatters::toolTip(spoken.first()));
    update();
}

void LeftoverRow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    Painting::mirror(painter, *this);
    const QRectF ground = QRectF(rect()).adjusted(0, 1, 0, -1);
    if (isChecked())
        Painting::drawCard(painter, ground, Theme::controlRadius, Theme::color(Role::accent, tickedStrength));
    Painting::drawFeedback(painter, *this, Theme::controlRadius, 0.6);

    QRectF line = QRectF(rect()).adjusted(padding, 0, -padding, 0);
    const QRectF box(line.left(), qRound(line.center().y() - leftoverTickSide / 2.0), leftoverTickSide,
                     leftoverTickSide);
    if (isEnabled())
        Painting::drawTickBox(painter, box, isChecked() ? Qt::Checked : Qt::Unchecked);
    line.setLeft(line.left() + leftoverTickSide + padding);
    Painting::setTextStyle(painter, TextStyle::body, Role::primaryText);
    Painting::drawTabular(painter, Painting::takeRight(line, sizeWidth), Qt::AlignRight,
                          Formatters::bytes(m_project.sizeBytes));
    const QRectF note = Painting::takeRight(line, noteWidth);
    Painting::setTextStyle(painter, TextStyle::caption, m_project.users.isEmpty() ? Role::orange : Role::red);
    Painting::drawElided(painter, note, Qt::ElideRight, LeftoverTexts::note(m_project));
    Painting::setTextStyle(painter, TextStyle::caption, Role::secondaryText);
    Painting::drawElided(painter, Painting::takeRight(line, lastUseWidth), Qt::ElideRight, m_lastUse);

    Painting::setTextStyle(painter, TextStyle::body, isEnabled() ? Role::primaryText : Role::secondaryText);
    Painting::drawElided(painter, line.adjusted(0, 4, 0, -line.height() / 2 + 1), Qt::ElideMiddle,
                         LeftoverTexts::pathOf(m_project));
    Painting::setTextStyle(painter, TextStyle::caption2, Role::secondaryText);
    Painting::drawElided(painter, line.adjusted(0, line.height() / 2, 0, -5), Qt::ElideRight,
                         LeftoverTexts::folders(m_project));
}
