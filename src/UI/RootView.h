#pragma once

#include "Core/RawValue.h"
#include "Core/StoreLater.h"

#include <QWidget>

#include <array>

class AppModel;
class IconButton;
class MessageBanner;
class MessageCenter;
class OverviewView;
class Preferences;
class QListWidget;
class QMenu;
class QSplitter;
class QStackedWidget;
class SessionsView;
class TextLabel;
struct ProcSample;
struct ProcessIdentity;

/// The content of the main window: a sidebar, and the selected section under the current announcement.
class RootView : public QWidget {
    Q_OBJECT

public:
    enum class Tab { overview, optimize, processes, cleanup, sessions };

    static constexpr QSize minimumContent{1000, 680};

    RootView(AppModel& model, Preferences& preferences, MessageCenter& messages, QWidget* parent = nullptr);

    Tab tab() const;
    void select(Tab tab);
    void showSidebar(bool show);
    bool isSidebarShown() const { return m_isSidebarShown; }
    /// Open a dialog over the window, in its section, unless one is open already.
    void openFreeRAM();
    void confirmEnd(const ProcessIdentity& host);
    void confirmQuit(const ProcSample& process);
    /// Sets the menu that the button at the foot of the sidebar opens. Does not own it.
    void setMenu(QMenu* menu);

Q_SIGNALS:
    /// Emitted when the user wants to show or hide the floating widget.
    void widgetToggled();

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QWidget* makeSidebarPane();
    QWidget* makeDetail();
    void restoreSidebar(const SettingsFile& file);
    bool isFolded() const;
    void fitSidebar();
    void showSection(int row);
    void addSections(Preferences& preferences);
    void addKeys();
    /// Adds a section. The calls have to be in the order of Tab.
    void addSection(Tab tab, QWidget* section);
    void tintSidebar();
    bool hasDialog() const;

    AppModel& m_model;
    StoreLater m_storeLater;
    QSplitter* m_split;
    QListWidget* m_sidebar;
    IconButton* m_sidebarButton;
    IconButton* m_menuButton;
    MessageBanner* m_banner;
    TextLabel* m_title;
    QWidget* m_noticeRoom; ///< beside the title
    QStackedWidget* m_sections;
    OverviewView* m_overview;
    SessionsView* m_sessionsView;
    double m_sidebarWidth = 0; ///< at the default size of text
    bool m_isSidebarShown = true;
    bool m_wasFolded = false;
};

template <>
inline constexpr std::array rawValueTable<RootView::Tab> = {
    RawValueRow{RootView::Tab::overview, QT_TRANSLATE_NOOP("Translations", "Overview")},
    RawValueRow{RootView::Tab::optimize, QT_TRANSLATE_NOOP("Translations", "Optimize")},
    RawValueRow{RootView::Tab::processes, QT_TRANSLATE_NOOP("Translations", "Processes")},
    RawValueRow{RootView::Tab::cleanup, QT_TRANSLATE_NOOP("Translations", "Cleanup")},
    RawValueRow{RootView::Tab::sessions, QT_TRANSLATE_NOOP("Translations", "Sessions")},
};

/// Returns the name of the section's symbol, under resources/symbols.
QString tabSymbol(RootView::Tab tab);
