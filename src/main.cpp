#include "Platform/Platform.h"
#include "TavrinApp.h"

int main(int argc, char* argv[]) {
    Platform::prepareProgram();
    return TavrinApp(argc, argv).run();
}
