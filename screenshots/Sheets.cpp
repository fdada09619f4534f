#include "Camera.h"
#include "Screens.h"

#include "UI/Style/FigureIcon.h"
#include "UI/Style/Painting.h"
#include "UI/Style/Symbols.h"
#include "UI/Style/Theme.h"

#include <QApplication>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

QPixmap blank(QSize size, double ratio) {
    QPixmap sheet(size * ratio);
    sheet.setDevicePixelRatio(ratio);
    sheet.fill(Theme::color(Theme::Role::windowFill));
    return sheet;
}

/// Returns every symbol at 16, 24 and 48 points with its name.
QPixmap contactSheet(double ratio) {
    constexpr int columns = 5;
    constexpr QSize cell(250, 92);
    const QStringList names = Symbols::names();
    const int rows = (static_cast<int>(names.size()) + columns - 1) / columns;
    QPixmap sheet = blank(QSize(columns * cell.width(), rows * cell.height()), ratio);
    QPainter painter(&sheet);
    Painting::setTextStyle(painter, Theme::TextStyle::caption, Theme::Role::secondaryText);
    const QColor ink = Theme::color(Theme::Role::primaryText);
    for (int i = 0; i < names.size(); ++i) {
        const QPoint corner(i % columns * cell.width() + 12, i / columns * cell.height() + 8);
        int x = corner.x();
        for (const int size : {16, 24, 48}) {
            Symbols::draw(painter, names[i], ink, QRectF(x, corner.y(), size, 48), size);
            x += size + 16;
        }
        painter.drawText(QPoint(corner.x(), corner.y() + 70), names[i]);
    }
    return sheet;
}

QPixmap grey(const QPixmap& picture) {
    QImage image = picture.toImage().convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            const int level = qGray(pixel);
            image.setPixel(x, y, qRgba(level, level, level, qAlpha(pixel)));
        }
    }
    QPixmap result = QPixmap::fromImage(image);
    result.setDevicePixelRatio(picture.devicePixelRatio());
    return result;
}

/// Returns the tray icons, with each mark, on a light or a dark tray: at their real sizes, without colours,
/// and enlarged.
QPixmap traySheet(double ratio) {
    using Severity = Alert::Severity;
    const QList<QStringList> contents{{}, {u"7"_s}, {u"100"_s}, {u"23"_s, u"61"_s}, {u"100"_s, u"99"_s}};
    const std::optional<Severity> marks[] = {{}, Severity::info, Severity::warn, Severity::danger};
    QPixmap sheet = blank(QSize(760, 4 * 220), ratio);
    QPainter painter(&sheet);
    int y = 16;
    for (const auto& worst : marks) {
        int x = 16;
        for (const QStringList& figures : contents) {
            const QIcon icon = FigureIcon::make(figures, worst);
            painter.drawPixmap(x, y, icon.pixmap(16));
            painter.drawPixmap(x + 24, y, icon.pixmap(22));
            painter.drawPixmap(x + 54, y, icon.pixmap(44));
            painter.drawPixmap(x + 106, y, grey(icon.pixmap(22)));
            painter.drawPixmap(x, y + 56, icon.pixmap(22).scaled(132, 132));
            x += 148;
        }
        y += 220;
    }
    return sheet;
}

} // namespace

void shootSheets(Camera& camera) {
    for (const bool dark : {false, true}) {
        Theme::apply({.dark = dark});
        camera.save(contactSheet(qApp->devicePixelRatio()), u"symbols"_s, dark);
        camera.save(traySheet(qApp->devicePixelRatio()), u"tray"_s, dark);
    }
}
