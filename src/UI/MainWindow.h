#pragma once

#include <QMainWindow>

class AppModel;
class MessageCenter;
class Preferences;
class RootView;

/// The window around RootView. Closing it only orders it out: the program goes on in the status area, and
/// the window comes back on its first section.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    MainWindow(AppModel& model, Preferences& preferences, MessageCenter& messages, QWidget* parent = nullptr);

Q_SIGNALS:
    void widgetToggled();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void addMenuActions();

    RootView* m_root;
};
