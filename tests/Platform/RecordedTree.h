#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

/// A folder that stands in for "/", "/proc" or "/sys" of a machine that is not at hand.
class RecordedTree {
public:
    QString path() const { return m_folder.path(); }

    RecordedTree& with(const QString& name, const QByteArray& text) {
        makeFolder(QFileInfo(name).path());
        QFile file(m_folder.filePath(name));
        if (file.open(QIODevice::WriteOnly))
            file.write(text);
        return *this;
    }

    RecordedTree& makeFolder(const QString& name) {
        QDir(m_folder.path()).mkpath(name);
        return *this;
    }

private:
    QTemporaryDir m_folder;
};
