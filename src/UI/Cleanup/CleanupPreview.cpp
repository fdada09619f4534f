#include "UI/Cleanup/CleanupPreview.h"

#include "Core/Cleanup/CacheCleanup.h"
#include "Core/Formatters.h"
#include "Platform/Result.h"
#include "UI/Cleanup/CleanupPreviewModel.h"
#include "UI/Cleanup/CleanupPreviewView.h"
#include "UI/Kit/PushButton.h"
#include "UI/Kit/SearchField.h"
#include "UI/Kit/TextLabel.h"

#include <QHBoxLayout>
#include <QPointer>

using Theme::TextStyle;

CleanupPreview::CleanupPreview(CacheCleanup& cleanup, const QList<CacheTarget>& targets,
                               CleanupChoice::Levels levels, Instant now, QWidget* parent)
    : QWidget(parent)
    , m_cleanup(cleanup)
    , m_model(new CleanupPreviewModel(targets, levels, now, this))
    , m_view(new CleanupPreviewView(*m_model))
    , m_search(new SearchField(tr("Search")))
    , m_summary((new TextLabel(TextStyle::caption))->secondary()->wrapped()) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Theme::rowSpacing);
    column->addLayout(makeTools());
    column->addWidget(m_view, 1);
    column->addWidget(m_summary);
    connect(m_search, &SearchField::textChanged, m_model, &CleanupPreviewModel::filter);
    connect(m_model, &CleanupPreviewModel::insideWanted, this, &CleanupPreview::listInside);
    connect(m_model, &CleanupPreviewModel::ticksChanged, this, &CleanupPreview::refresh);
    connect(m_view, &CleanupPreviewView::failed, m_summary, &TextLabel::setPlainText);
    refresh();
}

QLayout* CleanupPreview::makeTools() {
    auto* all = new PushButton(tr("All"));
    auto* none = new PushButton(tr("None"));
    all->setSmall();
    none->setSmall();
    all->setToolTip(tr("Tick all that is shown"));
    none->setToolTip(tr("Leave out all that is shown"));
    connect(all, &QPushButton::clicked, m_model, [this] { m_model->setShownTicked(true); });
    connect(none, &QPushButton::clicked, m_model, [this] { m_model->setShownTicked(false); });
    auto* row = new QHBoxLayout;
    row->setSpacing(Theme::rowSpacing);
    row->addWidget(m_search, 1);
    row->addWidget(all);
    row->addWidget(none);
    return row;
}

QList<CacheTarget> CleanupPreview::chosen() const {
    return m_model->choice().chosen();
}

bool CleanupPreview::isEmpty() const {
    return m_model->choice().isEmpty();
}

QStringList CleanupPreview::leftOut() const {
    return m_model->choice().leftOut();
}

void CleanupPreview::listInside(CleanupChoice::Index index) {
    const CleanupChoice::Node& node = m_model->choice().node(index);
    const CacheTarget& target = m_model->choice().targets()[node.target];
    m_cleanup
        .listInside(target.rule, target.listed[node.folder].path,
                    m_model->choice().entryOf(index).path.toByteArray())
        .then([self = QPointer<CleanupPreview>(this), index](const Result<QByteArray>& listing) {
            if (!self)
                return;
            if (listing.done)
                self->m_model->insert(index, listing.value);
            else
                self->m_summary->setPlainText(
                    tr("Could not look into %1: %2")
                        .arg(Formatters::visible(self->m_model->choice().nameOf(index)),
                             Formatters::visible(listing.reason)));
        });
}

void CleanupPreview::refresh() {
    m_sum = m_model->choice().sum();
    QString text = tr("%1 will come back").arg(Formatters::bytes(m_sum.bytes));
    if (m_sum.leftOut > 0)
        text += tr(" • %n left out", nullptr, static_cast<int>(m_sum.leftOut));
    m_summary->setPlainText(text);
    Q_EMIT changed();
}
