#include "Cli/Program.h"
#include "Core/Translations.h"
#include "Platform/Platform.h"
#include "Platform/RunningProgram.h"
#include "Platform/Terminal.h"
#include "Preferences.h"

#include <QCoreApplication>

int main(int argc, char* argv[]) {
    Platform::prepareProgram();
    const QCoreApplication application(argc, argv);
    Translations::install(Language::english); // scripts read the texts
    const auto terminal = Platform::makeTerminal();
    const auto running = Platform::makeRunningProgram();
    const Environment environment{.platform = Platform::native(),
                                  .preferences = Preferences::shared(),
                                  .terminal = *terminal,
                                  .running = *running,
                                  .version = QStringLiteral(TAVRIN_VERSION),
                                  .wantsColour = qEnvironmentVariableIsEmpty("NO_COLOR")};
    return Program::run(environment, application.arguments().mid(1));
}
