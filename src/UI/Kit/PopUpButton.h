#pragma once

#include <QComboBox>
#include <QString>

/// A drop-down list in the theme's looks. Its text begins with the label unless that is empty: "Sort: RAM".
class PopUpButton : public QComboBox {
    Q_OBJECT

public:
    explicit PopUpButton(const QString& label, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_label;
};
