#include "UI/Kit/ScrollingPage.h"

#include "UI/Style/Margins.h"

#include <QScrollArea>
#include <QVBoxLayout>

QVBoxLayout* makeScrollingPage(QScrollArea* area, const QMargins& margins, int spacing) {
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(mirrored(margins));
    column->setSpacing(spacing);
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
