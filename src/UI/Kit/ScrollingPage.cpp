#include "UI/Kit/ScrollingPage.h"

#include "UI/Style/Margins.h"
#include "UI/Style/Theme.h"

#include <QScrollArea>
#include <QVBoxLayout>

QVBoxLayout* makeScrollingPage(QScrollArea* area, const QMargins& margins, int spacing) {
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(mirrored(margins));
    column->setSpacing(spacing);
    Theme::limitWidth(page, {Theme::maxContentWidth.pixels + margins.left() + margins.right()});
    area->setWidget(page);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    useSlimScrollBar(area);
    return column;
}

void useSlimScrollBar(QAbstractScrollArea* area) {
    area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

QLayout* beforeScrollBar(QLayout* line) {
    auto* row = new QHBoxLayout;
    row->setContentsMargins(0, 0, Theme::scrollBarRoom, 0);
    row->addLayout(line);
    return row;
}

QLayout* beforeScrollBar(QWidget* part, Qt::Alignment alignment) {
    auto* line = new QHBoxLayout;
    line->addWidget(part, 0, alignment);
    return beforeScrollBar(line);
}
