// What the batch form and the window keep between the steps of the program: the files in hand and
// the options, three of them remembered in the settings store.
#pragma once

#include <string>

namespace zorvik {

struct Session {
  std::string lasFile;      // the file to certify (remembered)
  std::string logFile;      // where its report goes ("" in the window without the write-log option)
  bool doWrap = false;      // the /W checks of line lengths (remembered)
  bool writeLog = false;    // the window writes the report beside the LAS file (remembered)
  bool showDetails = true;  // the result grid lists findings; on at every start
  int repairChoice = 0;     // the window's repair option: 0, 1 or 2
  std::string statusLine = "Ready";  // the status line, which command-log entries carry
};

}  // namespace zorvik
