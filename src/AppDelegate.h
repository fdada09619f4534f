#pragma once

#include <memory>

class AppModel;
class MainWindow;

/// What happens when launching has finished.
class AppDelegate {
public:
    explicit AppDelegate(AppModel& model);
    ~AppDelegate();

    void applicationDidFinishLaunching();

private:
    AppModel& m_model;
    std::unique_ptr<MainWindow> m_mainWindow;
};
