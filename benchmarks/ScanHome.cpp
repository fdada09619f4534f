#include "ScanHome.h"

#include <QDir>
#include <QFile>

#include <chrono>
#include <ctime>
#include <filesystem>
#include <string>
#include <string_view>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int filesPerFolder = 250;

struct Part {
    const char* folder;
    int files;
    bool old = false;
};

// 300,000 files over the places of all targets.
constexpr Part parts[] = {
    {".npm/_cacache", 60000},
    {".npm/_npx", 20000},
    {".pnpm-store", 20000},
    {".yarn/cache", 5000},
    {".cache/yarn", 10000},
    {".cache/uv", 40000},
    {".cache/pip", 10000},
    {".cache/Homebrew", 1000},
    {".cache/ms-playwright", 10000},
    {".cache/org.swift.swiftpm", 5000},
    {".cache/other", 40000},
    {".cargo/registry/cache", 5000},
    {"go/pkg/mod/cache", 30000},
    {"Library/Developer/Xcode/DerivedData", 2000},
    {"Library/Logs", 1000},
    {".claude/plugins/cache", 2000},
    {".local/share/Trash/files", 4000},
    {"tmp", 20000, true},
    {"tmp/new", 5000},
    {"Downloads", 5000, true},
    {"Downloads/new", 4000},
    {"Desktop", 1000, true},
};

void makeHome(const std::string& home) {
    for (const Part& part : parts) {
        for (int i = 0; i < part.files; ++i) {
            const std::string folder =
                home + '/' + part.folder + "/folder " + std::to_string(i / filesPerFolder);
            if (i % filesPerFolder == 0)
                std::filesystem::create_directories(folder);
            const std::string path = folder + "/Screen file " + std::to_string(i);
            const int file = open(path.c_str(), O_CREAT | O_WRONLY, 0600);
            if (std::string_view(part.folder) == "Desktop")
                static_cast<void>(!write(file, "\x89PNG\r\n\x1a\n", 8));
            constexpr std::chrono::seconds ahead = ScanClock::ahead;
            const std::time_t written = part.old ? 1000000000 : std::time(nullptr) + ahead.count();
            const timespec times[] = {{written, 0}, {written, 0}};
            futimens(file, times);
            close(file);
        }
    }
}

} // namespace

ScanHome::ScanHome()
    : m_folder(QDir::currentPath() + u"/scan_bench-XXXXXX"_s) {
    qputenv("HOME", QFile::encodeName(m_folder.path()));
    for (const char* variable : {"XDG_CACHE_HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_STATE_HOME"})
        qunsetenv(variable);
    makeHome(m_folder.path().toStdString());
}

QList<Place> ScanPlaces::locate(const QString& path) const {
    return FreedesktopPlaces::locate(path == u"/tmp" ? u"~/tmp"_s : path);
}
