#include "ui/marks.h"

#include <QPainter>
#include <QPen>
#include <QPixmap>

namespace zorvik {

namespace {

QPixmap drawMark(CheckMark mark) {
  QPixmap pixmap(16, 16);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  switch (mark) {
    case CheckMark::Passed:  // checkImg
      painter.setPen(QPen(QColor(0, 140, 0), 2.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
      painter.drawPolyline(QPolygonF({QPointF(3, 8.5), QPointF(6.5, 12), QPointF(13, 4)}));
      break;
    case CheckMark::Failed:  // xImg
      painter.setPen(QPen(QColor(200, 0, 0), 2.5, Qt::SolidLine, Qt::RoundCap));
      painter.drawLine(QPointF(4, 4), QPointF(12, 12));
      painter.drawLine(QPointF(12, 4), QPointF(4, 12));
      break;
    case CheckMark::NotPerformed:  // noChkIm
      painter.setPen(QPen(QColor(140, 140, 140), 2.5, Qt::SolidLine, Qt::RoundCap));
      painter.drawLine(QPointF(4, 8), QPointF(12, 8));
      break;
  }
  return pixmap;
}

}  // namespace

QIcon markIcon(CheckMark mark) {
  static const QIcon icons[] = {QIcon(drawMark(CheckMark::Passed)),
                                QIcon(drawMark(CheckMark::Failed)),
                                QIcon(drawMark(CheckMark::NotPerformed))};
  return icons[static_cast<int>(mark)];
}

}  // namespace zorvik
