#include "UI/Optimize/CachesCard.h"

#include "Core/Cleanup/CacheCleanup.h"
#include "Core/Cleanup/CleanupOverlap.h"
#include "Core/Formatters.h"
#include "Core/Translations.h"
#include "UI/Cleanup/CleanupTexts.h"
#include "UI/Kit/KeptFocus.h"
#include "UI/Kit/PushButton.h"
#include "UI/Kit/TextLabel.h"

#include <QHBoxLayout>

#include <algorithm>
#include <functional>

using Theme::Role;
using Theme::TextStyle;

namespace {

constexpr qsizetype shownTargets = 4;
constexpr int chipGap = 24;

} // namespace

/// The name of a target over its size.
class CacheChip : public QWidget {
public:
    CacheChip() {
        m_size->setForegroundRole(QPalette::Link); // the theme's blue, in both schemes
        auto* column = new QVBoxLayout(this);
        column->setContentsMargins(0, 0, 0, 0);
        column->setSpacing(Theme::textGap);
        column->addWidget(m_name);
        column->addWidget(m_size);
    }

    void set(const CacheTarget& target) {
        m_name->setPlainText(Translations::of(target.name));
        m_size->setPlainText(Formatters::bytes(target.sizeBytes));
    }

private:
    TextLabel* m_name = new TextLabel(TextStyle::caption);
    TextLabel* m_size = new TextLabel(TextStyle::caption, QFont::DemiBold);
};

CachesCard::CachesCard(QWidget* parent)
    : OptimizeCard(tr("Caches"), QString(), QStringLiteral("trash"), Role::blue, parent)
    , m_chipRow(new QHBoxLayout)
    , m_chips([this] {
        auto* chip = new CacheChip;
        m_chipRow->addWidget(chip);
        return chip;
    })
    , m_cancel(new PushButton(tr("Stop")))
    , m_clean(new PushButton(tr("Clean All"), PushButton::Look::prominent, QStringLiteral("trash.fill"))) {
    m_clean->setTint(Role::red);
    m_cancel->setAccessibleName(tr("Stop cleaning"));
    m_cancel->hide();
    connect(m_clean, &QPushButton::clicked, this, &CachesCard::cleanAllRequested);
    connect(m_cancel, &QPushButton::clicked, this, &CachesCard::cancelRequested);
    auto* row = new QHBoxLayout;
    for (QHBoxLayout* each : {row, m_chipRow})
        each->setSpacing(chipGap);
    m_chips.reserve(shownTargets);
    row->addLayout(m_chipRow);
    row->addStretch();
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(Theme::rowSpacing);
    buttons->addWidget(m_cancel);
    buttons->addWidget(m_clean);
    row->addLayout(buttons);
    content()->addLayout(row);
    m_state = addLine(QString());
}

void CachesCard::refresh(const CacheCleanup& cleanup) {
    const QList<CacheTarget>& targets = cleanup.reclaimable();
    if (cleanup.isCleaning())
        setSubtitle(CleanupTexts::progress(cleanup.report().wasCancelled ? tr("Stopping %1 (%2 of %3)")
                                                                         : tr("Cleaning %1 (%2 of %3)"),
                                           *cleanup.cleanProgress()));
    else
        setSubtitle(tr("%1 reclaimable across %2 targets")
                        .arg(Formatters::bytes(CleanupOverlap::totalBytes(targets)))
                        .arg(targets.size()));
    refreshChips(targets);
    refreshState(cleanup);
    KeptFocus::setVisible(m_cancel, cleanup.isCleaning());
    KeptFocus::setEnabled(m_clean,
                          !m_cleaning && !cleanup.isCleaning() && !cleanup.targetsToClean().isEmpty());
}

/// Says that sizes are being measured, or that nobody has measured them.
void CachesCard::refreshState(const CacheCleanup& cleanup) {
    const auto isMeasured = [](const CacheTarget& target) { return target.lastScanned.has_value(); };
    QString text;
    if (cleanup.isScanning())
        text = CleanupTexts::progress(tr("Measuring %1 (%2 of %3)"), *cleanup.scanProgress());
    else if (std::ranges::none_of(cleanup.targets(), isMeasured))
        text = tr("Nothing is measured yet. “Rescan” in the section Cleanup does that.");
    m_state->setPlainText(text);
    m_state->setVisible(!text.isEmpty());
}

void CachesCard::refreshChips(QList<CacheTarget> targets) {
    std::ranges::stable_sort(targets, std::ranges::greater(), &CacheTarget::sizeBytes);
    m_chips.show(std::min(targets.size(), shownTargets),
                 [&targets](CacheChip& chip, qsizetype i) { chip.set(targets[i]); });
}

void CachesCard::setCleaning(bool cleaning) {
    m_cleaning = cleaning;
    m_clean->setBusy(cleaning);
}
