#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QUuid>

#include <optional>

/// A named rule for the user's processes that one press of its button signals.
struct QuickKillPreset {
    QUuid id;
    QString name;
    QString pattern;           ///< searched in name, path and arguments; an empty one matches nothing
    double minIdleMinutes = 0; ///< 0: no condition
    double minRSSMB = 0;       ///< MiB; 0: no condition
    bool force = false;        ///< SIGKILL instead of SIGTERM
    QString symbol;

    bool operator==(const QuickKillPreset&) const = default;

    /// Returns the built-in list, with new ids in every run of the program.
    static const QList<QuickKillPreset>& defaults();
    /// Returns an empty preset with a new id, for the editor.
    static QuickKillPreset blank();

    /// Returns the stored document, a JSON array of objects. Returns nothing when a threshold is not finite,
    /// because JSON has no such number.
    static QByteArray encode(const QList<QuickKillPreset>& presets);
    /// Returns an empty optional unless every object has all seven keys with the right types.
    static std::optional<QList<QuickKillPreset>> decode(const QByteArray& json);

    /// Returns "pattern: claude • idle≥15m • RAM≥500MB".
    QString summaryLine() const;
    /// Returns "NAME: killed 2/3" or "NAME: nothing matched".
    QString outcomeMessage(int matched, int killed) const;
};
