#include "run/startup.h"

// The window, when built, registers itself with setWindowLauncher() before start-up runs.
int main(int argc, char** argv) {
  return zorvik::startUp(argc, argv);
}
