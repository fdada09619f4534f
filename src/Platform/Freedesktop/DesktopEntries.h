#pragma once

#include "Platform/Freedesktop/DesktopEntry.h"

#include <QDateTime>
#include <QHash>
#include <QList>

#include <chrono>

/// The applications of the desktop's menu and their programs, from the folders of desktop entries. Read at
/// the first question, and again once a folder of them has changed; that is looked at every few seconds at
/// most.
///
/// An entry has a program when its command names one that exists. Launchers and interpreters (env, sh,
/// python, flatpak, ...) are no application's program: what they were told to run decides.
class DesktopEntries {
public:
    struct Program {
        DesktopEntry entry;
        QString file; ///< all links resolved
        bool isScript = false;
        bool isAmbiguous = false; ///< entries of different programs have the same claim
    };

    /// Where this user's entries lie, the most important first (XDG_DATA_HOME, XDG_DATA_DIRS).
    static QStringList usualFolders();
    explicit DesktopEntries(QStringList folders = usualFolders(),
                            std::chrono::milliseconds timeBetweenLooks = std::chrono::seconds(3));

    /// The entry whose program that file is; else that of a program in the same private folder, which is no
    /// folder that several programs share; else that of a script by the same file name, which starts it, or
    /// by the name of a private folder and the program in it. The file need not exist. Null where none or
    /// several could be meant. Valid until the next question.
    const Program* ofFile(const QString& file);
    /// The entry whose program is exactly that file.
    const Program* ofProgram(const QString& file);
    /// The program that the entry of that id starts.
    const Program* ofId(const QString& id);
    /// An entry of that id that the menu shows, with or without a program of its own; null for none.
    const DesktopEntry* withId(const QString& id);
    /// The ids of the applications that a person may mean by `text`: those of that name in the menu; where
    /// there is none, of that id; else of that program's file name. One for each program.
    QStringList idsOf(const QString& text);

    /// Whether that is the file name of a program that only runs what it is told to.
    static bool isInterpreter(QStringView fileName);

private:
    struct Folder {
        QString path;
        QDateTime changed;

        bool operator==(const Folder&) const = default;
    };

    void renew();
    void read();
    void readFolder(const QString& root, const QString& below, int depth);
    void readFile(const QString& path, const QString& id);
    void index(const DesktopEntry& entry);
    bool hasChanged() const;
    /// Whether whatever lies in that folder belongs to one application.
    bool isPrivate(const QString& folder) const;
    bool isInstalled(const QString& folder) const;
    const Program* ofScriptNamedLike(const QString& file) const;
    QString mainIdOf(const DesktopEntry& entry) const;

    QStringList m_folders;
    std::chrono::milliseconds m_timeBetweenLooks;
    std::chrono::steady_clock::time_point m_lastLook;
    QList<Folder> m_read; ///< empty before the first reading
    QHash<QString, DesktopEntry> m_byId;
    QHash<QString, QString> m_fileOfId;
    QHash<QString, Program> m_byFile;
    QHash<QString, Program> m_byFolder;
    QHash<QString, Program> m_byScriptName;
};
