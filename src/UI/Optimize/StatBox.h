#pragma once

#include "UI/Style/Theme.h"

#include <QWidget>

/// One figure under its label, on a background in its colour.
class StatBox : public QWidget {
    Q_OBJECT

public:
    explicit StatBox(QString label, QWidget* parent = nullptr);

    void set(const QString& value, Theme::Role role);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_label;
    QString m_value;
    Theme::Role m_role = Theme::Role::secondaryText;
};
