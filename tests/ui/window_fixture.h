// A real main window with a fake desktop, a settings store and a program folder of its own.
#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QTemporaryDir>
#include <memory>
#include <string>

#include "fake_desktop.h"
#include "ui/main_window.h"

namespace zorvik::testing {

class WindowTest : public ::testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;

  // Copies a fixture of tests/data/ui (or an absolute path) into the scratch folder.
  std::string copyFixture(const std::string& name);
  // Opens `path` through the open command, the dialog answering with it.
  void openFile(const std::string& path);
  void trigger(const char* actionName);
  template <typename T>
  T* child(const char* name) {
    T* found = window->findChild<T*>(QString::fromLatin1(name));
    EXPECT_NE(found, nullptr) << name;
    return found;
  }
  // The texts of the grid's group rows and of the checks of group row `groupRow`.
  std::vector<std::string> groupTexts();
  std::vector<std::string> checkMarks(int groupRow);
  // Selects check `checkRow` of group row `groupRow` and gives back the details panel's text.
  std::string selectCheck(int groupRow, int checkRow);

  QTemporaryDir scratch;
  std::string programDir;
  FakeDesktop desktop;
  std::unique_ptr<CertifyWindow> window;
};

}  // namespace zorvik::testing
