#include "UI/RootView.h"

#include "AppModel.h"
#include "Core/Translations.h"
#include "Preferences.h"
#include "UI/Cleanup/CleanupView.h"
#include "UI/Kit/IconButton.h"
#include "UI/Kit/Notice.h"
#include "UI/Kit/SidebarDelegate.h"
#include "UI/Kit/TextLabel.h"
#include "UI/MessageBanner.h"
#include "UI/Optimize/OptimizeView.h"
#include "UI/Overview/OverviewView.h"
#include "UI/Processes/EndDialog.h"
#include "UI/Processes/ProcessesView.h"
#include "UI/Sessions/SessionsView.h"
#include "UI/ShortcutsSheet.h"
#include "UI/Style/Theme.h"

#include <QDialog>
#include <QEvent>
#include <QListWidget>
#include <QMenu>
#include <QShortcut>
#include <QSplitter>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr Theme::Length sidebarMinimum{180};
constexpr Theme::Length sidebarIdeal{200};
constexpr Theme::Length sidebarMaximum{220};
constexpr Theme::Length foldedSidebar{60};
constexpr Theme::Length foldBelow{900}; ///< the width of the window
constexpr int sidebarTopMargin = 12;
constexpr int titleTopMargin = 12;
constexpr Theme::Length titleHeight{36}; ///< a line of the notice fits in

/// In the order of RootView::Tab.
constexpr QStringView sectionSymbols[] = {u"gauge", u"wand.and.stars", u"list.bullet.rectangle", u"trash",
                                          u"bubble.prompt"};

} // namespace

QString tabSymbol(RootView::Tab tab) {
    return sectionSymbols[static_cast<std::size_t>(tab)].toString();
}

RootView::RootView(AppModel& model, Preferences& preferences, MessageCenter& messages, QWidget* parent)
    : QWidget(parent)
    , m_model(model)
    , m_storeLater(preferences.file())
    , m_split(new QSplitter)
    , m_sidebar(new QListWidget)
    , m_sidebarButton(new IconButton(QStringLiteral("sidebar.left"), QString()))
    , m_menuButton(new IconButton(QStringLiteral("gear"), tr("Menu")))
    , m_banner(new MessageBanner(messages))
    , m_title(new TextLabel(Theme::TextStyle::title2, QFont::Bold))
    , m_noticeRoom(new QWidget)
    , m_sections(new QStackedWidget)
    , m_overview(new OverviewView(model))
    , m_sessionsView(new SessionsView(model, preferences)) {
    m_sidebar->setItemDelegate(new SidebarDelegate(m_sidebar));
    m_sidebar->setFrameShape(QFrame::NoFrame);
    m_sidebar->setMouseTracking(true);
    m_sidebar->setAccessibleName(tr("Sections"));
    m_sidebar->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);

    m_split->setChildrenCollapsible(false);
    m_split->setHandleWidth(1);
    m_split->addWidget(makeSidebarPane());
    m_split->addWidget(makeDetail());
    m_split->setStretchFactor(1, 1);
    restoreSidebar(preferences.file());

    auto* frame = new QVBoxLayout(this);
    frame->setContentsMargins(0, 0, 0, 0);
    frame->addWidget(m_split);

    connect(m_sidebar, &QListWidget::currentRowChanged, this, &RootView::showSection);
    addSections(preferences);
    connect(m_sidebarButton, &IconButton::clicked, this, [this] { showSidebar(!m_isSidebarShown); });
    showSidebar(true);
    addKeys();
    tintSidebar();
    select(Tab::overview);
}

void RootView::addSections(Preferences& preferences) {
    connect(m_overview, &OverviewView::widgetToggled, this, &RootView::widgetToggled);
    connect(m_overview, &OverviewView::endSessionRequested, this, &RootView::confirmEnd);
    addSection(Tab::overview, m_overview);
    auto* optimize = new OptimizeView(m_model, preferences);
    m_noticeRoom->layout()->addWidget(optimize->notice());
    addSection(Tab::optimize, optimize);
    addSection(Tab::processes, new ProcessesView(m_model, preferences));
    addSection(Tab::cleanup, new CleanupView(m_model, preferences));
    addSection(Tab::sessions, m_sessionsView);
}

void RootView::addKeys() {
    for (int place = 0; place < m_sections->count(); ++place) {
        auto* key = new QShortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + place)), this);
        connect(key, &QShortcut::activated, this, [this, place] { select(static_cast<Tab>(place)); });
    }
    for (const QKeySequence& keys : {QKeySequence(Qt::Key_F1), QKeySequence(Qt::Key_Question)}) {
        auto* help = new QShortcut(keys, this);
        connect(help, &QShortcut::activated, this, [this] {
            if (!hasDialog())
                (new ShortcutsSheet(window()))->open();
        });
    }
}

/// Returns the selected section under its title, with the announcement above them.
QWidget* RootView::makeDetail() {
    auto* detail = new QWidget;
    auto* column = new QVBoxLayout(detail);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    Theme::fixHeight(m_title, titleHeight);
    auto* notices = new QHBoxLayout(m_noticeRoom);
    notices->setContentsMargins(0, 0, 0, 0);
    auto* head = new QHBoxLayout;
    head->setContentsMargins(Theme::pagePadding - 4, titleTopMargin, Theme::pagePadding, 0);
    head->setSpacing(Theme::rowSpacing);
    head->addWidget(m_sidebarButton);
    head->addWidget(m_title);
    head->addSpacing(Theme::pageSpacing);
    head->addWidget(m_noticeRoom, 1);
    column->addWidget(m_banner);
    column->addLayout(head);
    column->addWidget(m_sections, 1);
    return detail;
}

QWidget* RootView::makeSidebarPane() {
    auto* pane = new QWidget;
    pane->setAutoFillBackground(true);
    pane->setBackgroundRole(QPalette::Base);
    auto* column = new QVBoxLayout(pane);
    column->setContentsMargins(0, sidebarTopMargin, 0, 0);
    column->addWidget(m_sidebar);
    auto* foot = new QHBoxLayout;
    foot->setContentsMargins(sidebarTopMargin, 0, sidebarTopMargin, sidebarTopMargin);
    foot->addWidget(m_menuButton);
    foot->addStretch();
    column->addLayout(foot);
    return pane;
}

void RootView::restoreSidebar(const SettingsFile& file) {
    const QString key = QStringLiteral("ui.window.sidebarWidth");
    m_sidebarWidth = file.number(key).value_or(sidebarIdeal.pixels);
    connect(m_split, &QSplitter::splitterMoved, this, [this, key] {
        if (isFolded())
            return;
        m_sidebarWidth = m_split->sizes().first() / Theme::scale();
        m_storeLater.store(key, m_sidebarWidth);
    });
}

void RootView::showSidebar(bool show) {
    m_isSidebarShown = show;
    m_sidebar->parentWidget()->setVisible(show);
    m_sidebarButton->setHelp(show ? tr("Hide sidebar") : tr("Show sidebar"));
    fitSidebar();
}

bool RootView::isFolded() const {
    return width() < foldBelow;
}

/// Gives the sidebar its width: that of the symbols in a narrow window.
void RootView::fitSidebar() {
    m_wasFolded = isFolded();
    const double ideal = std::clamp<double>(m_sidebarWidth, sidebarMinimum.pixels, sidebarMaximum.pixels);
    const int sidebarWidth = isFolded() ? foldedSidebar : Theme::scaled(ideal);
    m_sidebar->setMinimumWidth(isFolded() ? foldedSidebar : sidebarMinimum);
    m_sidebar->setMaximumWidth(isFolded() ? foldedSidebar : sidebarMaximum);
    m_split->setSizes({sidebarWidth, width() - sidebarWidth});
}

void RootView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (m_wasFolded != isFolded())
        fitSidebar();
}

void RootView::showSection(int row) {
    m_sections->setCurrentIndex(row);
    m_title->setPlainText(Translations::of(tab()));
    m_noticeRoom->setVisible(tab() == Tab::optimize);
}

void RootView::addSection(Tab tab, QWidget* section) {
    auto* row = new QListWidgetItem(Translations::of(tab), m_sidebar);
    row->setData(SidebarDelegate::symbolRole, tabSymbol(tab));
    row->setToolTip(row->text());
    m_sections->addWidget(section);
}

void RootView::setMenu(QMenu* menu) {
    connect(m_menuButton, &IconButton::clicked, menu, [this, menu] {
        const QPoint above = m_menuButton->mapToGlobal(QPoint(0, -menu->sizeHint().height()));
        menu->popup(above);
    });
}

RootView::Tab RootView::tab() const {
    return static_cast<Tab>(m_sidebar->currentRow());
}

void RootView::select(Tab tab) {
    m_sidebar->setCurrentRow(static_cast<int>(tab));
}

bool RootView::hasDialog() const {
    const auto dialogs = window()->findChildren<QDialog*>();
    return std::ranges::any_of(dialogs, [](const QDialog* dialog) { return dialog->isVisible(); });
}

void RootView::openFreeRAM() {
    if (hasDialog())
        return;
    select(Tab::overview);
    m_overview->openFreeRAM();
}

void RootView::confirmEnd(const ProcessIdentity& host) {
    if (hasDialog())
        return;
    select(Tab::sessions);
    m_sessionsView->confirmEnd(host);
}

void RootView::confirmQuit(const ProcSample& process) {
    if (hasDialog())
        return;
    EndDialog::ask(window(), m_model, {process}, false,
                   [this](const QList<ProcSample>& ended) { m_model.actions().quitProcess(ended.first()); });
}

void RootView::changeEvent(QEvent* event) {
    if (event->type() == QEvent::ApplicationPaletteChange || event->type() == QEvent::PaletteChange)
        tintSidebar();
    if (event->type() == QEvent::FontChange)
        fitSidebar();
    QWidget::changeEvent(event);
}

void RootView::tintSidebar() {
    QWidget* pane = m_sidebar->parentWidget();
    const QColor fill = Theme::color(Theme::Role::sidebarFill);
    if (pane->palette().color(QPalette::Base) == fill)
        return;
    QPalette palette = pane->palette();
    palette.setColor(QPalette::Base, fill);
    pane->setPalette(palette);
}
