#include "UI/Cleanup/CleanupPreviewView.h"

#include "Core/Formatters.h"
#include "UI/Cleanup/CleanupPreviewModel.h"
#include "UI/Kit/OpenFolder.h"
#include "UI/Style/Painting.h"
#include "UI/Style/Symbols.h"

#include <QFileInfo>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QStyledItemDelegate>

using Theme::Role;
using Theme::TextStyle;

namespace {

constexpr Theme::Length previewIndentation{20};
constexpr int previewPadding = 8;
constexpr Theme::Length previewRowHeight{28};
constexpr Theme::Length tickSide{16};
constexpr Theme::Length branchSymbolSize{12};
constexpr double leftOutOpacity = 0.55;

QRectF tickBoxIn(const QRect& cell) {
    return {cell.left() + 2.0, cell.top() + (cell.height() - tickSide) / 2.0, double(tickSide),
            double(tickSide)};
}

class PreviewDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        const Painting::Mirrored mirrored(*painter, option.rect, option.direction);
        TableView::paintGround(*painter, option);
        const auto& node = static_cast<const CleanupPreviewModel*>(index.model())->node(index);
        const bool isLeftOut = node.tick == CleanupChoice::Tick::none;
        const QString text = index.data().toString();
        QRectF area = QRectF(option.rect).adjusted(0, 0, -previewPadding, 0);
        if (index.column() != CleanupPreviewModel::name) {
            Painting::setTextStyle(*painter, TextStyle::caption,
                                   isLeftOut ? Role::secondaryText : Role::primaryText);
            Painting::drawTabular(*painter, area, Qt::AlignRight, text);
            return;
        }
        const QVariant state = index.data(Qt::CheckStateRole);
        if (state.isValid())
            Painting::drawTickBox(*painter, tickBoxIn(option.rect),
                                  static_cast<Qt::CheckState>(state.toInt()));
        area.setLeft(area.left() + (state.isValid() ? tickSide + 10 : 2));
        if (node.isInUse)
            drawInUse(*painter, area);
        Painting::setTextStyle(*painter, TextStyle::body,
                               isLeftOut ? Role::secondaryText : Role::primaryText);
        Painting::drawElided(*painter, area, Qt::ElideMiddle, text);
    }

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override {
        return {100, std::max<int>(previewRowHeight, option.fontMetrics.height() + 8)};
    }

protected:
    /// Toggles the box that is clicked.
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override {
        if (event->type() != QEvent::MouseButtonRelease || index.column() != CleanupPreviewModel::name)
            return false;
        const auto* mouse = static_cast<QMouseEvent*>(event);
        const QRectF target = tickBoxIn(option.rect).adjusted(-4, -6, 6, 6);
        if (mouse->button() != Qt::LeftButton ||
            !target.contains(Painting::mirrored(mouse->position(), option.rect, option.direction)))
            return false;
        static_cast<CleanupPreviewModel*>(model)->toggle(index);
        return true;
    }

private:
    static void drawInUse(QPainter& painter, QRectF& area) {
        const QString text = CleanupPreviewModel::tr("in use");
        Painting::setTextStyle(painter, TextStyle::caption, Role::orange);
        const QRectF mark =
            Painting::takeRight(area, QFontMetricsF(painter.font()).horizontalAdvance(text) + 2);
        Painting::drawTabular(painter, mark, Qt::AlignRight, text);
    }
};

} // namespace

CleanupPreviewView::CleanupPreviewView(CleanupPreviewModel& model, QWidget* parent)
    : TableView(tr("What goes"), parent)
    , m_model(model) {
    setModel(&model);
    setItemDelegate(new PreviewDelegate(this));
    setItemsExpandable(true);
    setRootIsDecorated(true);
    setIndentation(previewIndentation);
    setSelectionMode(ExtendedSelection);
    setEmptyText(tr("Nothing here has the text of the search. What is ticked stays so."));
    header()->setSortIndicator(CleanupPreviewModel::size, Qt::DescendingOrder); // as the model is already
    setSortingEnabled(true);
    connect(&model, &CleanupPreviewModel::ticksChanged, viewport(), QOverload<>::of(&QWidget::update));
    for (int row = 0; row < model.rowCount(); ++row) {
        const QModelIndex index = model.index(row, 0);
        if (model.node(index).kind != CleanupChoice::Kind::target && model.rowCount(index) > 0)
            expand(index);
    }
}

void CleanupPreviewView::resizeEvent(QResizeEvent* event) {
    TableView::resizeEvent(event);
    fitColumns();
}

/// Gives the figures what they need, and the name the rest.
void CleanupPreviewView::fitColumns() {
    const QFont font = Theme::font(TextStyle::caption);
    const int size = qRound(Painting::tabularWidth(font, QStringLiteral("1023.9 MB"))) + 4 * previewPadding;
    const int age =
        qRound(Painting::tabularWidth(font, Formatters::ago(11 * 30 * 86400.0))) + 3 * previewPadding;
    header()->resizeSection(CleanupPreviewModel::size, size);
    header()->resizeSection(CleanupPreviewModel::age, age);
    header()->resizeSection(CleanupPreviewModel::name, viewport()->width() - size - age);
}

void CleanupPreviewView::drawBranches(QPainter* painter, const QRect& area, const QModelIndex& index) const {
    QStyleOptionViewItem row;
    initViewItemOption(&row);
    row.rect = area;
    row.state.setFlag(QStyle::State_Selected, selectionModel()->isSelected(index));
    const Painting::Mirrored mirrored(*painter, area, layoutDirection());
    paintGround(*painter, row);
    if (!m_model.hasChildren(index))
        return;
    const QRect place(area.right() - previewIndentation + 1, area.top(), previewIndentation, area.height());
    Symbols::draw(*painter,
                  isExpanded(index) ? QStringLiteral("chevron.down") : QStringLiteral("chevron.right"),
                  Theme::color(Role::secondaryText), place, branchSymbolSize);
}

void CleanupPreviewView::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Space || event->modifiers() != Qt::NoModifier)
        return TableView::keyPressEvent(event);
    const QModelIndexList rows = selectionModel()->selectedRows();
    if (rows.isEmpty())
        return;
    const bool isTicked = m_model.isTicked(rows.first());
    for (const QModelIndex& row : rows)
        m_model.setData(row, isTicked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}

void CleanupPreviewView::fillMenu(QMenu& menu, const QModelIndex& index) {
    const QModelIndex row = index.siblingAtColumn(CleanupPreviewModel::name);
    const CleanupChoice::Node& node = m_model.node(row);
    if (node.kind != CleanupChoice::Kind::note) {
        const bool isTicked = m_model.isTicked(row);
        menu.addAction(isTicked ? tr("Leave out") : tr("Include"), this,
                       [this, row = QPersistentModelIndex(row)] { m_model.toggle(row); });
    }
    if (node.folder >= 0)
        menu.addAction(tr("Reveal"), this, [this, row = QPersistentModelIndex(row)] { reveal(row); });
}

/// Opens the folder that the entry is in.
void CleanupPreviewView::reveal(const QModelIndex& index) {
    if (!index.isValid())
        return;
    const QString path = m_model.choice().pathOf(m_model.nodeOf(index));
    const bool isEntry = m_model.node(index).kind == CleanupChoice::Kind::entry;
    const QString folder = isEntry ? QFileInfo(path).path() : path;
    openFolder(this, folder,
               [this, folder] { Q_EMIT failed(tr("Could not open %1.").arg(Formatters::visible(folder))); });
}
