#include "UI/Cleanup/CacheDetailDrawer.h"

#include "Core/Formatters.h"
#include "UI/Kit/ConfirmDialog.h"
#include "UI/Kit/Divider.h"
#include "UI/Kit/Painting.h"
#include "UI/Kit/SlimScrollBar.h"
#include "UI/Kit/Symbols.h"
#include "UI/Kit/TextLabel.h"
#include "UI/Kit/ToolTip.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QScrollArea>

using Theme::Role;
using Theme::TextStyle;

namespace {

constexpr QSize leastSize(460, 480);
constexpr int rowHeight = 26;

/// A path and what it holds.
class BreakdownRow : public QWidget {
public:
    explicit BreakdownRow(const CacheEntry& entry)
        : m_path(Formatters::visible(entry.path))
        , m_size(Formatters::bytes(entry.sizeBytes)) {
        setFixedHeight(rowHeight);
        setToolTip(plainToolTip(m_path));
        setAccessibleName(QStringLiteral("%1, %2").arg(m_path, m_size));
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setFont(Theme::font(TextStyle::callout));
        painter.setPen(Theme::color(Role::primaryText));
        QRectF line = rect();
        Painting::drawTabular(painter, line, Qt::AlignRight, m_size);
        line.setRight(line.right() - Painting::tabularWidth(painter.font(), m_size) - Theme::gridSpacing);
        painter.setPen(Theme::color(Role::secondaryText));
        Painting::drawElided(painter, line, Qt::ElideMiddle, m_path);
    }

private:
    QString m_path;
    QString m_size;
};

} // namespace

CacheDetailDrawer::CacheDetailDrawer(CacheTarget target, QWidget* parent)
    : QDialog(parent)
    , m_target(std::move(target)) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    setWindowTitle(m_target.name);
    setMinimumSize(leastSize);

    auto* size = new TextLabel(TextStyle::title, QFont::Bold);
    size->setPlainText(QStringLiteral("%1 reclaimable").arg(Formatters::bytes(m_target.sizeBytes)));
    size->setForegroundRole(QPalette::Link);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Theme::pagePadding, Theme::pagePadding, Theme::pagePadding,
                               Theme::pagePadding);
    column->setSpacing(12);
    column->addLayout(makeHeader());
    column->addWidget(size);
    if (m_target.pruneCommand) {
        auto* symbol = new SymbolView(14, Theme::iconSize);
        symbol->set(QStringLiteral("terminal"), Role::secondaryText);
        auto* command = (new TextLabel(TextStyle::caption))->secondary()->wrapped();
        command->setPlainText(QStringLiteral("Will run: ") + *m_target.pruneCommand);
        auto* row = new QHBoxLayout;
        row->setSpacing(6);
        row->addWidget(symbol);
        row->addWidget(command, 1);
        column->addLayout(row);
    }
    column->addWidget(new Divider);
    auto* caption = (new TextLabel(TextStyle::caption))->secondary();
    caption->setPlainText(QStringLiteral("Breakdown"));
    column->addWidget(caption);
    column->addWidget(makeBreakdown(), 1);

    auto* clean = new PushButton(QStringLiteral("Clean %1").arg(Formatters::bytes(m_target.sizeBytes)),
                                 PushButton::Look::prominent, QStringLiteral("trash"));
    clean->setTint(Role::red);
    connect(clean, &QPushButton::clicked, this, &CacheDetailDrawer::confirm);
    column->addWidget(clean, 0, Qt::AlignRight);
}

QLayout* CacheDetailDrawer::makeHeader() {
    auto* symbol = new SymbolView(22, Theme::iconColumn);
    symbol->set(m_target.symbol, Role::accent);
    auto* title = new TextLabel(TextStyle::title2, QFont::Bold);
    title->setPlainText(m_target.name);
    auto* close = new PushButton(QStringLiteral("Close"));
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    auto* row = new QHBoxLayout;
    row->setSpacing(10);
    row->addWidget(symbol);
    row->addWidget(title, 1);
    row->addWidget(close);
    return row;
}

QWidget* CacheDetailDrawer::makeBreakdown() const {
    auto* rows = new QWidget;
    auto* column = new QVBoxLayout(rows);
    column->setContentsMargins(0, 0, Theme::rowSpacing, 0);
    column->setSpacing(0);
    for (const CacheEntry& entry : m_target.details)
        column->addWidget(new BreakdownRow(entry));
    if (m_target.details.isEmpty()) {
        auto* nothing = (new TextLabel(TextStyle::callout))->secondary();
        nothing->setPlainText(m_target.lastScanned ? QStringLiteral("Nothing found.")
                                                   : QStringLiteral("Rescan to see what it consists of."));
        column->addWidget(nothing);
    }
    column->addStretch();
    auto* area = new QScrollArea;
    area->setWidget(rows);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    SlimScrollBar::install(area);
    return area;
}

void CacheDetailDrawer::confirm() {
    auto* dialog =
        new ConfirmDialog(this, QStringLiteral("Delete %1?").arg(m_target.name),
                          QStringLiteral("Deleting cache files. Apps will rebuild caches as needed."));
    auto* remove = dialog->addAction(QStringLiteral("Delete %1").arg(Formatters::bytes(m_target.sizeBytes)),
                                     PushButton::Look::destructive);
    connect(remove, &QPushButton::clicked, this, [this] {
        Q_EMIT cleanRequested(m_target);
        accept();
    });
    dialog->open();
}
