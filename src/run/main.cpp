#include "run/startup.h"

// The program without a window: the batch form and the command-line tool.
int main(int argc, char** argv) {
  return zorvik::startUp(argc, argv, nullptr);
}
