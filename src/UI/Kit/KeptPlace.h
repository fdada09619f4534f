#pragma once

#include "Core/StoreLater.h"

#include <QObject>
#include <QString>

class QWidget;

/// Keeps where a window is and how large, for the next start. Under Wayland the compositor places windows,
/// and only the size is kept.
class KeptPlace : public QObject {
    Q_OBJECT

public:
    /// Belongs to the window.
    KeptPlace(QWidget& window, SettingsFile& file, QString key);

    /// Gives the window its place of before; one on a screen that is gone is moved to one that is there.
    /// Returns false, and changes nothing, when there was none.
    bool restore();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget& m_window;
    SettingsFile& m_file;
    QString m_key;
    StoreLater m_storeLater;
};
