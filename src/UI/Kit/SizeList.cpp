#include "UI/Kit/SizeList.h"

#include "Core/Formatters.h"
#include "UI/Kit/ClampedLabel.h"
#include "UI/Kit/ScrollingPage.h"
#include "UI/Style/Painting.h"

#include <QEvent>
#include <QPainter>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

using Theme::Role;
using Theme::TextStyle;

namespace {

constexpr Theme::Length lineHeight{26};
constexpr int edge = 3; ///< room for the ring round the viewport
constexpr int sizeRowPadding = 8;
constexpr int maxDetailLines = 2;
constexpr int detailGap = 4;

class RowView : public QWidget {
public:
    explicit RowView(const SizeList::Row& row)
        : m_name(Formatters::visible(row.name))
        , m_figure(row.figure) {
        auto* column = new QVBoxLayout(this);
        column->setContentsMargins(0, lineHeight, 0, 0);
        QStringList spoken{m_name};
        if (!m_figure.isEmpty())
            spoken.append(m_figure);
        if (!row.detail.isEmpty()) {
            auto* detail = new ClampedLabel(maxDetailLines, TextStyle::caption);
            if (row.isGrave)
                detail->tinted(Role::red);
            else
                detail->secondary();
            detail->setPlainText(row.detail);
            column->setContentsMargins(0, lineHeight - textOverlap, 0, detailGap);
            column->addWidget(detail);
            spoken.append(detail->text());
        }
        setToolTip(Formatters::toolTip(m_name));
        setAccessibleName(Formatters::list(spoken));
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        Painting::mirror(painter, *this);
        Painting::setTextStyle(painter, TextStyle::callout, Role::primaryText);
        QRectF line(0, 0, width(), lineHeight);
        if (!m_figure.isEmpty()) {
            Painting::drawTabular(painter, line, Qt::AlignRight, m_figure);
            line.setRight(line.right() - Painting::tabularWidth(painter.font(), m_figure) -
                          Theme::gridSpacing);
        }
        Painting::drawElided(painter, line, Qt::ElideMiddle, m_name);
    }

private:
    static constexpr Theme::Length textOverlap{4}; ///< the line is higher than its text

    QString m_name;
    QString m_figure;
};

} // namespace

SizeList::SizeList(const QString& accessibleName, QWidget* parent)
    : QScrollArea(parent)
    , m_rows(makeScrollingPage(this, {sizeRowPadding, sizeRowPadding / 2, sizeRowPadding, sizeRowPadding / 2},
                               0)) {
    m_rows->addStretch();
    setViewportMargins(edge, edge, edge, edge);
    // The card below is visible through both.
    widget()->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
    setFocusPolicy(Qt::TabFocus);
    setAccessibleName(accessibleName);
}

void SizeList::addRow(const Row& row) {
    m_rows->insertWidget(m_rows->count() - 1, new RowView(row));
}

void SizeList::addHeading(const QString& text) {
    auto* heading = (new TextLabel(TextStyle::caption, QFont::DemiBold))->secondary();
    heading->setPlainText(text);
    heading->setContentsMargins(0, 0, 0, Theme::textGap);
    if (m_rows->count() > 1)
        m_rows->insertSpacing(m_rows->count() - 1, Theme::rowSpacing);
    m_rows->insertWidget(m_rows->count() - 1, heading);
}

void SizeList::addLine(const QString& text) {
    auto* line = (new TextLabel(TextStyle::callout))->secondary()->wrapped();
    line->setPlainText(text);
    line->setMinimumHeight(lineHeight);
    m_rows->insertWidget(m_rows->count() - 1, line);
}

void SizeList::fit(int width, int maxHeight) {
    const int inner = width - 2 * edge - verticalScrollBar()->sizeHint().width();
    const int needed = m_rows->hasHeightForWidth() ? m_rows->totalHeightForWidth(inner)
                                                   : m_rows->totalMinimumSize().height();
    setFixedSize(width, std::min(needed + 2 * edge, maxHeight));
}

bool SizeList::event(QEvent* event) {
    const bool done = QScrollArea::event(event);
    if (event->type() == QEvent::Paint) {
        QPainter painter(this);
        Painting::drawCard(painter, rect());
        if (hasFocus())
            Painting::drawFocusRing(painter, rect(), Theme::cardRadius);
    }
    return done;
}
