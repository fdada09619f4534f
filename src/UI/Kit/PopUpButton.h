#pragma once

#include <QComboBox>
#include <QString>

/// A choice of one among a few, in the theme's looks. What it shows begins with a label of its own when one
/// is given: "Sort: RAM".
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
