#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <map>

/// HOME in an empty folder of its own, and none of the XDG variables, for as long as it lives.
class TemporaryHome {
public:
    TemporaryHome() {
        for (const char* name : {"HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME"}) {
            m_before[name] = qgetenv(name);
            qunsetenv(name);
        }
        qputenv("HOME", QFile::encodeName(m_folder.path()));
    }
    ~TemporaryHome() {
        for (const auto& [name, value] : m_before)
            value.isNull() ? qunsetenv(name.c_str()) : qputenv(name.c_str(), value);
    }
    TemporaryHome(const TemporaryHome&) = delete;
    TemporaryHome& operator=(const TemporaryHome&) = delete;

    QString path(const QString& below = {}) const {
        return below.isEmpty() ? m_folder.path() : m_folder.filePath(below);
    }
    QString makeFolder(const QString& below) const {
        QDir().mkpath(path(below));
        return path(below);
    }
    QString makeFile(const QString& below, const QByteArray& content = "x") const {
        makeFolder(QFileInfo(below).path());
        QFile file(path(below));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("cannot write %s", qPrintable(path(below)));
        return path(below);
    }

private:
    QTemporaryDir m_folder;
    std::map<std::string, QByteArray> m_before; ///< null for one that was not set
};
