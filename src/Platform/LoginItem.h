#pragma once

#include "Platform/Result.h"

/// The program's entry among those that start at login.
class LoginItem {
public:
    virtual ~LoginItem() = default;

    /// Makes the running program start at every later login. Idempotent.
    virtual Outcome registerItem() = 0;
    /// Undoes `registerItem`. Idempotent.
    virtual Outcome unregisterItem() = 0;

    /// Returns false for a program in its build tree.
    virtual bool isInstalled() const = 0;
    /// Registers an installed program in place of one that no longer exists. Fails silently.
    virtual void replaceGoneProgram() = 0;
};
