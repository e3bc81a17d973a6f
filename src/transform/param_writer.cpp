#include "transform/param_writer.h"

namespace zorvik {

bool writeParameterValue(const std::string&, std::string_view, std::string_view, std::string_view) {
  return false;
}

}  // namespace zorvik
