// Draws a picture as a PNG: draw_icon SVG SIZE PNG
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

int main(int argc, char* argv[]) {
    if (argc != 4)
        return 2;
    const int size = QByteArray(argv[2]).toInt();
    QSvgRenderer renderer(QString::fromLocal8Bit(argv[1]));
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    if (!renderer.isValid() || image.isNull())
        return 1;
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    painter.end();
    return image.save(QString::fromLocal8Bit(argv[3]), "PNG") ? 0 : 1;
}
