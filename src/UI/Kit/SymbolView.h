#pragma once

#include "UI/Style/Theme.h"

#include <QIcon>
#include <QWidget>

/// A symbol as a widget, or an icon of other programs.
class SymbolView : public QWidget {
    Q_OBJECT

public:
    SymbolView(Theme::Length size, Theme::Length width, QWidget* parent = nullptr);

    void set(const QString& name, Theme::Role role);
    /// Shows an icon in place of the symbol; a null one ends that.
    void setIcon(const QIcon& icon);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_name;
    Theme::Role m_role = Theme::Role::secondaryText;
    Theme::Length m_size;
    QIcon m_icon;
};
