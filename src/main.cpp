#include "DisplayGuard.h"
#include "LaunchOptions.h"
#include "Platform/Platform.h"
#include "TavrinApp.h"

#include <cstdio>

int main(int argc, char* argv[]) {
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    const LaunchOptions options = LaunchOptions::parse(arguments);
    if (const auto& answer = options.answer) {
        const bool isWritten =
            std::fputs(answer->text.toLocal8Bit().constData(), answer->status == 0 ? stdout : stderr) >= 0 &&
            std::fflush(nullptr) == 0;
        return isWritten ? answer->status : 1;
    }
    Platform::prepareProgram();
    std::optional<DisplayGuard> guard(std::in_place);
    TavrinApp app(argc, argv);
    guard.reset();
    return app.run(options);
}
