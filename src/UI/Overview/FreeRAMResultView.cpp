#include "UI/Overview/FreeRAMResultView.h"

#include "Core/Formatters.h"
#include "UI/Kit/ScrollingPage.h"
#include "UI/Kit/SymbolView.h"
#include "UI/Kit/TextLabel.h"
#include "UI/Style/Symbols.h"

#include <QHBoxLayout>
#include <QScrollArea>

#include <algorithm>

using Theme::Role;
using Theme::TextStyle;

namespace {

constexpr int resultRowHeight = 22;
constexpr int maxRowsShown = 5;

struct ResultLook {
    QString symbol;
    Role role;
    QString text;
};

ResultLook lookOf(KillOutcome outcome) {
    const ResultLook looks[] = {
        {QStringLiteral("checkmark.circle.fill"), Role::green, FreeRAMResultView::tr("Quit")},
        {QStringLiteral("bolt.fill"), Role::orange, FreeRAMResultView::tr("Force-killed")},
        {QStringLiteral("questionmark.circle.fill"), Role::yellow,
         FreeRAMResultView::tr("Ignored SIGTERM/KILL")},
        {QStringLiteral("lock.fill"), Role::red, FreeRAMResultView::tr("Permission denied")}};
    return looks[static_cast<int>(outcome)];
}

/// One process: symbol, name, PID and outcome.
class OutcomeRow : public QWidget {
public:
    explicit OutcomeRow(const FreeRAMResult::Record& record)
        : m_look(lookOf(record.outcome))
        , m_name(Formatters::visible(record.name))
        , m_pid(QStringLiteral("(%1)").arg(record.pid)) {
        setFixedHeight(resultRowHeight);
        setAccessibleName(QStringLiteral("%1 %2 %3").arg(m_name, m_pid, m_look.text));
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        QRectF line = rect();
        Symbols::draw(painter, m_look.symbol, Theme::color(m_look.role),
                      QRectF(0, 0, Theme::iconColumn, height()), 14);
        line.setLeft(Theme::iconColumn + 4);
        Painting::setTextStyle(painter, TextStyle::caption, m_look.role, QFont::Medium);
        const double outcomeWidth = QFontMetricsF(painter.font()).horizontalAdvance(m_look.text);
        Painting::drawElided(painter, QRectF(line.right() - outcomeWidth - 1, 0, outcomeWidth + 1, height()),
                             Qt::ElideRight, m_look.text);
        Painting::setTextStyle(painter, TextStyle::caption, Role::primaryText);
        const QFontMetricsF metrics(painter.font());
        const double pidWidth = metrics.horizontalAdvance(m_pid) + Theme::rowSpacing;
        line.setRight(line.right() - outcomeWidth - Theme::rowSpacing - pidWidth);
        const QString name = metrics.elidedText(m_name, Qt::ElideMiddle, line.width());
        Painting::drawElided(painter, line, Qt::ElideMiddle, m_name);
        Painting::setTextStyle(painter, TextStyle::caption2, Role::secondaryText);
        line.setLeft(line.left() + metrics.horizontalAdvance(name) + 6);
        line.setRight(line.left() + pidWidth);
        Painting::drawTabular(painter, line, Qt::AlignLeft, m_pid);
    }

private:
    ResultLook m_look;
    QString m_name;
    QString m_pid;
};

} // namespace

FreeRAMResultView::FreeRAMResultView(QWidget* parent)
    : Card(parent, Role::green)
    , m_freed(new TextLabel(TextStyle::body, QFont::DemiBold))
    , m_nudged((new TextLabel(TextStyle::caption))->secondary())
    , m_promised((new TextLabel(TextStyle::caption))->secondary()->wrapped())
    , m_area(new QScrollArea)
    , m_rowsLayout(makeScrollingPage(m_area, {}, 0)) {
    auto* symbol = new SymbolView(Theme::iconSize, Theme::iconColumn);
    symbol->set(QStringLiteral("checkmark.seal.fill"), Role::green);
    m_nudged->setPlainText(tr("• memory_pressure nudged"));
    auto* head = new QHBoxLayout;
    head->setSpacing(6);
    head->addWidget(symbol);
    head->addWidget(m_freed);
    head->addWidget(m_nudged);
    head->addStretch();

    m_area->setFocusPolicy(Qt::NoFocus);
    m_area->viewport()->setAutoFillBackground(false);
    m_area->widget()->setAutoFillBackground(false);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Theme::cardPadding, 10, Theme::cardPadding, 10);
    column->setSpacing(4);
    column->addLayout(head);
    column->addWidget(m_promised);
    column->addWidget(m_area);
    hide();
}

void FreeRAMResultView::set(const FreeRAMResult& result) {
    m_freed->setPlainText(tr("Freed ~%1").arg(Formatters::bytes(result.freedBytes)));
    m_nudged->setVisible(result.memoryPressureSignaled);
    const auto size = [](quint64 bytes) { return Formatters::bytes(bytes); };
    m_promised->setPlainText(tr("Promised: %1 in memory, %2 in swap. Came back: %3 in memory, %4 in swap.")
                                 .arg(size(result.promised.memoryBytes), size(result.promised.swapBytes),
                                      size(result.freedBytes), size(result.freedSwapBytes)));
    m_promised->setVisible(!result.perPid.isEmpty());
    qDeleteAll(m_rows);
    m_rows.clear();
    for (const FreeRAMResult::Record& record : result.perPid) {
        m_rows.append(new OutcomeRow(record));
        m_rowsLayout->addWidget(m_rows.last());
    }
    const auto shown = std::min<qsizetype>(m_rows.size(), maxRowsShown);
    m_area->setFixedHeight(static_cast<int>(shown) * resultRowHeight);
    m_area->setVisible(!m_rows.isEmpty());
}
