#include "UI/Optimize/CachesCard.h"

#include "Core/Formatters.h"
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
    : OptimizeCard(QStringLiteral("Caches"), QString(), QStringLiteral("trash"), Role::blue, parent)
    , m_clean(new PushButton(QStringLiteral("Clean All"), PushButton::Look::prominent,
                             QStringLiteral("trash.fill"))) {
    m_clean->setTint(Role::red);
    connect(m_clean, &QPushButton::clicked, this, &CachesCard::cleanAllRequested);
    auto* row = new QHBoxLayout;
    row->setSpacing(chipGap);
    for (qsizetype i = 0; i < shownTargets; ++i) {
        m_chips.append(makeChip());
        row->addWidget(m_chips.last().widget);
    }
    row->addStretch();
    row->addWidget(m_clean);
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

void CachesCard::refresh(const QList<CacheTarget>& targets) {
    quint64 total = 0;
    for (const CacheTarget& target : targets)
        total += target.sizeBytes;
    setSubtitle(
        QStringLiteral("%1 reclaimable across %2 targets").arg(Formatters::bytes(total)).arg(targets.size()));
    QList<CacheTarget> largest = targets;
    std::ranges::stable_sort(largest, std::ranges::greater(), &CacheTarget::sizeBytes);
    for (qsizetype i = 0; i < m_chips.size(); ++i) {
        const bool isUsed = i < largest.size();
        m_chips[i].widget->setVisible(isUsed);
        if (isUsed) {
            m_chips[i].name->setPlainText(largest[i].name);
            m_chips[i].size->setPlainText(Formatters::bytes(largest[i].sizeBytes));
        }
    }
    m_clean->setEnabled(total > 0 && !m_cleaning);
}

void CachesCard::setCleaning(bool cleaning) {
    m_cleaning = cleaning;
    m_clean->setBusy(cleaning);
    m_clean->setEnabled(!cleaning);
}
