// Not run with the tests: tools/screenshot.sh runs it under Xvfb to picture the window for the
// README after certifying an example file.
#include <QApplication>
#include <QThread>

#include "window_fixture.h"

namespace zorvik::testing {
namespace {

TEST_F(WindowTest, DISABLED_Screenshot) {
  const QString target = qEnvironmentVariable("ZORVIK_SCREENSHOT", "window.png");
  const QString las =
      qEnvironmentVariable("ZORVIK_SCREENSHOT_LAS", ZORVIK_EXAMPLES "/example_30.las");
  window->resize(960, 680);
  openFile(copyFixture(las.toStdString()));
  for (int i = 0; i < 20; ++i) {
    QApplication::processEvents();
    QThread::msleep(25);
  }
  ASSERT_TRUE(window->grab().save(target));
}

}  // namespace
}  // namespace zorvik::testing
