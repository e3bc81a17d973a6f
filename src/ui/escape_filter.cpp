#include "ui/escape_filter.h"

#include <QKeyEvent>
#include <QWidget>

namespace zorvik {

EscapeFilter::EscapeFilter(QWidget* window, std::function<void()> onEscape)
    : QObject(window), window_(window), onEscape_(std::move(onEscape)) {}

bool EscapeFilter::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress &&
      static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
    const auto* widget = qobject_cast<QWidget*>(watched);
    if (widget != nullptr && widget->window() == window_) onEscape_();
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace zorvik
