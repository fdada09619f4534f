#pragma once

#include "Core/Cleanup/ProjectLeftovers.h"

/// The sentences about leftovers of projects. Names have their control characters made visible.
namespace LeftoverTexts {

/// Returns the path, with "~" for the home folder.
QString pathOf(const QByteArray& path);
inline QString pathOf(const LeftoverProject& project) {
    return pathOf(project.path);
}

/// Returns the leftovers in the project, relative to it: "node_modules, web/dist".
QString folders(const LeftoverProject& project);
/// Returns "3 days ago", or "unknown".
QString lastUse(const LeftoverProject& project, Instant now);
/// Returns what a person should know before the leftovers go, or an empty text.
QString note(const LeftoverProject& project);

/// Returns whether the project, a leftover or its note contains the text.
bool matches(const LeftoverProject& project, const QString& search);

/// Returns how far the search or the removal that runs has come.
QString progress(const ProjectLeftovers& leftovers);
QString outcome(const ProjectLeftovers::Removal& removal);

} // namespace LeftoverTexts
