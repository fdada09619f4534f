#pragma once

#include <QtGlobal>

constexpr quint64 KiB = quint64(1) << 10;
constexpr quint64 MiB = KiB << 10;
constexpr quint64 GiB = MiB << 10;
