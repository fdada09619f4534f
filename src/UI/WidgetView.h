#pragma once

#include "UI/Kit/RowPool.h"
#include "UI/Style/Theme.h"

#include <QWidget>

#include <array>

class AppModel;
class IconButton;
class MiniTile;
class PanelRow;
class SymbolView;
class TextLabel;
class QGraphicsDropShadowEffect;
class QVBoxLayout;

/// The card of the floating widget.
class WidgetView : public QWidget {
    Q_OBJECT

public:
    static constexpr Theme::Length cardWidth{240};
    static constexpr double cornerRadius = 14;
    static constexpr qsizetype shownGroups = 3;

    explicit WidgetView(AppModel& model, QWidget* parent = nullptr);

    /// Returns whole gigabytes from one on, else whole megabytes: "12G", "512M".
    static QString shortBytes(quint64 bytes);

Q_SIGNALS:
    void close();
    void openMain();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QLayout* makeHeader();
    QLayout* makeGrid();
    QLayout* makeGroups();
    QWidget* makeAlert();
    void refresh();
    void refreshGrid();
    void refreshGroups();
    void refreshAlert();

    AppModel& m_model;
    IconButton* m_open;
    IconButton* m_hide;
    std::array<MiniTile*, 4> m_tiles{};
    QVBoxLayout* m_groupColumn = nullptr;
    RowPool<PanelRow> m_groupRows;
    QWidget* m_alertSection;
    SymbolView* m_worst = nullptr; ///< the severity of the gravest alert
    PanelRow* m_alert;
    TextLabel* m_more;
};

/// A figure on a coloured gradient.
class MiniTile : public QWidget {
    Q_OBJECT

public:
    explicit MiniTile(QString title, QWidget* parent = nullptr);

    void set(const QString& value, Theme::Role role);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_title;
    QString m_value;
    Theme::Role m_role = Theme::Role::green;
    QGraphicsDropShadowEffect* m_shadow;
};
