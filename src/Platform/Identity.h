#pragma once

#include <QtGlobal>

/// Who this program is: what actions compare with so that they never touch another user or ourselves.
class Identity {
public:
    virtual ~Identity() = default;

    virtual quint32 userId() const = 0;
    virtual qint32 processId() const = 0;
};
