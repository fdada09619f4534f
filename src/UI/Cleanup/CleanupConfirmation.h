#pragma once

#include "Core/Cleanup/CacheTarget.h"

#include <functional>

class QObject;
class QWidget;

/// The questions before a clean. What was shown is what `clean` is called with, whatever was measured anew
/// meanwhile; it is not called when `owner` is gone by then.
namespace CleanupConfirmation {

void ask(QWidget* parent, QObject* owner, const CacheTarget& target, const std::function<void()>& clean);
void askAll(QWidget* parent, QObject* owner, const QList<CacheTarget>& targets,
            const std::function<void(const QList<CacheTarget>&)>& clean);

} // namespace CleanupConfirmation
