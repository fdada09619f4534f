#include "UI/Processes/ProcessControls.h"

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
    , m_fold(new QCheckBox(tr("Group duplicates"))) {
    m_group->addItem(tr("All"));
    for (const ProcGroup group : allCases<ProcGroup>())
        m_group->addItem(Translations::of(group));
    for (const ProcessColumn* column : ProcessColumns::sortable()) {
        const char* label = column->order.label ? column->order.label : column->title;
        m_sort->addItem(QCoreApplication::translate("Columns", label), column->id.toString());
    }
    setSort(ProcessQuery().sortBy);

    auto* row = new QHBoxLayout;
    row->setSpacing(Theme::rowSpacing);
    row->addWidget(m_search, 1);
    row->addWidget(m_group);
    row->addWidget(m_sort);
    auto* second = new QHBoxLayout;
    second->setSpacing(Theme::pageSpacing);
    second->addWidget(m_minRSS);
    second->addWidget(m_fold, 0, Qt::AlignBottom);
    second->addStretch();
    second->addWidget(makeColumnsButton(), 0, Qt::AlignBottom);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Theme::rowSpacing);
    column->addLayout(row);
    column->addLayout(second);

    connect(m_search, &QLineEdit::textChanged, this, &ProcessControls::changed);
    connect(m_group, &QComboBox::currentIndexChanged, this, &ProcessControls::changed);
    connect(m_sort, &QComboBox::currentIndexChanged, this, &ProcessControls::changed);
    connect(m_minRSS, &LabeledSlider::valueChanged, this, &ProcessControls::changed);
    connect(m_fold, &QCheckBox::toggled, this, &ProcessControls::changed);
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
    query.sortBy = m_sort->currentData().toString();
    query.minRSSMB = m_minRSS->value();
    return query;
}

bool ProcessControls::groupsDuplicates() const {
    return m_fold->isChecked();
}

void ProcessControls::setSort(const QString& column) {
    m_sort->setCurrentIndex(m_sort->findData(column));
}

void ProcessControls::focusSearch() {
    m_search->setFocus();
    m_search->selectAll();
}
