#pragma once

#include "Platform/Result.h"

/// The program's place among those that start when the user logs in.
class LoginItem {
public:
    virtual ~LoginItem() = default;

    /// Starts the program that is running now at every later login. Again is fine.
    virtual Outcome registerItem() = 0;
    /// The opposite. Not being registered is no failure.
    virtual Outcome unregisterItem() = 0;

    /// Whether the running program is where it will stay: false for one that lies where it was built.
    virtual bool isInstalled() const = 0;
    /// Where what starts at login is a program that is gone, an installed one takes its place. Fails
    /// silently.
    virtual void replaceGoneProgram() = 0;
};
