// Renders every screen in both schemes as OUTDIR/NAME-light.png and OUTDIR/NAME-dark.png, on the figures of
// a scripted busy machine. The scale is Qt's own (QT_SCALE_FACTOR). LANGUAGE is one of the settings, or
// "mirrored".

#include "Camera.h"
#include "Mirrored.h"
#include "Screens.h"

#include "Core/Translations.h"
#include "UI/Style/Style.h"

#include <QApplication>
#include <QDir>
#include <QFontDatabase>

#include <cstdio>

using namespace Qt::StringLiterals;

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    const QString language = QString::fromLocal8Bit(argc == 3 ? argv[2] : "system");
    Mirrored mirrored;
    if (language == u"mirrored"_s)
        QCoreApplication::installTranslator(&mirrored);
    else if (const auto known = fromRawValue<Language>(language))
        Translations::install(*known);
    else
        argc = 0;
    QApplication::setStyle(new Style);
    if (argc < 2 || argc > 3 || !QDir().mkpath(QString::fromLocal8Bit(argv[1]))) {
        std::fprintf(stderr, "usage: tavrin_screenshots OUTDIR [LANGUAGE]\n");
        return 2;
    }
    // The off-screen platform has no desktop font of its own.
    if (QFontDatabase::families().contains(u"Inter"_s))
        QApplication::setFont(QFont(u"Inter"_s, 10));
    Camera camera(QString::fromLocal8Bit(argv[1]));
    shootSections(camera);
    shootInspector(camera);
    shootCleanup(camera);
    shootSessions(camera);
    shootFreeRAM(camera);
    shootPanels(camera);
    shootHistory(camera);
    shootBanners(camera);
    shootSettings(camera);
    shootSheets(camera);
    return 0;
}
