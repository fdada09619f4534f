#pragma once

#include "Core/RawValue.h"
#include "UI/Kit/StoreLater.h"

#include <QWidget>

#include <array>

class AppModel;
class IconButton;
class MessageBanner;
class MessageCenter;
class Preferences;
class QListWidget;
class QMenu;
class QSplitter;
class QStackedWidget;
class TextLabel;

/// The content of the main window: a sidebar, and the selected section under the current announcement.
class RootView : public QWidget {
    Q_OBJECT

public:
    enum class Tab { overview, optimize, processes, cleanup };

    static constexpr QSize minimumContent{1000, 680};

    RootView(AppModel& model, Preferences& preferences, MessageCenter& messages, QWidget* parent = nullptr);

    Tab tab() const;
    void select(Tab tab);
    /// Sets the menu that the button at the foot of the sidebar opens. Does not own it.
    void setMenu(QMenu* menu);

Q_SIGNALS:
    /// Emitted when the user wants to show or hide the floating widget.
    void widgetToggled();

protected:
    void changeEvent(QEvent* event) override;

private:
    QWidget* makeDetail();
    void restoreSidebar(QSplitter* split, const SettingsFile& file);
    void showSection(int row);
    /// Adds a section. The calls have to be in the order of Tab.
    void addSection(Tab tab, QWidget* section);
    void tintSidebar();

    StoreLater m_storeLater;
    QListWidget* m_sidebar;
    IconButton* m_menuButton;
    MessageBanner* m_banner;
    TextLabel* m_title;
    QStackedWidget* m_sections;
};

template <>
inline constexpr std::array rawValueTable<RootView::Tab> = {
    RawValueRow<RootView::Tab>{RootView::Tab::overview, u"Overview"},
    RawValueRow<RootView::Tab>{RootView::Tab::optimize, u"Optimize"},
    RawValueRow<RootView::Tab>{RootView::Tab::processes, u"Processes"},
    RawValueRow<RootView::Tab>{RootView::Tab::cleanup, u"Cleanup"},
};

/// Returns the name of the section's symbol, under resources/symbols.
QString tabSymbol(RootView::Tab tab);
