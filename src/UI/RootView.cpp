#include "UI/RootView.h"

#include "Core/Translations.h"
#include "Preferences.h"
#include "UI/Cleanup/CleanupView.h"
#include "UI/Kit/IconButton.h"
#include "UI/Kit/SidebarDelegate.h"
#include "UI/Kit/TextLabel.h"
#include "UI/MessageBanner.h"
#include "UI/Optimize/OptimizeView.h"
#include "UI/Overview/OverviewView.h"
#include "UI/Processes/ProcessesView.h"
#include "UI/Processes/QuitDialog.h"
#include "UI/Sessions/SessionsView.h"
#include "UI/Style/Theme.h"

#include <QDialog>
#include <QEvent>
#include <QListWidget>
#include <QMenu>
#include <QSplitter>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int sidebarMinimum = 180;
constexpr int sidebarIdeal = 200;
constexpr int sidebarMaximum = 220;
constexpr int sidebarTopMargin = 12;
constexpr int titleTopMargin = 16;

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
    , m_sidebar(new QListWidget)
    , m_menuButton(new IconButton(QStringLiteral("gear"), tr("Menu")))
    , m_banner(new MessageBanner(messages))
    , m_title(new TextLabel(Theme::TextStyle::title2, QFont::Bold))
    , m_sections(new QStackedWidget)
    , m_overview(new OverviewView(model))
    , m_sessionsView(new SessionsView(model, preferences)) {
    m_sidebar->setItemDelegate(new SidebarDelegate(m_sidebar));
    m_sidebar->setFrameShape(QFrame::NoFrame);
    m_sidebar->setMinimumWidth(sidebarMinimum);
    m_sidebar->setMaximumWidth(sidebarMaximum);
    m_sidebar->setMouseTracking(true);
    m_sidebar->setAccessibleName(tr("Sections"));
    m_sidebar->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);

    auto* sidebarPane = new QWidget;
    sidebarPane->setAutoFillBackground(true);
    sidebarPane->setBackgroundRole(QPalette::Base);
    auto* sidebarColumn = new QVBoxLayout(sidebarPane);
    sidebarColumn->setContentsMargins(0, sidebarTopMargin, 0, 0);
    sidebarColumn->addWidget(m_sidebar);
    auto* foot = new QHBoxLayout;
    foot->setContentsMargins(sidebarTopMargin, 0, sidebarTopMargin, sidebarTopMargin);
    foot->addWidget(m_menuButton);
    foot->addStretch();
    sidebarColumn->addLayout(foot);

    auto* split = new QSplitter;
    split->setChildrenCollapsible(false);
    split->setHandleWidth(1);
    split->addWidget(sidebarPane);
    split->addWidget(makeDetail());
    split->setStretchFactor(1, 1);
    restoreSidebar(split, preferences.file());

    auto* frame = new QVBoxLayout(this);
    frame->setContentsMargins(0, 0, 0, 0);
    frame->addWidget(split);

    connect(m_sidebar, &QListWidget::currentRowChanged, this, &RootView::showSection);
    addSections(preferences);
    tintSidebar();
    select(Tab::overview);
}

void RootView::addSections(Preferences& preferences) {
    connect(m_overview, &OverviewView::widgetToggled, this, &RootView::widgetToggled);
    connect(m_overview, &OverviewView::endSessionRequested, this, &RootView::confirmEnd);
    addSection(Tab::overview, m_overview);
    addSection(Tab::optimize, new OptimizeView(m_model, preferences));
    addSection(Tab::processes, new ProcessesView(m_model, preferences));
    addSection(Tab::cleanup, new CleanupView(m_model, preferences));
    addSection(Tab::sessions, m_sessionsView);
}

/// Returns the selected section under its title, with the announcement above them.
QWidget* RootView::makeDetail() {
    auto* detail = new QWidget;
    auto* column = new QVBoxLayout(detail);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    m_title->setContentsMargins(Theme::pagePadding, titleTopMargin, Theme::pagePadding, 0);
    column->addWidget(m_banner);
    column->addWidget(m_title);
    column->addWidget(m_sections, 1);
    return detail;
}

void RootView::restoreSidebar(QSplitter* split, const SettingsFile& file) {
    const QString key = QStringLiteral("ui.window.sidebarWidth");
    const double stored = file.number(key).value_or(sidebarIdeal);
    const int width = static_cast<int>(
        std::clamp(stored, static_cast<double>(sidebarMinimum), static_cast<double>(sidebarMaximum)));
    split->setSizes({width, minimumContent.width() - width});
    connect(split, &QSplitter::splitterMoved, this,
            [this, split, key] { m_storeLater.store(key, split->sizes().first()); });
}

void RootView::showSection(int row) {
    m_sections->setCurrentIndex(row);
    m_title->setPlainText(Translations::of(tab()));
}

void RootView::addSection(Tab tab, QWidget* section) {
    auto* row = new QListWidgetItem(Translations::of(tab), m_sidebar);
    row->setData(SidebarDelegate::symbolRole, tabSymbol(tab));
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
    if (!hasDialog())
        QuitDialog::ask(window(), m_model, process);
}

void RootView::changeEvent(QEvent* event) {
    if (event->type() == QEvent::ApplicationPaletteChange || event->type() == QEvent::PaletteChange)
        tintSidebar();
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
