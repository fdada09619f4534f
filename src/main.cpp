#include "TavrinApp.h"

int main(int argc, char* argv[]) {
    return TavrinApp(argc, argv).run();
}
