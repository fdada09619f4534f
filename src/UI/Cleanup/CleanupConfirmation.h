#pragma once

#include "Core/Cleanup/CacheTarget.h"

#include <functional>

class QObject;
class QWidget;

/// The questions before a clean. `clean` is called with the targets that were shown, whatever was scanned
/// meanwhile, and only while `owner` exists.
namespace CleanupConfirmation {

void ask(QWidget* parent, QObject* owner, const CacheTarget& target, const std::function<void()>& clean);
void askAll(QWidget* parent, QObject* owner, const QList<CacheTarget>& targets,
            const std::function<void(const QList<CacheTarget>&)>& clean);

} // namespace CleanupConfirmation
