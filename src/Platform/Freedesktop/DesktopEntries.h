#pragma once

#include "Platform/Freedesktop/DesktopEntry.h"

#include <QDateTime>
#include <QHash>
#include <QList>

#include <chrono>

/// The applications of the desktop's menu and their programs, from the folders of desktop entries. They are
/// read at the first call and after a folder has changed, which is checked every few seconds at most.
///
/// An entry has a program when its command names an existing one. Launchers and interpreters (env, sh,
/// python, flatpak, ...) do not count: what they run decides.
class DesktopEntries {
public:
    struct Program {
        DesktopEntry entry;
        QString file; ///< with symlinks resolved
        bool isScript = false;
        bool isAmbiguous = false; ///< several programs share the key
    };

    /// Returns this user's folders of entries by priority (XDG_DATA_HOME, XDG_DATA_DIRS).
    static QStringList usualFolders();
    explicit DesktopEntries(QStringList folders = usualFolders(),
                            std::chrono::milliseconds checkInterval = std::chrono::seconds(3));

    /// Returns the entry of the program `file`; else of a program in the same private folder; else of the
    /// script that has the file's name or that of a private folder with its program. The file need not exist.
    /// Returns null when none or several match. Valid until the next call.
    const Program* ofFile(const QString& file);
    /// Returns the entry whose program is exactly `file`.
    const Program* ofProgram(const QString& file);
    /// Returns the program that the entry starts.
    const Program* ofId(const QString& id);
    /// Returns the entry if the menu shows it, even without a program; otherwise null.
    const DesktopEntry* withId(const QString& id);
    /// Returns the ids, one per program, of the applications with the name `text` in the menu, else with that
    /// id, else with that file name.
    QStringList idsOf(const QString& text);

    /// Returns whether the program only runs others.
    static bool isInterpreter(QStringView fileName);

private:
    struct Folder {
        QString path;
        QDateTime changed;
    };

    void renew();
    void read();
    void readFolder(const QString& root, const QString& below, int depth);
    void readFile(const QString& path, const QString& id);
    void index(const DesktopEntry& entry);
    bool hasChanged() const;
    /// Returns whether all in that folder belongs to one application.
    bool isPrivate(const QString& folder) const;
    bool isInstalled(const QString& folder) const;
    const Program* ofScriptNamedLike(const QString& file) const;
    QString mainIdOf(const DesktopEntry& entry) const;

    QStringList m_folders;
    std::chrono::milliseconds m_checkInterval;
    std::chrono::steady_clock::time_point m_lastCheck;
    QList<Folder> m_read; ///< empty before the first reading
    QHash<QString, DesktopEntry> m_byId;
    QHash<QString, QString> m_fileOfId;
    QHash<QString, Program> m_byFile;
    QHash<QString, Program> m_byFolder;
    QHash<QString, Program> m_byScriptName;
};
