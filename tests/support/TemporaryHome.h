#pragma once

#include "support/TemporaryFolder.h"

#include <map>

/// Sets HOME to an empty folder and unsets the XDG variables for its lifetime.
class TemporaryHome : public TemporaryFolder {
public:
    TemporaryHome() {
        for (const char* name :
             {"HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_STATE_HOME"}) {
            m_before[name] = qgetenv(name);
            qunsetenv(name);
        }
        qputenv("HOME", QFile::encodeName(path()));
    }
    ~TemporaryHome() {
        for (const auto& [name, value] : m_before)
            value.isNull() ? qunsetenv(name.c_str()) : qputenv(name.c_str(), value);
    }
    TemporaryHome(const TemporaryHome&) = delete;
    TemporaryHome& operator=(const TemporaryHome&) = delete;

private:
    std::map<std::string, QByteArray> m_before; ///< null for an unset one
};
