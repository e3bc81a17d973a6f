// The window speaks QString and the core std::string; these are the two crossings between them.
#pragma once

#include <QString>
#include <string>

namespace zorvik {

inline QString fromStd(const std::string& text) {
  return QString::fromStdString(text);
}
inline std::string toStd(const QString& text) {
  return text.toStdString();
}

}  // namespace zorvik
