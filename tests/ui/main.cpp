// The window tests need a QApplication; they run on the offscreen platform unless a display
// platform is asked for (a screenshot under Xvfb, say).
#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char** argv) {
  // The offscreen platform warns about every window feature it lacks; those lines are noise here.
  static QtMessageHandler standardHandler = nullptr;
  standardHandler = qInstallMessageHandler(
      [](QtMsgType type, const QMessageLogContext& context, const QString& text) {
        if (!text.startsWith(QLatin1String("This plugin does not support")))
          standardHandler(type, context, text);
      });
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
