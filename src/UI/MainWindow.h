#pragma once

#include <QMainWindow>

class AppModel;
class MessageCenter;
class Preferences;
class RootView;

/// The window around RootView. Closing hides it: the program goes on in the status area, and the window comes
/// back on its first section. Its size and place are stored.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    MainWindow(AppModel& model, Preferences& preferences, MessageCenter& messages, QWidget* parent = nullptr);

    RootView& root() { return *m_root; }

Q_SIGNALS:
    void widgetToggled();
    void settingsRequested();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void addMenuActions();

    RootView* m_root;
};
