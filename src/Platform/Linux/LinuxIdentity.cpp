#include "Platform/Linux/LinuxIdentity.h"

#include <unistd.h>

quint32 LinuxIdentity::userId() const {
    return getuid();
}

qint32 LinuxIdentity::processId() const {
    return getpid();
}
