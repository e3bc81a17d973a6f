#include "ui/escape_filter.h"

#include <QKeyEvent>

#include "run/run_state.h"

namespace zorvik {

bool EscapeFilter::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress &&
      static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
    runState().escapePressed = true;
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace zorvik
