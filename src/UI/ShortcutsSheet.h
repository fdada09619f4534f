#pragma once

#include <QDialog>

/// The keys of the main window and what they do. It deletes itself when it is closed.
class ShortcutsSheet : public QDialog {
    Q_OBJECT

public:
    explicit ShortcutsSheet(QWidget* parent = nullptr);
};
