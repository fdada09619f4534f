#pragma once

#include "Core/Sampling/ProcSample.h"
#include "UI/Style/Theme.h"

#include <QWidget>

class IconButton;

/// One member of an open group: PID, name, CPU share and memory, and the buttons that end it. A click means
/// the process that was shown when the button was pressed.
class ProcessRow : public QWidget {
    Q_OBJECT

public:
    explicit ProcessRow(QWidget* parent = nullptr);

    void set(const ProcSample& process);

Q_SIGNALS:
    void quitRequested(const ProcSample& process);
    void forceKillRequested(const ProcSample& process);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    IconButton* addButton(const QString& symbol, const QString& help, Theme::Role tint,
                          void (ProcessRow::*request)(const ProcSample&));

    ProcSample m_process;
    QString m_name;
    QString m_cpu;
    QString m_memory;
    int m_buttonsWidth = 0;
};
