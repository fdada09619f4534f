#pragma once

#include "Core/Cleanup/CacheTarget.h"
#include "Core/Instant.h"

#include <functional>

class CacheCleanup;
class QObject;
class QWidget;

/// The questions before a clean. `clean` is called with what was chosen of the targets that were shown,
/// whatever was scanned meanwhile, and only while `owner` exists.
namespace CleanupConfirmation {

void ask(QWidget* parent, QObject* owner, const CacheTarget& target, const std::function<void()>& clean);
/// Lets the user leave out parts. `now` is the base of the ages shown.
void askAll(QWidget* parent, QObject* owner, CacheCleanup& cleanup, const QList<CacheTarget>& targets,
            Instant now,
            const std::function<void(const QList<CacheTarget>&, const QStringList& leftOut)>& clean);

} // namespace CleanupConfirmation
