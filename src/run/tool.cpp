#include "run/tool.h"

#include <array>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <span>

#include "base/text.h"
#include "run/cli_options.h"
#include "run/startup.h"

namespace zorvik {

namespace {

constexpr std::array<OptionSpec, 6> kCheckOptions{{
    {"wrap", 0, "", "also run the line-length checks of wrapped and unwrapped data"},
    {"report-dir", 0, "DIR", "write each file's full report to DIR/NAME.log as well"},
    {"json", 0, "", "print one JSON document instead of lines"},
    {"jobs", 'j', "N", "certify N files at a time (default: the number of cores)"},
    {"quiet", 'q', "", "print only the summary line"},
    {"help", 'h', "", "show this help"},
}};

constexpr std::array<OptionSpec, 4> kRepairOptions{{
    {"units", 0, "U", "index units for ~Well lines that are added (FT, M, S ...)"},
    {"in-place", 0, "", "replace FILE with the repaired file"},
    {"output", 'o', "OUT", "write the repaired file to OUT"},
    {"help", 'h', "", "show this help"},
}};

constexpr std::array<OptionSpec, 4> kConvertOptions{{
    {"titles", 0, "plain|log",
     "section titles: ~Parameter ~Curve ~ASCII (plain, the default) or "
     "~Log_Parameter ~Log_Definition ~Log_Data (log)"},
    {"delimiter", 0, "comma|space|tab", "data delimiter of the 3.0 file (default: space)"},
    {"output", 'o', "OUT", "write to OUT (default: beside FILE, named NAME_ver3.las)"},
    {"help", 'h', "", "show this help"},
}};

constexpr std::array<OptionSpec, 1> kHelpOnly{{
    {"help", 'h', "", "show this help"},
}};

struct Command {
  std::string_view name;
  std::string_view operands;
  std::string_view summary;
  std::string_view description;
  std::span<const OptionSpec> options;
};

constexpr std::array<Command, 5> kCommands{{
    {"check", "[options] PATH...", "certify LAS files, and the .las files under folders",
     "Certifies every named file, and every file whose name ends in .las (any letter case) under "
     "each named folder, searched recursively (names starting with a point are skipped). Prints "
     "one line per file (verdict, version, path); for a failed file its failed checks with their "
     "finding counts and the first finding with its line number and the quoted line. Then one "
     "summary line. Output is in the order of the paths given, whatever -j is.",
     kCheckOptions},
    {"repair", "[--units U] [--in-place | -o OUT] FILE", "repair common faults of a 1.2/2.0 file",
     "Repairs the faults certification finds and a repair can fix (line ends, tabs in header "
     "lines, missing ~Version and ~Well lines, STRT/STOP/STEP against the data), prints the list "
     "of changes and the new verdict. FILE is changed only with --in-place.",
     kRepairOptions},
    {"convert", "[--titles plain|log] [--delimiter comma|space|tab] [-o OUT] FILE",
     "convert a 1.2/2.0 file to 3.0",
     "Writes FILE as a version 3.0 file, prints the list of changes and the verdict of the new "
     "file. FILE itself is never changed.",
     kConvertOptions},
    {"gui", "[FILE]", "open the window, certifying FILE when given",
     "Opens the window; with FILE, certifies it at once.", kHelpOnly},
    {"help", "[COMMAND]", "show this help, or the help of one command",
     "Shows the usage of zorvik, or of one command.", kHelpOnly},
}};

constexpr std::string_view kExitStatus =
    "0 every file passed; 1 a file failed;\n  2 a usage error, or a file that could not be read";

const Command* findCommand(std::string_view name) {
  for (const Command& command : kCommands)
    if (command.name == name) return &command;
  return nullptr;
}

std::string versionText() {
  return "zorvik " + std::to_string(ZORVIK_VERSION_MAJOR) + "." +
         std::to_string(ZORVIK_VERSION_MINOR) + "." + std::to_string(ZORVIK_VERSION_PATCH);
}

std::string commandUsage(const Command& command) {
  std::string text = "Usage: zorvik " + std::string(command.name) + " " +
                     std::string(command.operands) + "\n\n" + std::string(command.description) +
                     "\n\nOptions:\n" + optionHelp(command.options);
  if (command.name == "check") text += "\nExit status:\n  " + std::string(kExitStatus) + ".\n";
  return text;
}

// Reads the words of `command`; prints its help for --help. Answers an exit status when the
// command is done with (help shown or a usage error), nothing when it should run.
std::optional<int> readOptions(const Command& command, const std::vector<std::string>& words,
                               ParsedOptions& options) {
  ParseResult parsed = parseOptions(words, command.options);
  if (!parsed.error.empty()) return usageError(command.name, parsed.error);
  if (parsed.options.has("help")) {
    std::fputs(commandUsage(command).c_str(), stdout);
    return EXIT_ALL_PASSED;
  }
  options = std::move(parsed.options);
  return std::nullopt;
}

int runHelp(const std::vector<std::string>& words) {
  ParsedOptions options;
  if (auto done = readOptions(*findCommand("help"), words, options)) return *done;
  if (options.operands.empty()) {
    std::fputs(usageText().c_str(), stdout);
    return EXIT_ALL_PASSED;
  }
  if (options.operands.size() > 1) return usageError("help", "give one command");
  const Command* command = findCommand(options.operands.front());
  if (command == nullptr)
    return usageError("help", "no command named '" + options.operands.front() + "'");
  std::fputs(commandUsage(*command).c_str(), stdout);
  return EXIT_ALL_PASSED;
}

std::optional<std::string> oneFile(std::string_view command, const ParsedOptions& options,
                                   int& status) {
  if (options.operands.size() != 1) {
    status = usageError(command,
                        options.operands.empty() ? "give the LAS file" : "give one LAS file only");
    return std::nullopt;
  }
  return options.operands.front();
}

int runRepair(const std::vector<std::string>& words) {
  ParsedOptions options;
  if (auto done = readOptions(*findCommand("repair"), words, options)) return *done;
  int status = EXIT_TROUBLE;
  auto file = oneFile("repair", options, status);
  if (!file) return status;
  if (options.has("in-place") && options.has("output"))
    return usageError("repair", "--in-place and -o exclude each other");
  if (!options.has("in-place") && !options.has("output"))
    return usageError("repair", "say where the repaired file goes: --in-place or -o OUT");
  return repairCommand(*file, options.value("output").value_or(""),
                       options.value("units").value_or(""));
}

int runConvert(const std::vector<std::string>& words) {
  ParsedOptions options;
  if (auto done = readOptions(*findCommand("convert"), words, options)) return *done;
  int status = EXIT_TROUBLE;
  auto file = oneFile("convert", options, status);
  if (!file) return status;
  std::string titles = options.value("titles").value_or("plain");
  if (titles != "plain" && titles != "log")
    return usageError("convert", "--titles takes plain or log, not '" + titles + "'");
  std::string delimiter = options.value("delimiter").value_or("space");
  if (delimiter != "comma" && delimiter != "space" && delimiter != "tab")
    return usageError("convert", "--delimiter takes comma, space or tab, not '" + delimiter + "'");
  const char separator = delimiter == "comma" ? ',' : delimiter == "tab" ? '\t' : ' ';
  return convertCommand(*file, options.value("output").value_or(""), titles == "log", separator);
}

int runGui(int argc, char** argv, const std::vector<std::string>& words, WindowLauncher window) {
  ParsedOptions options;
  if (auto done = readOptions(*findCommand("gui"), words, options)) return *done;
  if (options.operands.size() > 1) return usageError("gui", "give at most one LAS file");
  std::string file;
  if (!options.operands.empty()) {
    std::error_code ec;
    std::filesystem::path absolute = std::filesystem::absolute(options.operands.front(), ec);
    if (ec || !std::filesystem::is_regular_file(absolute, ec))
      return usageError("gui", "no such file: " + options.operands.front());
    file = absolute.lexically_normal().string();
  }
  return openWindow(argc > 0 ? 1 : 0, argv, file, window);
}

}  // namespace

int usageError(std::string_view command, const std::string& message) {
  std::string where = command.empty() ? "zorvik" : "zorvik " + std::string(command);
  std::string help = command.empty() ? "zorvik --help" : where + " --help";
  std::fprintf(stderr, "%s: %s\nTry '%s' for more information.\n", where.c_str(), message.c_str(),
               help.c_str());
  return EXIT_TROUBLE;
}

bool isToolWord(std::string_view firstWord) {
  return firstWord.starts_with("-") || firstWord == "check" || firstWord == "repair" ||
         firstWord == "convert" || firstWord == "gui" || firstWord == "help";
}

std::string usageText() {
  std::string text =
      "Usage: zorvik                              open the window\n"
      "       zorvik COMMAND [options] ...        the command-line tool\n"
      "       zorvik LAS_FILE LOG_FILE [/W]       batch form: certify one file into LOG_FILE,\n"
      "                                           messages to command.log\n"
      "\nCommands:\n";
  for (const Command& command : kCommands) {
    std::string head = std::string(command.name) + " " + std::string(command.operands);
    if (head.size() > 34) {
      text += "  " + head + "\n" + std::string(38, ' ') + std::string(command.summary) + "\n";
    } else {
      text +=
          "  " + head + std::string(36 - head.size(), ' ') + std::string(command.summary) + "\n";
    }
  }
  text +=
      "\nOptions:\n"
      "  -h, --help      show this help ('zorvik help COMMAND' for one command)\n"
      "  --version       show the version\n"
      "\nExit status of check:\n  " +
      std::string(kExitStatus) + ".\n";
  return text;
}

std::string manualPage() {
  auto roff = [](std::string_view text) {
    std::string out;
    for (char c : text) {
      if (c == '\\') {
        out += "\\e";
      } else if (c == '-') {
        out += "\\-";
      } else {
        out += c;
      }
    }
    return out;
  };
  std::string page = ".TH ZORVIK 1 \"\" \"" + versionText() + "\" \"User Commands\"\n";
  page += ".SH NAME\nzorvik \\- certify LAS well\\-log files (versions 1.2, 2.0 and 3.0)\n";
  page += ".SH SYNOPSIS\n.B zorvik\n.br\n.B zorvik\n.I COMMAND\n[options] ...\n.br\n.B zorvik\n";
  page += ".I LAS_FILE LOG_FILE\n[/W]\n";
  page +=
      ".SH DESCRIPTION\nWithout words, opens the window. With a command, runs the "
      "command\\-line tool below. Any other command line is the batch form: it certifies "
      "LAS_FILE, writes the report to LOG_FILE and its messages to command.log.\n";
  page += ".SH COMMANDS\n";
  for (const Command& command : kCommands) {
    page += ".SS " + roff(std::string(command.name) + " " + std::string(command.operands)) + "\n";
    page += roff(command.description) + "\n";
    for (const OptionSpec& spec : command.options) {
      std::string head = spec.letter != 0 ? std::string("-") + spec.letter + ", " : "";
      head += "--" + std::string(spec.name);
      if (!spec.valueName.empty()) head += " " + std::string(spec.valueName);
      page += ".TP\n.B " + roff(head) + "\n" + roff(spec.help) + "\n";
    }
  }
  page +=
      ".SH OPTIONS\n.TP\n.B \\-h, \\-\\-help\nshow the usage\n.TP\n.B \\-\\-version\nshow the "
      "version\n";
  page += ".SH EXIT STATUS\n" + roff(replaceAll(kExitStatus, "\n  ", "\n.br\n")) + ".\n";
  return page;
}

int runTool(int argc, char** argv, WindowLauncher window) {
  std::vector<std::string> words(argv + 1, argv + argc);
  const std::string first = words.front();
  std::vector<std::string> rest(words.begin() + 1, words.end());
  if (first == "--help" || first == "-h") return runHelp(rest);
  if (first == "--version") {
    std::printf("%s\n", versionText().c_str());
    return EXIT_ALL_PASSED;
  }
  if (first == "--man") {
    std::fputs(manualPage().c_str(), stdout);
    return EXIT_ALL_PASSED;
  }
  if (first == "check") {
    ParsedOptions options;
    if (auto done = readOptions(*findCommand("check"), rest, options)) return *done;
    return runCheck(options);
  }
  if (first == "repair") return runRepair(rest);
  if (first == "convert") return runConvert(rest);
  if (first == "gui") return runGui(argc, argv, rest, window);
  if (first == "help") return runHelp(rest);
  return usageError("", "unknown option " + first);
}

}  // namespace zorvik
