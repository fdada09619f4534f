#include "UI/Settings/HistoryTab.h"

#include "Core/ActionLog/ActionLogEntry.h"
#include "Core/ActionLog/ActionLogReader.h"
#include "UI/Kit/Card.h"
#include "UI/Kit/ConfirmDialog.h"
#include "UI/Kit/EmptyState.h"
#include "UI/Kit/FilePanel.h"
#include "UI/Kit/Notice.h"
#include "UI/Kit/PopUpButton.h"
#include "UI/Kit/PushButton.h"
#include "UI/Kit/TableView.h"
#include "UI/Settings/HistoryRowDelegate.h"

#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QSaveFile>
#include <QShortcut>
#include <QShowEvent>
#include <QStackedWidget>
#include <QStandardPaths>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr Theme::Length pickerWidth{220};

/// Writes the whole file, or leaves an older one as it was. A full disk can cut a file short without an
/// error, so the size is checked. The log itself is never replaced. Returns why it failed.
QString writeCSV(const QString& path) {
    if (QFileInfo(path) == QFileInfo(ActionLogReader::path()))
        return HistoryTab::tr("That file is the log itself.");
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return file.errorString();
    const QByteArray text = ActionLogReader::exportCSV().toUtf8();
    file.write(text);
    const bool isWhole = file.flush() && file.size() == text.size();
    return isWhole && file.commit() ? QString() : file.errorString();
}

QString exportFolder() {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFileInfo(documents).isDir() ? documents : QDir::homePath();
}

/// Makes the table, which is sorted by its heads.
TableView* makeTable(HistoryTableModel* rows) {
    using Column = HistoryTableModel::Column;
    constexpr int detail = static_cast<int>(Column::detail);
    auto* table = new TableView(HistoryTab::tr("Action history"));
    table->setModel(rows);
    table->setItemDelegate(new HistoryRowDelegate(table));
    table->setSelectionMode(QTreeView::ExtendedSelection);
    table->setTabKeyNavigation(false);
    QHeaderView* head = table->header();
    for (int section = 0; section < HistoryTableModel::columns; ++section) {
        if (section != detail)
            head->resizeSection(section, HistoryRowDelegate::widthOf(static_cast<Column>(section)));
    }
    head->setSectionResizeMode(detail, QHeaderView::Stretch);
    head->setSectionResizeMode(static_cast<int>(Column::ok), QHeaderView::Fixed);
    head->setSortIndicator(static_cast<int>(Column::time), Qt::DescendingOrder);
    table->setSortingEnabled(true);
    QObject::connect(head, &QHeaderView::sortIndicatorChanged, table, &QTreeView::scrollToTop);
    return table;
}

} // namespace

HistoryTab::HistoryTab(QWidget* parent)
    : QWidget(parent)
    , m_rows(new HistoryTableModel(this))
    , m_table(makeTable(m_rows))
    , m_kinds(new PopUpButton(tr("Kind")))
    , m_notice(new Notice(u"exclamationmark.triangle.fill"_s, 0ms))
    , m_stack(new QStackedWidget) {
    auto* card = new Card;
    auto* inside = new QVBoxLayout(card);
    inside->setContentsMargins(Theme::tableCardMargins);
    inside->addWidget(m_stack);
    m_stack->addWidget(m_table);
    m_stack->addWidget(makeEmptyPage());
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Theme::pagePadding, Theme::gridSpacing, Theme::pagePadding,
                               Theme::pagePadding);
    column->setSpacing(Theme::rowSpacing + Theme::textGap);
    column->addWidget(makeToolbar());
    column->addWidget(m_notice);
    column->addWidget(card, 1);
    setAccessibleName(tr("History"));
    auto* refreshKey = new QShortcut(QKeySequence::Refresh, this);
    connect(refreshKey, &QShortcut::activated, this, &HistoryTab::refresh);
    showRows();
}

/// Returns what takes the place of the table, with a button for when only the filter leaves it empty.
QWidget* HistoryTab::makeEmptyPage() {
    auto* page = new EmptyState(u"clock.arrow.circlepath"_s, {}, tr("No actions logged yet."));
    m_allKinds = page->addButton(tr("Show all kinds"));
    connect(m_allKinds, &QPushButton::clicked, this, [this] { m_kinds->setCurrentIndex(0); });
    return page;
}

QWidget* HistoryTab::makeToolbar() {
    auto* kinds = m_kinds;
    kinds->addItem(tr("All"), HistoryTableModel::allKinds());
    for (const auto& [text, kind] : {std::pair(tr("Quit"), ActionLogEntry::Kind::quit),
                                     std::pair(tr("Force kill"), ActionLogEntry::Kind::forceKill),
                                     std::pair(tr("Clean"), ActionLogEntry::Kind::clean)})
        kinds->addItem(text, rawValue(kind));
    kinds->setFixedWidth(pickerWidth);
    connect(kinds, &PopUpButton::currentIndexChanged, this,
            [this, kinds] { setFilterKind(kinds->currentData().toString()); });

    auto* bar = new QWidget;
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Theme::rowSpacing);
    row->addWidget(kinds);
    row->addStretch();
    const auto add = [this, row](PushButton* button, void (HistoryTab::*act)()) {
        connect(button, &QPushButton::clicked, this, act);
        row->addWidget(button);
    };
    using Look = PushButton::Look;
    add(new PushButton(tr("Refresh"), Look::normal, u"arrow.clockwise"_s), &HistoryTab::refresh);
    add(new PushButton(tr("Export CSV…"), Look::normal, u"arrow.down.circle"_s), &HistoryTab::exportCSV);
    add(new PushButton(tr("Clear log"), Look::destructive, u"trash"_s), &HistoryTab::confirmClear);
    return bar;
}

void HistoryTab::showEvent(QShowEvent* event) {
    if (!event->spontaneous()) // spontaneous after the window was minimized
        refresh();
    QWidget::showEvent(event);
}

void HistoryTab::refresh() {
    QList<LoggedAction> entries = ActionLogReader::read();
    if (entries != m_rows->entries()) // what has not changed keeps its selection and place
        m_rows->setEntries(std::move(entries));
    showRows();
}

void HistoryTab::setFilterKind(const QString& kind) {
    m_rows->setFilterKind(kind);
    m_table->scrollToTop();
    showRows();
}

void HistoryTab::showRows() {
    m_allKinds->setVisible(!m_rows->entries().isEmpty());
    m_stack->setCurrentIndex(m_rows->rowCount() == 0 ? 1 : 0);
}

void HistoryTab::exportCSV() {
    FilePanel::open(this,
                    {.kind = FileChoice::Kind::newFile,
                     .title = tr("Export CSV"),
                     .startFolder = exportFolder(),
                     .name = u"tavrin-actions.csv"_s,
                     .typeName = tr("Comma-separated text (*.csv)"),
                     .pattern = u"*.csv"_s},
                    [this](const QString& path) { exportTo(path); });
}

void HistoryTab::exportTo(const QString& path) {
    const QString failure = writeCSV(path);
    if (failure.isEmpty())
        m_notice->hide();
    else
        m_notice->show(tr("The log was not exported. Choose another place."), failure);
}

void HistoryTab::confirmClear() {
    auto* dialog = new ConfirmDialog(window(), tr("Clear action history?"),
                                     tr("This deletes ~/Library/Logs/Tavrin/actions.log."));
    auto* clearAll = dialog->addAction(tr("Clear all"), PushButton::Look::destructive);
    connect(clearAll, &QPushButton::clicked, this, &HistoryTab::clear);
    dialog->open();
}

void HistoryTab::clear() {
    ActionLogReader::clear();
    m_rows->setEntries({});
    showRows();
}
