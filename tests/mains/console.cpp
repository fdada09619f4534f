#include "Core/Translations.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTemporaryDir>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    const QTemporaryDir home;
    qputenv("HOME", home.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
    const QCoreApplication app(argc, argv);
    Translations::install(Language::english);
    QLocale::setDefault(QLocale::c());
    testing::InitGoogleTest(&argc, argv);
    if (!qEnvironmentVariableIsSet("TAVRIN_MOUNTS_OUTSIDE")) { // for the process that has mounts of its own
        const std::string filter = GTEST_FLAG_GET(filter);
        GTEST_FLAG_SET(filter,
                       filter + (filter.find('-') == std::string::npos ? "-" : ":") + "InPrivateMount.*");
    }
    return RUN_ALL_TESTS();
}
