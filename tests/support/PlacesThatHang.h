#pragma once

#include "Platform/Places.h"

#include <QSemaphore>

/// Does not answer for one path, as a file server that is gone, until `answer` is called.
class PlacesThatHang : public Places {
public:
    QString silent;

    QList<Place> locate(const QString& path) const override {
        if (path == silent) {
            m_hangs.acquire();
            m_hangs.release();
        }
        return {Place{path}};
    }
    void answer() { m_hangs.release(); }

private:
    mutable QSemaphore m_hangs;
};
