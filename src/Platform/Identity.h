#pragma once

#include <QtGlobal>

/// This program's user and process. Actions compare with them to spare other users and the program itself.
class Identity {
public:
    virtual ~Identity() = default;

    virtual quint32 userId() const = 0;
    virtual qint32 processId() const = 0;
};
