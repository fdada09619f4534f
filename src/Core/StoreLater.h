#pragma once

#include "Core/SettingsFile.h"

#include <QBasicTimer>
#include <QHash>
#include <QObject>

/// Stores values that change many times a second while the user drags something. A value goes to the file
/// when it has not changed for a moment, at the latest on destruction.
class StoreLater : public QObject {
    Q_OBJECT

public:
    explicit StoreLater(SettingsFile& file)
        : m_file(file) {}
    ~StoreLater() override { storeNow(); }

    void store(const QString& key, const QVariant& value) {
        m_pending.insert(key, value);
        m_timer.start(standstillMs, this);
    }

protected:
    void timerEvent(QTimerEvent*) override { storeNow(); }

private:
    static constexpr int standstillMs = 400;

    void storeNow() {
        m_timer.stop();
        for (auto each = m_pending.cbegin(); each != m_pending.cend(); ++each)
            m_file.store(each.key(), each.value());
        m_pending.clear();
    }

    SettingsFile& m_file;
    QHash<QString, QVariant> m_pending;
    QBasicTimer m_timer;
};
