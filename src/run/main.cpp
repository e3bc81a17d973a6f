#include <cstdio>

// Placeholder entry until run control lands.
int main(int argc, char**) {
  if (argc <= 1) std::fputs("zorvik: this build has no window; give a LAS file and a log file\n", stderr);
  return 0;
}
