#include "UI/Kit/KeptPlace.h"

#include <QEvent>
#include <QWidget>

KeptPlace::KeptPlace(QWidget& window, SettingsFile& file, QString key)
    : QObject(&window)
    , m_window(window)
    , m_file(file)
    , m_key(std::move(key))
    , m_storeLater(file) {
    window.installEventFilter(this);
}

bool KeptPlace::restore() {
    return m_window.restoreGeometry(m_file.bytes(m_key).value_or(QByteArray()));
}

bool KeptPlace::eventFilter(QObject*, QEvent* event) {
    if ((event->type() == QEvent::Move || event->type() == QEvent::Resize) && m_window.isVisible())
        m_storeLater.store(m_key, m_window.saveGeometry());
    return false;
}
