#include "ui/printing.h"

#include <QPrinter>
#include <QTextDocument>

namespace zorvik {

QFont resultFont() {
  QFont font(QStringLiteral("Courier New"));
  font.setStyleHint(QFont::Monospace);
  font.setFixedPitch(true);
  return font;
}

bool printText(const QString& text, QPrinter& printer) {
  if (!printer.isValid()) return false;
  QTextDocument document;
  QFont font = resultFont();
  font.setPointSize(9);
  document.setDefaultFont(font);
  document.setPlainText(text);
  document.print(&printer);
  return printer.printerState() != QPrinter::Error;
}

}  // namespace zorvik
