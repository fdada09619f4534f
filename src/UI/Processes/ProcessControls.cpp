#include "UI/Processes/ProcessControls.h"

#include "Core/Formatters.h"
#include "Core/Translations.h"
#include "UI/Kit/PopUpButton.h"
#include "UI/Kit/PushButton.h"
#include "UI/Kit/SearchField.h"
#include "UI/Kit/Slider.h"
#include "UI/Processes/ProcessColumns.h"
#include "UI/Style/Theme.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QMenu>
#include <QSignalBlocker>

namespace {

constexpr int filterSliderWidth = 140;

} // namespace

ProcessControls::ProcessControls(QWidget* parent)
    : QWidget(parent)
    , m_search(new SearchField(tr("Search name or path")))
    , m_group(new PopUpButton(tr("Group")))
    , m_sort(new PopUpButton(tr("Sort")))
    , m_minRSS(
          new LabeledSlider(tr("Min RAM %1 MB"), {0, 500, 10}, ProcessQuery().minRSSMB, {filterSliderWidth}))
    , m_fold(new QCheckBox(tr("Group duplicates")))
    , m_tree(new QCheckBox(tr("Tree"))) {
    m_search->setToolTip(Formatters::toolTip(
        tr("Words of a name, a path or arguments, a PID, or :8080 for who listens on that port")));
    m_tree->setToolTip(Formatters::toolTip(tr("Children below their parents")));
    m_group->addItem(tr("All"));
    for (const ProcGroup group : allCases<ProcGroup>())
        m_group->addItem(Translations::of(group));
    for (const ProcessColumn* column : ProcessColumns::inPicker()) {
        const char* label = column->order.label ? column->order.label : column->title;
        m_sort->addItem(QCoreApplication::translate("Columns", label), column->id.toString());
    }
    chooseSort(m_sortBy);

    auto* row = new QHBoxLayout;
    row->setSpacing(Theme::rowSpacing);
    row->addWidget(m_search, 1);
    row->addWidget(m_group);
    row->addWidget(m_sort);
    auto* second = new QHBoxLayout;
    second->setSpacing(Theme::pageSpacing);
    second->addWidget(m_minRSS);
    second->addWidget(m_fold, 0, Qt::AlignBottom);
    second->addWidget(m_tree, 0, Qt::AlignBottom);
    second->addStretch();
    second->addWidget(makeColumnsButton(), 0, Qt::AlignBottom);
    auto* details = new PushButton(tr("Details"));
    details->setToolTip(Formatters::toolTip(tr("Shows the chosen process in a panel beside the table")));
    connect(details, &PushButton::clicked, this, &ProcessControls::detailsToggled);
    second->addWidget(details, 0, Qt::AlignBottom);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Theme::rowSpacing);
    column->addLayout(row);
    column->addLayout(second);

    connect(m_search, &QLineEdit::textChanged, this, &ProcessControls::changed);
    connect(m_group, &QComboBox::currentIndexChanged, this, &ProcessControls::changed);
    connect(m_sort, &QComboBox::currentIndexChanged, this, [this] {
        if (m_isPicking)
            return;
        m_isTurned = false;
        m_sortBy = m_sort->currentData().toString();
        chooseSort(m_sortBy);
        Q_EMIT changed();
    });
    connect(m_minRSS, &LabeledSlider::valueChanged, this, &ProcessControls::changed);
    connect(m_fold, &QCheckBox::toggled, this,
            [this](bool isOn) { setListing(isOn ? ProcessListing::byName : ProcessListing::flat); });
    connect(m_tree, &QCheckBox::toggled, this,
            [this](bool isOn) { setListing(isOn ? ProcessListing::tree : ProcessListing::flat); });
}

/// Ticks at most one of the two.
void ProcessControls::setListing(ProcessListing listing) {
    const QSignalBlocker fold(m_fold);
    const QSignalBlocker tree(m_tree);
    m_fold->setChecked(listing == ProcessListing::byName);
    m_tree->setChecked(listing == ProcessListing::tree);
    Q_EMIT changed();
}

QWidget* ProcessControls::makeColumnsButton() {
    auto* button = new PushButton(tr("Columns"));
    connect(button, &PushButton::clicked, this, [this, button] {
        QMenu menu;
        Q_EMIT columnsMenuOpens(menu);
        menu.exec(button->mapToGlobal(QPoint(0, button->height())));
    });
    return button;
}

ProcessQuery ProcessControls::query() const {
    ProcessQuery query;
    query.search = m_search->text();
    if (m_group->currentIndex() > 0)
        query.groupFilter = static_cast<ProcGroup>(m_group->currentIndex() - 1);
    query.sortBy = m_sortBy;
    query.isTurned = m_isTurned;
    query.minRSSMB = m_minRSS->value();
    if (m_fold->isChecked())
        query.listing = ProcessListing::byName;
    else if (m_tree->isChecked())
        query.listing = ProcessListing::tree;
    return query;
}

void ProcessControls::sortBy(const QString& column) {
    m_isTurned = column == m_sortBy && !m_isTurned;
    m_sortBy = column;
    chooseSort(column);
    Q_EMIT changed();
}

/// Shows the column in the picker, which has one more entry while that is none of its own.
void ProcessControls::chooseSort(const QString& column) {
    m_isPicking = true;
    const auto own = static_cast<int>(ProcessColumns::inPicker().size());
    if (m_sort->findData(column) < 0) {
        m_sort->removeItem(own);
        m_sort->addItem(ProcessColumns::title(*ProcessColumns::withId(column)), column);
    }
    m_sort->setCurrentIndex(m_sort->findData(column));
    if (m_sort->currentIndex() < own)
        m_sort->removeItem(own);
    m_isPicking = false;
}

void ProcessControls::focusSearch() {
    m_search->setFocus();
    m_search->selectAll();
}

void ProcessControls::clearSearch() {
    m_search->clear();
}

void ProcessControls::clearGroup() {
    m_group->setCurrentIndex(0);
}

void ProcessControls::clearMinRAM() {
    m_minRSS->setValue(0);
}
