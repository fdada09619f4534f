#pragma once

#include "Platform/Identity.h"

#include <unistd.h>

class UnixIdentity : public Identity {
public:
    quint32 userId() const override { return getuid(); } ///< the real user, as kill(2) compares it
    qint32 processId() const override { return getpid(); }
};
