// Sees every key press of the application before the control that has the focus, and turns a
// press of Escape in the main window into a cancel request, which the check drivers poll between
// checks. The key still reaches its control. Presses in other windows (a message
// box dismissed with Escape, say) are not the user asking to cancel, and are left alone.
#pragma once

#include <QObject>
#include <functional>

class QWidget;

namespace zorvik {

class EscapeFilter : public QObject {
  Q_OBJECT

 public:
  EscapeFilter(QWidget* window, std::function<void()> onEscape);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget* window_;
  std::function<void()> onEscape_;
};

}  // namespace zorvik
