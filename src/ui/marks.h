// The pictures of the result grid: a check mark for a passed check, a cross for a failed one and
// a grey dash for one not performed. Drawn at run time, so the program ships no image files.
// Needs a running QGuiApplication; never fails.
#pragma once

#include <QIcon>

#include "ui/result_rows.h"

namespace zorvik {

QIcon markIcon(CheckMark mark);

}  // namespace zorvik
