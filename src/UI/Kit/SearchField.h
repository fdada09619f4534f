#pragma once

#include <QLineEdit>

#include <QString>

/// A line to search by: a magnifier before it, a button that clears it, and Escape does the same.
class SearchField : public QLineEdit {
    Q_OBJECT

public:
    explicit SearchField(const QString& prompt, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};
