// Printing the result report: the text set in a monospace font, page by page.
#pragma once

#include <QFont>
#include <QString>

class QPrinter;

namespace zorvik {

// "Courier New", or the system's monospace font where that is not installed.
QFont resultFont();

// Prints `text` on `printer` (a real printer or a PDF file). False when the printer could not
// be started (the output is then not written).
bool printText(const QString& text, QPrinter& printer);

}  // namespace zorvik
