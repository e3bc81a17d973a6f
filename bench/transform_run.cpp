// Runs one conversion or repair on a file, for timing from a script:
//
//   transform_run convert IN OUT [comma|space|tab]
//   transform_run repair IN OUT          (every repair whose fault is present; OUT gets the result)
#include <iostream>
#include <string>

#include "transform/convert.h"
#include "transform/repair.h"

using namespace zorvik;

int main(int argc, char** argv) {
  if (argc < 4) {
    std::cerr << "usage: transform_run convert|repair IN OUT [comma|space|tab]\n";
    return 2;
  }
  const std::string mode = argv[1];
  if (mode == "convert") {
    ConvertRequest request;
    request.input = argv[2];
    request.output = argv[3];
    const std::string dlm = argc > 4 ? argv[4] : "comma";
    request.delimiter = dlm == "tab"     ? DataDelimiter::Tab
                        : dlm == "space" ? DataDelimiter::Space
                                         : DataDelimiter::Comma;
    const ConvertResult result = convertFile(request);
    if (result.outcome != ConvertOutcome::Written) std::cerr << result.error << "\n";
    return result.outcome == ConvertOutcome::Written ? 0 : 1;
  }
  RepairRequest request;
  request.file = argv[2];
  request.output = argv[3];
  const RepairResult result = repairFile(request);
  std::cout << describeChanges(result.changes);
  if (result.outcome == RepairOutcome::Failed) std::cerr << result.error << "\n";
  return result.outcome == RepairOutcome::Failed ? 1 : 0;
}
