#pragma once

#include "UI/Style/Theme.h"

#include <QWidget>

/// A symbol as a widget.
class SymbolView : public QWidget {
    Q_OBJECT

public:
    SymbolView(Theme::Length size, Theme::Length width, QWidget* parent = nullptr);

    void set(const QString& name, Theme::Role role);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_name;
    Theme::Role m_role = Theme::Role::secondaryText;
    Theme::Length m_size;
};
