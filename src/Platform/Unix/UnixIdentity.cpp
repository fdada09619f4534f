#include "Platform/Unix/UnixIdentity.h"

#include <unistd.h>

quint32 UnixIdentity::userId() const {
    return getuid();
}

qint32 UnixIdentity::processId() const {
    return getpid();
}
