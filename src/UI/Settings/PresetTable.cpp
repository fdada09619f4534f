#include "UI/Settings/PresetTable.h"

#include "Core/Formatters.h"
#include "UI/Kit/IconButton.h"
#include "UI/Kit/RowButton.h"
#include "UI/Settings/PresetTableModel.h"
#include "UI/Style/Painting.h"
#include "UI/Style/Symbols.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QStyledItemDelegate>

#include <algorithm>

using Theme::Role;
using Theme::TextStyle;

namespace {

constexpr Theme::Length presetRowHeight{32};
constexpr int presetPadding = 8;
constexpr Theme::Length presetSymbolSize{16};

class RowDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override {
        return {40, presetRowHeight};
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        const Painting::Mirrored mirrored(*painter, option.rect, option.direction);
        TableView::paintGround(*painter, option);
        const QString text = index.data(Qt::DisplayRole).toString();
        const QRectF area = QRectF(option.rect).adjusted(presetPadding, 0, -presetPadding, 0);
        const int column = index.column();
        if (column == PresetTableModel::symbol || column == PresetTableModel::force) {
            const QRectF symbolArea(area.left(), area.top(), presetSymbolSize, area.height());
            const Role tint = text == u"bolt.fill" && column == PresetTableModel::force ? Role::orange
                                                                                        : Role::secondaryText;
            Symbols::draw(*painter, text, Theme::color(tint), symbolArea, presetSymbolSize);
            return;
        }
        Painting::setTextStyle(*painter, TextStyle::callout,
                               column == PresetTableModel::name ? Role::primaryText : Role::secondaryText);
        const bool isFigure = PresetTableModel::column(column).alignment == Qt::AlignRight;
        if (isFigure && Painting::tabularWidth(painter->font(), text) <= area.width())
            Painting::drawTabular(*painter, area, Qt::AlignRight, text);
        else
            Painting::drawElided(*painter, area, Qt::ElideRight, text);
    }
};

} // namespace

PresetTable::PresetTable(QWidget* parent)
    : TableView(tr("Quick Kill presets"), parent)
    , m_rows(new PresetTableModel(this)) {
    setModel(m_rows);
    setItemDelegate(new RowDelegate(this));
    setEmptyText(tr("No presets. Add one, or reset to the defaults."));
    setAccessibleDescription(emptyText());
    for (int column = 0; column < PresetTableModel::columns; ++column) {
        header()->setSectionResizeMode(column, QHeaderView::Fixed);
        header()->resizeSection(column, Theme::scaled(PresetTableModel::column(column).width));
    }
    header()->setSectionResizeMode(PresetTableModel::name, QHeaderView::Stretch); // takes the remaining width
}

void PresetTable::show(const QList<QuickKillPreset>& presets) {
    if (presets == m_rows->presets())
        return;
    const QuickKillPreset* selected = preset(currentIndex());
    const QUuid id = selected ? selected->id : QUuid();
    const int row = currentIndex().row();
    m_rows->setPresets(presets);
    setAccessibleDescription(presets.isEmpty() ? emptyText() : QString());
    for (int each = 0; each < presets.size(); ++each)
        addButtons(each);
    if (row < 0)
        return;
    const auto kept = std::ranges::find(presets, id, &QuickKillPreset::id);
    const auto wanted = kept == presets.end() ? row : static_cast<int>(kept - presets.begin());
    setCurrentIndex(m_rows->index(std::min(wanted, m_rows->rowCount() - 1), 0));
}

/// Adds buttons for the mouse. The keyboard has keys for the same actions.
void PresetTable::addButtons(int row) {
    const QuickKillPreset preset = m_rows->presets()[row];
    auto* edit = new IconButton(QStringLiteral("pencil"), tr("Edit"));
    auto* remove = new IconButton(QStringLiteral("trash"), tr("Delete"));
    connect(edit, &IconButton::clicked, this, [this, preset] { Q_EMIT editRequested(preset); });
    connect(remove, &IconButton::clicked, this, [this, preset] { Q_EMIT deleteRequested(preset); });
    auto* cell = new QWidget;
    auto* buttons = new QHBoxLayout(cell);
    buttons->setContentsMargins(0, 0, 0, 0);
    buttons->setSpacing(2);
    buttons->addStretch();
    for (IconButton* button : {edit, remove}) {
        button->setFocusPolicy(Qt::NoFocus);
        nameRowButton(button, button->toolTip(), Formatters::visible(preset.name));
        buttons->addWidget(button);
    }
    buttons->addStretch();
    setIndexWidget(m_rows->index(row, PresetTableModel::actions), cell);
}

const QuickKillPreset* PresetTable::preset(const QModelIndex& index) const {
    return index.isValid() ? &m_rows->presets()[index.row()] : nullptr;
}

void PresetTable::keyPressEvent(QKeyEvent* event) {
    const QuickKillPreset* current = preset(currentIndex());
    const auto key = event->key();
    if (current && (key == Qt::Key_Return || key == Qt::Key_Enter))
        Q_EMIT editRequested(QuickKillPreset(*current));
    else if (current && key == Qt::Key_Delete)
        Q_EMIT deleteRequested(QuickKillPreset(*current));
    else
        TableView::keyPressEvent(event);
}

void PresetTable::mouseDoubleClickEvent(QMouseEvent* event) {
    const QuickKillPreset* pointed = preset(indexAt(event->pos()));
    if (pointed && event->button() == Qt::LeftButton)
        Q_EMIT editRequested(QuickKillPreset(*pointed));
}

void PresetTable::fillMenu(QMenu& menu, const QModelIndex& index) {
    const QuickKillPreset chosen = *preset(index);
    menu.addAction(tr("Edit"), this, [this, chosen] { Q_EMIT editRequested(chosen); });
    menu.addAction(tr("Delete"), this, [this, chosen] { Q_EMIT deleteRequested(chosen); });
}
