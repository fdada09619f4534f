#include "UI/Kit/ScrollingPage.h"

#include "UI/Kit/SlimScrollBar.h"

#include <QScrollArea>
#include <QVBoxLayout>

QVBoxLayout* makeScrollingPage(QScrollArea* area, const QMargins& margins, int spacing) {
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(margins);
    column->setSpacing(spacing);
    area->setWidget(page);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    SlimScrollBar::install(area);
    return column;
}
