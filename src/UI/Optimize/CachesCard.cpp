#include "UI/Optimize/CachesCard.h"

#include "AppModel.h"
#include "Core/Cleanup/CleanupPlan.h"
#include "Core/Formatters.h"
#include "Core/Translations.h"
#include "UI/Cleanup/CleanupTexts.h"
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

CachesCard::CachesCard(QWidget* parent)
    : OptimizeCard(tr("Caches"), QString(), QStringLiteral("trash"), Role::blue, parent)
    , m_cancel(new PushButton(tr("Cancel")))
    , m_clean(new PushButton(tr("Clean All"), PushButton::Look::prominent, QStringLiteral("trash.fill"))) {
    m_clean->setTint(Role::red);
    m_cancel->setAccessibleName(tr("Cancel cleaning"));
    m_cancel->hide();
    connect(m_clean, &QPushButton::clicked, this, &CachesCard::cleanAllRequested);
    connect(m_cancel, &QPushButton::clicked, this, &CachesCard::cancelRequested);
    auto* row = new QHBoxLayout;
    row->setSpacing(chipGap);
    for (qsizetype i = 0; i < shownTargets; ++i) {
        m_chips.append(makeChip());
        row->addWidget(m_chips.last().widget);
    }
    row->addStretch();
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(Theme::rowSpacing);
    buttons->addWidget(m_cancel);
    buttons->addWidget(m_clean);
    row->addLayout(buttons);
    content()->addLayout(row);
}

CachesCard::Chip CachesCard::makeChip() const {
    Chip chip{.widget = new QWidget,
              .name = new TextLabel(TextStyle::caption),
              .size = new TextLabel(TextStyle::caption, QFont::DemiBold)};
    chip.size->setForegroundRole(QPalette::Link); // the theme's blue, in both schemes
    auto* column = new QVBoxLayout(chip.widget);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Theme::textGap);
    column->addWidget(chip.name);
    column->addWidget(chip.size);
    return chip;
}

void CachesCard::refresh(const AppModel& model) {
    const QList<CacheTarget>& targets = model.cacheTargets();
    if (model.isCleaning())
        setSubtitle(CleanupTexts::progress(model.cleanReport().wasCancelled ? tr("Cancelling %1 (%2 of %3)")
                                                                            : tr("Cleaning %1 (%2 of %3)"),
                                           *model.cleanProgress()));
    else
        setSubtitle(tr("%1 reclaimable across %2 targets")
                        .arg(Formatters::bytes(CleanupPlan::totalBytes(targets)))
                        .arg(targets.size()));
    refreshChips(targets);
    m_cancel->setVisible(model.isCleaning());
    m_clean->setEnabled(!m_cleaning && !model.isCleaning() && !model.targetsToClean().isEmpty());
}

void CachesCard::refreshChips(QList<CacheTarget> targets) {
    std::ranges::stable_sort(targets, std::ranges::greater(), &CacheTarget::sizeBytes);
    for (qsizetype i = 0; i < m_chips.size(); ++i) {
        const bool isUsed = i < targets.size();
        m_chips[i].widget->setVisible(isUsed);
        if (isUsed) {
            m_chips[i].name->setPlainText(Translations::of(targets[i].name));
            m_chips[i].size->setPlainText(Formatters::bytes(targets[i].sizeBytes));
        }
    }
}

void CachesCard::setCleaning(bool cleaning) {
    m_cleaning = cleaning;
    m_clean->setBusy(cleaning);
}
