#include "UI/Sessions/SessionControls.h"

#include "Core/SettingsFile.h"
#include "Core/Translations.h"
#include "UI/Kit/PopUpButton.h"
#include "UI/Kit/SearchField.h"
#include "UI/Kit/TextLabel.h"

#include <QHBoxLayout>

namespace {

constexpr Theme::Length searchWidth{230};

QString sortKey() {
    return QStringLiteral("ui.sessions.sort");
}

} // namespace

SessionControls::SessionControls(SettingsFile& file, QWidget* parent)
    : QWidget(parent)
    , m_file(file)
    , m_total(new TextLabel(Theme::TextStyle::title3, QFont::Bold))
    , m_search(new SearchField(tr("Search sessions")))
    , m_sort(new PopUpButton(tr("Sort"))) {
    for (const SessionSort sort : allCases<SessionSort>())
        m_sort->addItem(Translations::of(sort));
    const auto stored = fromRawValue<SessionSort>(file.text(sortKey()).value_or(QString()));
    m_sort->setCurrentIndex(static_cast<int>(stored.value_or(SessionSort::memory)));
    m_search->setToolTip(tr("Agent, project, name, state, process or port (:5173)"));
    m_search->setFixedWidth(searchWidth);

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Theme::rowSpacing);
    row->addWidget(m_total, 1);
    row->addWidget(m_search);
    row->addWidget(m_sort);
    connect(m_search, &QLineEdit::textChanged, this, &SessionControls::changed);
    connect(m_sort, &QComboBox::currentIndexChanged, this, [this] {
        m_file.store(sortKey(), rawValue(sort()));
        Q_EMIT changed();
    });
}

void SessionControls::setTotal(const QString& text) {
    m_total->setPlainText(text);
}

SessionQuery SessionControls::query() const {
    return {.search = m_search->text()};
}

SessionSort SessionControls::sort() const {
    return static_cast<SessionSort>(m_sort->currentIndex());
}

void SessionControls::focusSearch() {
    m_search->setFocus();
    m_search->selectAll();
}

void SessionControls::clearSearch() {
    m_search->clear();
    m_search->setFocus();
}
