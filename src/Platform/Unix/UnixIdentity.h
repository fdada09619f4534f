#pragma once

#include "Platform/Identity.h"

/// Who the kernel says we are.
class UnixIdentity : public Identity {
public:
    quint32 userId() const override;   ///< getuid(2): the real user, as signals are judged by
    qint32 processId() const override; ///< getpid(2)
};
