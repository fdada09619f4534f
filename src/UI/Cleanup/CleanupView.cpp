#include "UI/Cleanup/CleanupView.h"

#include "AppModel.h"
#include "Core/Cleanup/CleanupOverlap.h"
#include "Core/Formatters.h"
#include "Preferences.h"
#include "UI/Cleanup/CacheCard.h"
#include "UI/Cleanup/CacheDetailDrawer.h"
#include "UI/Cleanup/CleanupConfirmation.h"
#include "UI/Cleanup/CleanupTexts.h"
#include "UI/Cleanup/LeaveOutOffer.h"
#include "UI/Cleanup/ProjectLeftoversSheet.h"
#include "UI/Kit/ClampedLabel.h"
#include "UI/Kit/FlowGrid.h"
#include "UI/Kit/KeptFocus.h"
#include "UI/Kit/OnScreen.h"
#include "UI/Kit/PushButton.h"
#include "UI/Kit/ScrollingPage.h"
#include "UI/Kit/Spinner.h"
#include "UI/Kit/TextLabel.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QPointer>
#include <QScrollArea>

#include <algorithm>

using Theme::TextStyle;

namespace {

constexpr Theme::Length minCardWidth{220};
constexpr int cacheCardGap = 12;

} // namespace

CleanupView::CleanupView(AppModel& model, Preferences& preferences, QWidget* parent)
    : QWidget(parent)
    , m_model(model)
    , m_preferences(preferences)
    , m_total((new TextLabel(TextStyle::callout))->secondary())
    , m_result(new ClampedLabel(2, TextStyle::callout))
    , m_showAll(new QCheckBox(tr("Show all")))
    , m_rescan(new PushButton(tr("Rescan"), PushButton::Look::normal, QStringLiteral("arrow.clockwise")))
    , m_cleanAll(new PushButton(tr("Clean All"), PushButton::Look::prominent, QStringLiteral("trash.fill")))
    , m_cleaning(new Spinner)
    , m_spinner(new Spinner)
    , m_progress((new TextLabel(TextStyle::caption))->secondary())
    , m_unfinished(new ClampedLabel(1, TextStyle::caption))
    , m_cancel(new PushButton(tr("Stop")))
    , m_cards([this] {
        auto* card = new CacheCard;
        connect(card, &CacheCard::opened, this, &CleanupView::open);
        m_grid->addWidget(card);
        return card;
    })
    , m_leftovers(new CacheCard) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, Theme::pagePadding, 0, 0);
    column->setSpacing(Theme::rowSpacing);
    auto* top = new QWidget;
    Theme::limitWidth(top, {Theme::maxContentWidth.pixels + 2 * Theme::pagePadding});
    auto* topColumn = new QVBoxLayout(top);
    topColumn->setContentsMargins(0, 0, 0, 0);
    topColumn->setSpacing(Theme::rowSpacing);
    topColumn->addLayout(makeHeader());
    topColumn->addLayout(makeProgress());
    column->addWidget(top);
    column->addWidget(makeGrid(), 1);
    m_cards.reserve(m_model.cleanup().targets().size());
    m_grid->addWidget(m_leftovers);
    setAccessibleName(tr("Cleanup"));
    m_showAll->setToolTip(tr("Also what this computer has nothing of"));
    m_showAll->setChecked(preferences.showAllCleanupTargets());
    connect(m_showAll, &QCheckBox::toggled, this, [this](bool isOn) {
        m_preferences.showAllCleanupTargets.set(isOn);
        refresh();
    });
    connect(m_rescan, &QPushButton::clicked, this, [this] { m_model.cleanup().rescan(); });
    connect(m_leftovers, &CacheCard::opened, this, &CleanupView::openLeftovers);
    connect(m_cleanAll, &QPushButton::clicked, this, &CleanupView::confirmCleanAll);
    connect(m_cancel, &QPushButton::clicked, this, &CleanupView::stop);
    refreshOnScreen(this, {&m_model, &m_model.projectLeftovers()}, [this] { refresh(); });
}

QLayout* CleanupView::makeHeader() {
    auto* title = new TextLabel(TextStyle::title3, QFont::Bold);
    title->setPlainText(tr("Cleanup targets"));
    m_result->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto* line = new QHBoxLayout;
    line->setSpacing(Theme::rowSpacing);
    line->addWidget(m_total);
    line->addWidget(m_result, 1);
    auto* texts = new QVBoxLayout;
    texts->setSpacing(Theme::textGap);
    texts->addWidget(title);
    texts->addLayout(line);
    auto* row = new QHBoxLayout;
    row->setContentsMargins(Theme::pagePadding, 0, Theme::pagePadding, 0);
    row->setSpacing(Theme::rowSpacing);
    row->addLayout(texts, 1);
    row->addWidget(m_showAll);
    row->addWidget(m_rescan);
    row->addWidget(makeCleanAll());
    m_cleanAll->setTint(Theme::Role::red);
    return row;
}

/// Returns the button, and the spinner that stands in its place while it works.
QWidget* CleanupView::makeCleanAll() {
    QSizePolicy policy = m_cleanAll->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    m_cleanAll->setSizePolicy(policy);
    m_cleaning->hide();
    auto* place = new QWidget;
    auto* layers = new QGridLayout(place);
    layers->setContentsMargins(0, 0, 0, 0);
    layers->addWidget(m_cleanAll, 0, 0);
    layers->addWidget(m_cleaning, 0, 0, Qt::AlignCenter);
    return place;
}

/// Returns a row that keeps its room while it is empty, so that the cards do not jump.
QLayout* CleanupView::makeProgress() {
    auto* row = new QHBoxLayout;
    row->setContentsMargins(Theme::pagePadding, 0, Theme::pagePadding, 0);
    row->setSpacing(Theme::rowSpacing);
    m_cancel->setSmall();
    QSizePolicy policy = m_cancel->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    m_cancel->setSizePolicy(policy);
    m_unfinished->tinted(Theme::Role::red);
    row->addWidget(m_spinner);
    row->addWidget(m_progress, 1);
    row->addWidget(m_unfinished, 1);
    row->addWidget(m_cancel);
    return row;
}

QWidget* CleanupView::makeGrid() {
    QMargins margins = Theme::pageMargins;
    margins.setTop(0);
    auto* area = new QScrollArea;
    auto* column = makeScrollingPage(area, margins, 0);
    m_grid = new FlowGrid(minCardWidth, cacheCardGap);
    column->addLayout(m_grid);
    column->addStretch();
    area->setFocusPolicy(Qt::NoFocus);
    return area;
}

void CleanupView::showEvent(QShowEvent* event) {
    m_model.cleanup().lookForPlaces();
    QWidget::showEvent(event);
}

void CleanupView::refresh() {
    const CacheCleanup& cleanup = m_model.cleanup();
    refreshCards();
    refreshProgress();
    m_total->setPlainText(
        tr("Reclaimable: %1").arg(Formatters::bytes(CleanupOverlap::totalBytes(cleanup.reclaimable()))));
    refreshResult();
    KeptFocus::setEnabled(m_rescan, !cleanup.isScanning());
    KeptFocus::setEnabled(m_cleanAll,
                          !m_cleaningAll && !cleanup.isCleaning() && !cleanup.targetsToClean().isEmpty());
    KeptFocus::setVisible(m_cleanAll, !m_cleaningAll);
    m_cleaning->setVisible(m_cleaningAll);
}

/// Says how the last clean ended, or that nothing is measured yet.
void CleanupView::refreshResult() {
    const CacheCleanup& cleanup = m_model.cleanup();
    const auto isMeasured = [](const CacheTarget& target) { return target.lastScanned.has_value(); };
    QString text = m_lastCleanResult;
    Theme::Role tint = m_wasCancelled ? Theme::Role::orange : Theme::Role::green;
    if (text.isEmpty() && !cleanup.isScanning() && std::ranges::none_of(cleanup.targets(), isMeasured)) {
        text = tr("nothing is measured yet: “Rescan” does that");
        tint = Theme::Role::secondaryText;
    }
    m_result->setPlainText(text.isEmpty() ? QString() : QStringLiteral("• ") + text);
    m_result->tinted(tint);
}

void CleanupView::refreshCards() {
    const CacheCleanup& cleanup = m_model.cleanup();
    const QList<CacheTarget> targets = m_showAll->isChecked() ? cleanup.targets() : cleanup.shownTargets();
    m_cards.show(targets.size(), [this, &targets](CacheCard& card, qsizetype i) {
        card.set(targets[i], targets[i].name == m_selected, m_model.systemSample().timestamp);
    });
    const ProjectLeftovers& leftovers = m_model.projectLeftovers();
    m_leftovers->set({.name = QStringLiteral(QT_TRANSLATE_NOOP("Translations", "Project leftovers")),
                      .symbol = QStringLiteral("folder"),
                      .sizeBytes = leftovers.totalBytes(),
                      .lastScanned = leftovers.lastSearch(),
                      .reason = tr("Build folders of your projects, which their tools make again."),
                      .isInCleanAll = false},
                     false, m_model.systemSample().timestamp);
}

void CleanupView::openLeftovers() {
    auto* sheet = new ProjectLeftoversSheet(m_model, m_preferences, window());
    connect(sheet, &QDialog::finished, this, [this] { window()->activateWindow(); });
    sheet->open();
}

void CleanupView::refreshProgress() {
    const CacheCleanup& cleanup = m_model.cleanup();
    const bool isBusy = cleanup.isCleaning() || cleanup.isScanning();
    const QString unfinished = CleanupTexts::unfinished(cleanup.report());
    if (cleanup.isCleaning())
        m_progress->setPlainText(CleanupTexts::progress(
            cleanup.report().wasCancelled ? tr("Stopping %1 (%2 of %3)") : tr("Cleaning %1 (%2 of %3)"),
            *cleanup.cleanProgress()));
    else if (cleanup.isScanning())
        m_progress->setPlainText(
            CleanupTexts::progress(tr("Measuring %1 (%2 of %3)"), *cleanup.scanProgress()));
    else
        m_progress->setPlainText(CleanupTexts::cameBack(cleanup.report().volumeBytes));
    m_unfinished->setPlainText(unfinished);
    m_spinner->setVisible(isBusy);
    m_progress->setVisible(isBusy || cleanup.report().volumeBytes);
    m_unfinished->setVisible(!isBusy && !unfinished.isEmpty());
    KeptFocus::setVisible(m_cancel, isBusy);
    m_cancel->setAccessibleName(cleanup.isCleaning() ? tr("Stop cleaning") : tr("Stop measuring"));
}

void CleanupView::stop() {
    if (m_model.cleanup().isCleaning())
        m_model.cleanup().cancel();
    else
        m_model.cleanup().stopScan();
}

void CleanupView::open(const CacheTarget& target) {
    m_selected = target.name;
    auto* drawer =
        new CacheDetailDrawer(m_model.cleanup(), target, m_model.systemSample().timestamp, window());
    connect(drawer, &CacheDetailDrawer::cleanRequested, this,
            [this](const CacheTarget& chosen, const QStringList& leftOut) {
                m_model.cleanup().clean(chosen);
                LeaveOutOffer::follow(window(), m_preferences, leftOut);
            });
    connect(drawer, &CacheDetailDrawer::trashRequested, this,
            [this](const CacheTarget& chosen, const QStringList& leftOut) {
                m_model.cleanup().moveToTrash(chosen);
                LeaveOutOffer::follow(window(), m_preferences, leftOut);
            });
    connect(drawer, &QDialog::finished, this, [this] {
        m_selected.clear();
        refresh();
        // The drawer may close together with its dialog. A window manager that has just given it the focus
        // leaves the focus there.
        window()->activateWindow();
    });
    drawer->open();
    refresh();
}

void CleanupView::confirmCleanAll() {
    CleanupConfirmation::askAll(window(), this, m_model.cleanup(), m_model.cleanup().targetsToClean(),
                                m_model.systemSample().timestamp,
                                [this](const QList<CacheTarget>& targets, const QStringList& leftOut) {
                                    cleanAll(targets);
                                    LeaveOutOffer::follow(window(), m_preferences, leftOut);
                                });
}

void CleanupView::cleanAll(const QList<CacheTarget>& targets) {
    if (m_cleaningAll)
        return;
    m_cleaningAll = true;
    refresh();
    m_model.cleanup().cleanAll(targets).then(
        [self = QPointer<CleanupView>(this), asked = targets.size()](std::pair<int, quint64> cleaned) {
            if (!self)
                return;
            const CleanupReport& report = self->m_model.cleanup().report();
            self->m_cleaningAll = false;
            self->m_wasCancelled = report.wasCancelled;
            self->m_lastCleanResult = CleanupTexts::outcome(asked, cleaned, report);
            self->refresh();
        });
}
