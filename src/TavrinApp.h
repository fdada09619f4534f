#pragma once

#include <QApplication>

#include <memory>

class AppDelegate;
struct LaunchOptions;

/// The application object: its identity, its style and its delegate.
class TavrinApp : public QApplication {
    Q_OBJECT

public:
    TavrinApp(int& argc, char** argv);
    ~TavrinApp() override;

    /// Runs until the user quits, and returns the exit status. A program that runs already gets the options.
    int run(const LaunchOptions& options);

private:
    std::unique_ptr<AppDelegate> m_appDelegate;
};
