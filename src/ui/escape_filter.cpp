#include "ui/escape_filter.h"

#include <QKeyEvent>
#include <QWidget>

#include "checks/run_state.h"

namespace zorvik {

EscapeFilter::EscapeFilter(QWidget* window) : QObject(window), window_(window) {}

bool EscapeFilter::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress &&
      static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
    const auto* widget = qobject_cast<QWidget*>(watched);
    if (widget != nullptr && widget->window() == window_) runState().escapePressed = true;
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace zorvik
