#include "UI/Cleanup/ProjectLeftoversSheet.h"

#include "AppModel.h"
#include "Core/Formatters.h"
#include "Preferences.h"
#include "UI/Cleanup/LeftoverRow.h"
#include "UI/Cleanup/LeftoverTexts.h"
#include "UI/Kit/Card.h"
#include "UI/Kit/ClampedLabel.h"
#include "UI/Kit/ConfirmDialog.h"
#include "UI/Kit/EmptyState.h"
#include "UI/Kit/FilePanel.h"
#include "UI/Kit/KeptFocus.h"
#include "UI/Kit/ScrollingPage.h"
#include "UI/Kit/SearchField.h"
#include "UI/Kit/SheetSize.h"
#include "UI/Kit/SizeList.h"
#include "UI/Kit/Spinner.h"
#include "UI/Style/Margins.h"

#include <QDir>
#include <QHBoxLayout>
#include <QPointer>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedWidget>

#include <algorithm>

using namespace Qt::StringLiterals;
using Theme::Role;
using Theme::TextStyle;

namespace {

constexpr QSize leftoversSize(820, 640);
constexpr qsizetype maxShownProjects = 200;
constexpr Theme::Length maxPathsHeight{300};
constexpr int maxListedPaths = 500;
constexpr Theme::Length leftoverSearchWidth{220};

/// What takes the place of the list.
enum class Page { rows, nothing, searching, noMatch, failed };

} // namespace

ProjectLeftoversSheet::ProjectLeftoversSheet(AppModel& model, Preferences& preferences, QWidget* parent)
    : QDialog(parent)
    , m_model(model)
    , m_leftovers(model.projectLeftovers())
    , m_preferences(preferences)
    , m_sources(new ClampedLabel(2, TextStyle::caption))
    , m_addFolder(new PushButton(tr("Add folder…")))
    , m_home(new PushButton(tr("Home folder")))
    , m_search(new SearchField(tr("Search projects")))
    , m_rescan(new PushButton(tr("Search again"), PushButton::Look::normal, u"arrow.clockwise"_s))
    , m_area(new QScrollArea)
    , m_stack(new QStackedWidget)
    , m_rows([this] {
        auto* row = new LeftoverRow;
        connect(row, &LeftoverRow::ticked, this, &ProjectLeftoversSheet::toggle);
        m_rowsLayout->insertWidget(m_rowsLayout->count() - 2, row);
        return row;
    })
    , m_more((new TextLabel(TextStyle::caption))->secondary())
    , m_spinner(new Spinner)
    , m_progress(new ClampedLabel(1, TextStyle::caption))
    , m_outcome(new TextLabel(TextStyle::callout))
    , m_unfinished(new ClampedLabel(2, TextStyle::caption))
    , m_stop(new PushButton(tr("Stop")))
    , m_remove(new PushButton(QString(), PushButton::Look::prominent, u"trash"_s)) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    setWindowTitle(tr("Project leftovers"));
    resize(fittingSheet(leftoversSize));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Theme::pageMargins);
    column->setSpacing(12);
    column->addLayout(beforeScrollBar(makeHeader()));
    column->addLayout(beforeScrollBar(makeSources()));
    column->addLayout(beforeScrollBar(new Divider));
    QWidget* list = makeList();
    column->addLayout(makeHeads());
    column->addWidget(list, 1);
    column->addLayout(beforeScrollBar(new Divider));
    column->addLayout(beforeScrollBar(makeFoot()));
    if (!m_leftovers.lastSearch() && !m_leftovers.isSearching())
        search();
    refresh();
    observe(&m_leftovers, this, [this] { refresh(); });
}

QLayout* ProjectLeftoversSheet::makeHeader() {
    auto* title = new TextLabel(TextStyle::title2, QFont::Bold);
    title->setPlainText(windowTitle());
    auto* explanation = (new TextLabel(TextStyle::callout))->secondary()->wrapped();
    explanation->setPlainText(tr("Folders that builds and installations have left. The project's own tools "
                                 "make them again, which takes time and perhaps the network."));
    auto* close = new PushButton(tr("Close"));
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    auto* texts = new QVBoxLayout;
    texts->setSpacing(Theme::textGap);
    texts->addWidget(title);
    texts->addWidget(explanation);
    auto* header = new QHBoxLayout;
    header->setSpacing(Theme::pageSpacing);
    header->addLayout(texts, 1);
    header->addWidget(close, 0, Qt::AlignTop);
    return header;
}

QLayout* ProjectLeftoversSheet::makeSources() {
    m_sources->secondary();
    m_sources->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_search->setFixedWidth(leftoverSearchWidth);
    auto* row = new QHBoxLayout;
    row->setSpacing(Theme::rowSpacing);
    row->addWidget(m_sources, 1);
    for (QWidget* each : {static_cast<QWidget*>(m_home), static_cast<QWidget*>(m_addFolder),
                          static_cast<QWidget*>(m_rescan), static_cast<QWidget*>(m_search)})
        row->addWidget(each);
    connect(m_search, &QLineEdit::textChanged, this, &ProjectLeftoversSheet::refresh);
    connect(m_rescan, &QPushButton::clicked, this, &ProjectLeftoversSheet::search);
    connect(m_addFolder, &QPushButton::clicked, this, &ProjectLeftoversSheet::chooseFolder);
    connect(m_home, &QPushButton::clicked, this, [this] { setFolders({}); });
    return row;
}

QLayout* ProjectLeftoversSheet::makeHeads() {
    auto* row = new QHBoxLayout;
    const int scrollBar = m_area->verticalScrollBar()->sizeHint().width();
    row->setContentsMargins(mirrored({LeftoverRow::padding, 0, LeftoverRow::padding + scrollBar, 0}));
    row->setSpacing(Theme::rowSpacing);
    const auto add = [row](const QString& text, int width, Qt::Alignment alignment) {
        auto* head = (new TextLabel(TextStyle::caption, QFont::DemiBold))->secondary();
        head->setPlainText(text);
        head->setAlignment(alignment);
        if (width > 0)
            head->setFixedWidth(width);
        row->addWidget(head, width > 0 ? 0 : 1);
    };
    add(tr("Project"), 0, Qt::AlignLeft);
    add(tr("Last used"), LeftoverRow::lastUseWidth, Qt::AlignLeft);
    add(tr("Note"), LeftoverRow::noteWidth, Qt::AlignLeft);
    add(tr("Size"), LeftoverRow::sizeWidth, Qt::AlignRight);
    return row;
}

QWidget* ProjectLeftoversSheet::makeList() {
    m_rowsLayout = makeScrollingPage(m_area, {}, 0);
    m_rowsLayout->addWidget(m_more);
    m_rowsLayout->addStretch();
    m_area->setFocusPolicy(Qt::NoFocus);
    m_area->setAccessibleName(tr("Projects"));
    m_stack->addWidget(m_area);
    m_stack->addWidget(new EmptyState(u"checkmark.circle"_s, tr("Nothing found"),
                                      tr("No project here has anything left by a build. “Add folder…” "
                                         "looks in other places too.")));
    m_stack->addWidget(new EmptyState(u"magnifyingglass"_s, tr("Looking for projects…"),
                                      tr("“Stop” ends the search and keeps what it has found.")));
    auto* noMatch =
        new EmptyState(u"magnifyingglass"_s, tr("No projects match"),
                       tr("The search looks in the path, the folders and the note of each project."));
    connect(noMatch->addButton(tr("Clear search")), &QPushButton::clicked, m_search, &QLineEdit::clear);
    m_stack->addWidget(noMatch);
    m_failed = new EmptyState(u"exclamationmark.triangle"_s, tr("The search did not finish"), QString());
    connect(m_failed->addButton(tr("Search again")), &QPushButton::clicked, this,
            &ProjectLeftoversSheet::search);
    m_stack->addWidget(m_failed);
    return m_stack;
}

QLayout* ProjectLeftoversSheet::makeFoot() {
    m_progress->secondary();
    m_unfinished->tinted(Role::red);
    m_outcome->tinted(Role::green);
    m_stop->setAccessibleName(tr("Stop searching or removing"));
    m_remove->setTint(Role::red);
    auto* texts = new QVBoxLayout;
    texts->setSpacing(0);
    texts->addWidget(m_progress);
    texts->addWidget(m_outcome);
    texts->addWidget(m_unfinished);
    auto* row = new QHBoxLayout;
    row->setSpacing(Theme::rowSpacing);
    row->addWidget(m_spinner);
    row->addLayout(texts, 1);
    row->addWidget(m_stop);
    row->addWidget(m_remove);
    connect(m_stop, &QPushButton::clicked, &m_leftovers, &ProjectLeftovers::stop);
    connect(m_remove, &QPushButton::clicked, this, &ProjectLeftoversSheet::confirm);
    return row;
}

void ProjectLeftoversSheet::search() {
    m_asked.clear();
    m_leftovers.search(m_preferences.projectFolders());
}

void ProjectLeftoversSheet::chooseFolder() {
    FilePanel::open(this, {.title = tr("Look for projects in"), .startFolder = QDir::homePath()},
                    [this](const QString& folder) {
                        QStringList folders = m_preferences.projectFolders();
                        if (!folders.contains(folder))
                            folders.append(folder);
                        setFolders(folders);
                    });
}

void ProjectLeftoversSheet::setFolders(const QStringList& folders) {
    m_preferences.projectFolders.set(folders);
    search();
    refresh();
}

QList<LeftoverProject> ProjectLeftoversSheet::shown() const {
    QList<LeftoverProject> projects = m_leftovers.projects();
    projects.removeIf([this](const LeftoverProject& project) {
        return !LeftoverTexts::matches(project, m_search->text());
    });
    return projects;
}

QList<LeftoverProject> ProjectLeftoversSheet::chosen() const {
    QList<LeftoverProject> projects = m_leftovers.projects();
    projects.removeIf([this](const LeftoverProject& project) {
        return !m_ticked.contains(project.path) || !project.users.isEmpty();
    });
    return projects;
}

void ProjectLeftoversSheet::refresh() {
    QStringList folders;
    for (const QString& folder : m_preferences.projectFolders())
        folders.append(LeftoverTexts::pathOf(QFile::encodeName(folder)));
    m_sources->setPlainText(folders.isEmpty() ? tr("Looks in the home folder, without hidden folders")
                                              : tr("Looks in %1").arg(Formatters::list(folders)));
    m_home->setVisible(!folders.isEmpty());
    const bool isIdle = !m_leftovers.isSearching() && !m_leftovers.isRemoving();
    for (PushButton* button : {m_addFolder, m_home, m_rescan})
        KeptFocus::setEnabled(button, isIdle);
    refreshRows();
    refreshFoot();
    askForChanges();
}

void ProjectLeftoversSheet::refreshRows() {
    const QList<LeftoverProject> projects = shown();
    const qsizetype count = std::min(projects.size(), maxShownProjects);
    m_rows.show(count, [&](LeftoverRow& row, qsizetype i) {
        row.set(projects[i], m_ticked.contains(projects[i].path) && projects[i].users.isEmpty(),
                m_model.systemSample().timestamp);
    });
    m_more->setVisible(projects.size() > count);
    m_more->setPlainText(tr("and %1 more: search to see them").arg(projects.size() - count));
    m_failed->setText(tr("Not finished: %1").arg(m_leftovers.searchFailure()));
    Page page = Page::rows;
    if (projects.isEmpty() && !m_leftovers.projects().isEmpty())
        page = Page::noMatch;
    else if (projects.isEmpty() && m_leftovers.isSearching())
        page = Page::searching;
    else if (projects.isEmpty())
        page = m_leftovers.searchFailure().isEmpty() ? Page::nothing : Page::failed;
    m_stack->setCurrentIndex(static_cast<int>(page));
}

void ProjectLeftoversSheet::refreshFoot() {
    qsizetype folders = 0;
    quint64 bytes = 0;
    for (const LeftoverProject& project : chosen()) {
        folders += project.folders.size();
        bytes += project.sizeBytes;
    }
    const auto& removal = m_leftovers.lastRemoval();
    const bool isBusy = m_leftovers.isSearching() || m_leftovers.isRemoving();
    m_progress->setPlainText(LeftoverTexts::progress(m_leftovers));
    m_progress->setVisible(isBusy);
    m_outcome->setPlainText(removal ? LeftoverTexts::outcome(*removal) : QString());
    m_outcome->setVisible(!isBusy);
    QStringList unfinished = removal ? removal->failures : QStringList();
    if (!m_leftovers.searchFailure().isEmpty())
        unfinished.append(tr("the search (%1)").arg(m_leftovers.searchFailure()));
    m_unfinished->setPlainText(
        unfinished.isEmpty() ? QString() : tr("Not finished: %1").arg(Formatters::list(unfinished)));
    m_unfinished->setVisible(!isBusy && !unfinished.isEmpty());
    m_spinner->setVisible(isBusy);
    KeptFocus::setVisible(m_stop, isBusy);
    m_remove->setText(folders == 0 ? tr("Remove…")
                                   : tr("Remove %n folder(s) (%1)…", nullptr, static_cast<int>(folders))
                                         .arg(Formatters::bytes(bytes)));
    KeptFocus::setEnabled(m_remove, folders > 0 && !isBusy);
}

void ProjectLeftoversSheet::toggle(const QByteArray& project) {
    if (!m_ticked.remove(project))
        m_ticked.insert(project);
    refresh();
}

/// Asks for one project after another, as each starts a process.
void ProjectLeftoversSheet::askForChanges() {
    if (m_isAsking || m_leftovers.isSearching())
        return;
    for (const LeftoverProject& project : shown().mid(0, maxShownProjects)) {
        if (m_asked.contains(project.path))
            continue;
        m_asked.insert(project.path);
        m_isAsking = true;
        m_leftovers.findChanges(project.path).then([self = QPointer<ProjectLeftoversSheet>(this)] {
            if (!self)
                return;
            self->m_isAsking = false;
            QMetaObject::invokeMethod(self, &ProjectLeftoversSheet::askForChanges, Qt::QueuedConnection);
        });
        return;
    }
}

void ProjectLeftoversSheet::confirm() {
    const QList<LeftoverProject> projects = chosen();
    auto* paths = new SizeList(tr("What goes"));
    int folders = 0;
    quint64 bytes = 0;
    for (const LeftoverProject& project : projects) {
        for (const Leftover& folder : project.folders) {
            if (++folders <= maxListedPaths)
                paths->addRow({.name = LeftoverTexts::pathOf(folder.path),
                               .figure = Formatters::bytes(folder.sizeBytes)});
        }
        bytes += project.sizeBytes;
    }
    if (folders > maxListedPaths)
        paths->addLine(tr("and %1 more").arg(folders - maxListedPaths));
    paths->fit(ConfirmDialog::textWidth, maxPathsHeight);
    auto* dialog = new ConfirmDialog(this, tr("Remove %n folder(s)?", nullptr, folders),
                                     tr("They are gone for good, with all that is in them. Sources stay."));
    dialog->addContent(paths);
    auto* remove =
        dialog->addAction(tr("Remove %1").arg(Formatters::bytes(bytes)), PushButton::Look::destructive);
    connect(remove, &QPushButton::clicked, this, [this, projects] {
        m_ticked.clear();
        m_leftovers.remove(projects);
        refresh();
    });
    dialog->open();
}
