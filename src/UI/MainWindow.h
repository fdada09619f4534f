#pragma once

#include <QMainWindow>

class AppModel;

/// The window around RootView.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit MainWindow(AppModel& model, QWidget* parent = nullptr);
};
