#include "UI/Cleanup/CacheDetailDrawer.h"

#include "Core/Formatters.h"
#include "Core/Translations.h"
#include "UI/Cleanup/CleanupConfirmation.h"
#include "UI/Cleanup/CleanupPreview.h"
#include "UI/Kit/Card.h"
#include "UI/Kit/PushButton.h"
#include "UI/Kit/SheetSize.h"
#include "UI/Kit/SymbolView.h"
#include "UI/Kit/TextLabel.h"

#include <QHBoxLayout>

using Theme::Role;
using Theme::TextStyle;

namespace {

constexpr QSize minSize(620, 560);

} // namespace

CacheDetailDrawer::CacheDetailDrawer(CacheCleanup& cleanup, CacheTarget target, Instant now, QWidget* parent)
    : QDialog(parent)
    , m_cleanup(cleanup)
    , m_target(std::move(target))
    , m_now(now)
    , m_clean(new PushButton({}, PushButton::Look::prominent, QStringLiteral("trash"))) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    setWindowTitle(Translations::of(m_target.name));
    setMinimumSize(fittingSheet(minSize));

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

    column->addLayout(makeActions());
    refresh();
}

/// Files of the user can go to the trash instead, but for those that are there.
QLayout* CacheDetailDrawer::makeActions() {
    m_clean->setTint(Role::red);
    connect(m_clean, &QPushButton::clicked, this, &CacheDetailDrawer::confirm);
    auto* row = new QHBoxLayout;
    row->setSpacing(Theme::rowSpacing);
    row->addStretch();
    if (m_target.rule.hasUserFiles && m_target.rule.measure == CleanupRule::Measure::oldFiles) {
        m_trash = new PushButton(tr("Move to Trash"));
        connect(m_trash, &QPushButton::clicked, this, [this] {
            Q_EMIT trashRequested(chosen(), leftOut());
            accept();
        });
        row->addWidget(m_trash);
    }
    row->addWidget(m_clean);
    return row;
}

CacheTarget CacheDetailDrawer::chosen() const {
    return m_preview ? m_preview->chosen().value(0) : m_target;
}

QStringList CacheDetailDrawer::leftOut() const {
    return m_preview ? m_preview->leftOut() : QStringList();
}

QLayout* CacheDetailDrawer::makeHeader() {
    auto* symbol = new SymbolView({22}, Theme::iconColumn);
    symbol->set(m_target.symbol, Role::accent);
    auto* title = new TextLabel(TextStyle::title2, QFont::Bold);
    title->setPlainText(windowTitle());
    auto* close = new PushButton(tr("Close"));
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    auto* row = new QHBoxLayout;
    row->setSpacing(Theme::rowSpacing);
    row->addWidget(symbol);
    row->addWidget(title, 1);
    row->addWidget(close);
    return row;
}

QLayout* CacheDetailDrawer::makeLine(const QString& symbol, const QString& text) const {
    auto* icon = new SymbolView({14}, Theme::iconSize);
    icon->set(symbol, Role::secondaryText);
    auto* label = (new TextLabel(TextStyle::caption))->secondary()->wrapped();
    label->setPlainText(text);
    auto* row = new QHBoxLayout;
    row->setSpacing(Theme::rowSpacing);
    row->addWidget(icon);
    row->addWidget(label, 1);
    return row;
}

QWidget* CacheDetailDrawer::makeBreakdown() {
    if (m_target.details.isEmpty() && m_target.listed.isEmpty()) {
        auto* empty = (new TextLabel(TextStyle::body))->secondary();
        empty->setPlainText(m_target.lastScanned ? tr("Nothing found.")
                                                 : tr("Rescan to see what it consists of."));
        empty->setAlignment(Qt::AlignTop | Qt::AlignLeft);
        return empty;
    }
    m_preview = new CleanupPreview(m_cleanup, {m_target}, CleanupChoice::Levels::ofFolders, m_now);
    connect(m_preview, &CleanupPreview::changed, this, &CacheDetailDrawer::refresh);
    return m_preview;
}

void CacheDetailDrawer::refresh() {
    const quint64 bytes = m_preview ? m_preview->sum().bytes : m_target.sizeBytes;
    m_clean->setText(tr("Clean %1").arg(Formatters::bytes(bytes)));
    m_clean->setEnabled(bytes > 0 && (!m_preview || !m_preview->isEmpty()));
    if (m_trash)
        m_trash->setEnabled(m_preview && m_clean->isEnabled());
}

void CacheDetailDrawer::confirm() {
    const CacheTarget target = chosen();
    CleanupConfirmation::ask(this, this, target, [this, target] {
        Q_EMIT cleanRequested(target, leftOut());
        accept();
    });
}
