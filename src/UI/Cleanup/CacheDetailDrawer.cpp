#include "UI/Cleanup/CacheDetailDrawer.h"

#include "Core/Cleanup/CleanupPlan.h"
#include "Core/Formatters.h"
#include "Core/Translations.h"
#include "UI/Cleanup/CleanupConfirmation.h"
#include "UI/Kit/Card.h"
#include "UI/Kit/PushButton.h"
#include "UI/Kit/SizeList.h"
#include "UI/Kit/SymbolView.h"
#include "UI/Kit/TextLabel.h"

#include <QHBoxLayout>

using Theme::Role;
using Theme::TextStyle;

namespace {

constexpr QSize minSize(460, 480);
constexpr qsizetype maxListedNames = 20;

/// Adds what a clean removes besides the entries of the breakdown.
void addNames(SizeList& list, const CacheTarget& target) {
    const CleanupPlan::Names names = CleanupPlan::namesOf(target, maxListedNames);
    const bool isInBreakdown = target.rule.measure == CleanupRule::Measure::oldFiles;
    const qsizetype shown = isInBreakdown ? target.details.size() : names.shown.size();
    if (!isInBreakdown && shown > 0) {
        list.addHeading(CacheDetailDrawer::tr("What goes"));
        for (const CacheEntry& entry : names.shown)
            list.addRow({.name = entry.path, .figure = Formatters::bytes(entry.sizeBytes)});
    }
    if (names.count > shown)
        list.addLine(CacheDetailDrawer::tr("and %1 more").arg(names.count - shown));
}

void addVolumes(SizeList& list, const CacheTarget& target) {
    const qsizetype count = target.volumes.size();
    list.addHeading(count == 0
                        ? CacheDetailDrawer::tr("No volumes go")
                        : CacheDetailDrawer::tr("Volumes that go, with all that is in them: %1").arg(count));
    for (const QString& volume : target.volumes)
        list.addRow({.name = volume});
}

} // namespace

CacheDetailDrawer::CacheDetailDrawer(CacheTarget target, QWidget* parent)
    : QDialog(parent)
    , m_target(std::move(target)) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    setWindowTitle(Translations::of(m_target.name));
    setMinimumSize(minSize);

    auto* size = new TextLabel(TextStyle::title, QFont::Bold);
    size->setPlainText(tr("%1 reclaimable").arg(Formatters::bytes(m_target.sizeBytes)));
    size->setForegroundRole(QPalette::Link);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Theme::sheetMargins);
    column->setSpacing(12);
    column->addLayout(makeHeader());
    column->addWidget(size);
    if (m_target.pruneCommand)
        column->addLayout(
            makeLine(QStringLiteral("terminal"), tr("Will run: %1").arg(*m_target.pruneCommand)));
    for (const QString& note : m_target.notes)
        column->addLayout(makeLine(QStringLiteral("info.circle.fill"), note));
    column->addWidget(new Divider);
    auto* caption = (new TextLabel(TextStyle::caption))->secondary();
    caption->setPlainText(tr("Breakdown"));
    column->addWidget(caption);
    column->addWidget(makeBreakdown(), 1);

    auto* clean = new PushButton(tr("Clean %1").arg(Formatters::bytes(m_target.sizeBytes)),
                                 PushButton::Look::prominent, QStringLiteral("trash"));
    clean->setTint(Role::red);
    connect(clean, &QPushButton::clicked, this, &CacheDetailDrawer::confirm);
    column->addWidget(clean, 0, Qt::AlignRight);
}

QLayout* CacheDetailDrawer::makeHeader() {
    auto* symbol = new SymbolView(22, Theme::iconColumn);
    symbol->set(m_target.symbol, Role::accent);
    auto* title = new TextLabel(TextStyle::title2, QFont::Bold);
    title->setPlainText(windowTitle());
    auto* close = new PushButton(tr("Close"));
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    auto* row = new QHBoxLayout;
    row->setSpacing(10);
    row->addWidget(symbol);
    row->addWidget(title, 1);
    row->addWidget(close);
    return row;
}

QLayout* CacheDetailDrawer::makeLine(const QString& symbol, const QString& text) const {
    auto* icon = new SymbolView(14, Theme::iconSize);
    icon->set(symbol, Role::secondaryText);
    auto* label = (new TextLabel(TextStyle::caption))->secondary()->wrapped();
    label->setPlainText(text);
    auto* row = new QHBoxLayout;
    row->setSpacing(6);
    row->addWidget(icon);
    row->addWidget(label, 1);
    return row;
}

QWidget* CacheDetailDrawer::makeBreakdown() const {
    auto* list = new SizeList(tr("Breakdown"));
    for (const CacheEntry& entry : m_target.details)
        list->addRow({.name = entry.path, .figure = Formatters::bytes(entry.sizeBytes)});
    if (m_target.details.isEmpty())
        list->addLine(m_target.lastScanned ? tr("Nothing found.") : tr("Rescan to see what it consists of."));
    addNames(*list, m_target);
    if (m_target.rule.measure == CleanupRule::Measure::containers && !m_target.details.isEmpty())
        addVolumes(*list, m_target);
    return list;
}

void CacheDetailDrawer::confirm() {
    CleanupConfirmation::ask(this, this, m_target, [this] {
        Q_EMIT cleanRequested(m_target);
        accept();
    });
}
