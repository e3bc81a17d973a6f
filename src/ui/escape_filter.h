// Sees every key press of the application before the control that has the focus, and turns a
// press of Escape into the run state's Escape flag, which the check drivers poll between checks.
// The key still reaches its control.
#pragma once

#include <QObject>

namespace zorvik {

class EscapeFilter : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace zorvik
