#pragma once

#include <QLineEdit>

#include <QString>

/// A search field with a magnifier, which a button and Escape clear.
class SearchField : public QLineEdit {
    Q_OBJECT

public:
    explicit SearchField(const QString& prompt, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};
