#pragma once

#include "UI/Kit/Theme.h"

#include <QPixmap>
#include <QRectF>
#include <QString>
#include <QWidget>

class QPainter;

/// The program's own drawings, tinted by role. An unknown name gives a neutral dot.
namespace Symbols {

/// Every symbol there is, sorted.
QStringList names();

/// A square drawing of `size` device-independent pixels, sharp at `devicePixelRatio`.
QPixmap pixmap(const QString& name, const QColor& tint, int size, double devicePixelRatio);

/// Draws the symbol centred in `area`.
void draw(QPainter& painter, const QString& name, const QColor& tint, const QRectF& area, int size);

} // namespace Symbols

/// A symbol that stands by itself in a layout.
class SymbolView : public QWidget {
    Q_OBJECT

public:
    SymbolView(int size, int width, QWidget* parent = nullptr);

    void set(const QString& name, Theme::Role role);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_name;
    Theme::Role m_role = Theme::Role::secondaryText;
    int m_size;
};
