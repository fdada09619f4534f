#include "Core/Translations.h"
#include "UI/Style/Style.h"

#include <QApplication>
#include <QLocale>
#include <QTemporaryDir>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    const QTemporaryDir home;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("HOME", home.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
    const QApplication app(argc, argv);
    Translations::install(Language::english);
    QLocale::setDefault(QLocale::c());
    QApplication::setStyle(new Style);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
