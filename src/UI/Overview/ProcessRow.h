#pragma once

#include "Core/Models.h"

#include <QWidget>

/// One member of an open group: id, name, CPU share and memory.
class ProcessRow : public QWidget {
    Q_OBJECT

public:
    explicit ProcessRow(QWidget* parent = nullptr);

    void set(const ProcSample& process);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    qint32 m_pid = 0;
    QString m_name;
    QString m_cpu;
    QString m_memory;
};
