#pragma once

#include "Core/Instant.h"
#include "Core/Observable.h"
#include "Platform/Platform.h"
#include "Platform/Result.h"

#include <QByteArray>
#include <QCoroTask>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>
#include <stop_token>

class ActionLog;
class Preferences;
struct ToolResult;

namespace CleanupPlan {
struct RemovalReport;
}

/// A folder that a build has left in a project.
struct Leftover {
    QByteArray path; ///< absolute, in any encoding
    quint64 sizeBytes = 0;
    QByteArray record; ///< in the listing of the project

    bool operator==(const Leftover&) const = default;
};

/// A project with what builds have left in it.
struct LeftoverProject {
    enum class Changes { unknown, none, uncommitted };

    QByteArray path;                     ///< absolute, in any encoding
    std::optional<Instant> lastUse = {}; ///< its newest source or last commit
    QStringList users = {};              ///< running programs that work in it
    QString listedFolder = {};           ///< whose listing the records are of
    QByteArray header = {};              ///< of that listing
    QList<Leftover> folders = {};
    quint64 sizeBytes = 0;
    Changes changes = Changes::unknown; ///< what version control says

    bool operator==(const LeftoverProject&) const = default;

    /// Reads what the program `project_leftovers` prints, without what is malformed. The largest come first.
    static QList<LeftoverProject> parse(const QByteArray& report);
};

/// What builds have left in the user's projects, and its removal.
class ProjectLeftovers : public Observable {
    Q_OBJECT

public:
    /// The outcome of a removal.
    struct Removal {
        int folders = 0; ///< that are gone
        quint64 freedBytes = 0;
        QStringList failures = {}; ///< the path of each that is left, with the reason
        bool wasCancelled = false;
        /// What came back on the volumes; negative when other programs wrote more.
        std::optional<qint64> volumeBytes = std::nullopt;

        bool operator==(const Removal&) const = default;
    };

    /// How far a search or a removal has come.
    struct Progress {
        QByteArray folder = {}; ///< that it looks into or removes; empty at first
        int found = 0;          ///< projects with leftovers, by a search
        quint64 bytes = 0;      ///< removed so far
        quint64 totalBytes = 0; ///< to be removed

        bool operator==(const Progress&) const = default;
    };

    /// `preferences` and `log` outlive this.
    ProjectLeftovers(const Platform& platform, const Preferences& preferences, ActionLog& log);

    const QList<LeftoverProject>& projects() const { return m_projects; }
    bool isSearching() const { return m_isSearching; }
    bool isRemoving() const { return m_isRemoving; }
    /// Returns how far the search or the removal that runs has come.
    const Progress& progress() const { return m_progress; }
    /// Returns when a search last ended by itself.
    const std::optional<Instant>& lastSearch() const { return m_lastSearch; }
    /// Returns the space of all leftovers.
    quint64 totalBytes() const;
    /// Returns why the last search found nothing, or not all, or an empty text.
    const QString& searchFailure() const { return m_searchFailure; }
    const std::optional<Removal>& lastRemoval() const { return m_lastRemoval; }

    /// Looks below the folders, and below the home folder where there are none.
    QCoro::Task<> search(QStringList folders);
    /// Asks git whether the project has changes that are not committed, once after each search.
    QCoro::Task<> findChanges(QByteArray project);
    /// Removes all leftovers of these projects as they were found, except of those that a program works in by
    /// now. Logs each folder.
    QCoro::Task<> remove(QList<LeftoverProject> projects);
    /// Ends the search and the removal.
    void stop();

private:
    void follow(const QByteArray& record);
    QString failureOf(const ToolResult& result, bool wasStopped) const;
    QCoro::Task<Removal> removeOne(LeftoverProject project, std::stop_token stop);
    QCoro::Task<Outcome> removeFolder(LeftoverProject project, Leftover folder, std::stop_token stop,
                                      std::shared_ptr<CleanupPlan::RemovalReport> report);
    QCoro::Task<QStringList> usersOf(QByteArray project, std::stop_token stop);
    void forget(const Leftover& folder);

    Platform m_platform;
    const Preferences& m_preferences;
    ActionLog& m_log;
    QList<LeftoverProject> m_projects;
    QSet<QByteArray> m_asked; ///< the projects whose changes were asked for
    bool m_isSearching = false;
    bool m_isRemoving = false;
    Progress m_progress;
    std::optional<Instant> m_lastSearch;
    QString m_searchFailure;
    std::optional<Removal> m_lastRemoval;
    int m_searchesBegun = 0;
    std::stop_source m_stop;
};
