#pragma once

#include <QAbstractButton>

/// One tab of a window's tab row: a symbol over its label. Of the buttons of one parent one is checked.
class TabButton : public QAbstractButton {
    Q_OBJECT

public:
    TabButton(QString symbol, const QString& label, QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_symbol;
};
