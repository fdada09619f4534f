#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QUuid>

#include <optional>

/// A named rule: which of the user's processes one press of its button signals.
struct QuickKillPreset {
    QUuid id;
    QString name;
    QString pattern;           ///< looked for in name, path and arguments; an empty one matches nothing
    double minIdleMinutes = 0; ///< 0: no condition
    double minRSSMB = 0;       ///< MiB; 0: no condition
    bool force = false;        ///< SIGKILL instead of SIGTERM
    QString symbol;

    bool operator==(const QuickKillPreset&) const = default;

    /// The built-in list; its ids are new in every run of the program.
    static const QList<QuickKillPreset>& defaults();
    /// What the editor starts from: a new id and nothing else set.
    static QuickKillPreset blank();

    /// The stored document, a JSON array of objects. Empty bytes when a threshold is no finite number, which
    /// JSON cannot hold.
    static QByteArray encode(const QList<QuickKillPreset>& presets);
    /// Empty unless the whole document is readable: every object with all seven keys of the right types.
    static std::optional<QList<QuickKillPreset>> decode(const QByteArray& json);

    /// "pattern: claude • idle≥15m • RAM≥500MB"
    QString summaryLine() const;
    /// "NAME: killed 2/3", or "NAME: nothing matched".
    QString outcomeMessage(int matched, int killed) const;
};
