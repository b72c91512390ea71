#include <algorithm>
#include <ostream>
#include <string>
#include <string_view>

#include "host/admin/documents/completion.h"

namespace ferrowind::host {
namespace {

constexpr const char* kBeginning = R"(#compdef ferrowindctl
# zsh completion for ferrowindctl, written by its build from the table of its commands.

_ferrowindctl_database() {
  if compset -P sqlite:; then
    _files
  else
    compadd -S '' -- sqlite: postgresql://
  fi
}
)";

/// The text within quotes, with a backslash before each of `signs`.
std::string Escaped(std::string_view text, std::string_view signs) {
  std::string escaped;
  for (const char c : text) {
    if (signs.find(c) != std::string_view::npos) escaped += '\\';
    escaped += c == '\'' ? "'\\''" : std::string(1, c);
  }
  return escaped;
}

std::string Action(ValueKind kind, const std::vector<std::string>& choices) {
  if (kind == ValueKind::kDatabase) return "_ferrowindctl_database";
  if (kind == ValueKind::kFile) return "_files";
  if (choices.empty()) return " ";
  std::string words;
  for (const std::string& choice : choices) words += (words.empty() ? "" : " ") + choice;
  return "(" + words + ")";
}

class FunctionWriter {
 public:
  explicit FunctionWriter(std::ostream& out) : out_(out) {}

  /// The function that completes what stands behind the words of the command, after those of the commands
  /// within it.
  void Write(const OutlinedCommand& command, const std::string& function) {
    for (const OutlinedCommand& inner : command.commands) Write(inner, FunctionOf(function, inner));
    out_ << '\n' << function << "() {\n";
    if (command.commands.empty()) {
      out_ << "  _arguments";
      WriteOptions(command);
      for (std::size_t place = 0; place < command.arguments.size(); ++place) {
        WriteArgument(command.arguments[place], place + 1);
      }
      out_ << '\n';
    } else {
      WriteGroup(command, function);
    }
    out_ << "}\n";
  }

 private:
  static std::string FunctionOf(const std::string& around, const OutlinedCommand& command) {
    std::string name = command.name;
    std::replace(name.begin(), name.end(), '-', '_');
    return around + '_' + name;
  }

  void WriteOptions(const OutlinedCommand& command) {
    for (const OutlinedOption& option : command.options) {
      std::string names;
      for (const std::string& name : option.names) names += (names.empty() ? "" : " ") + name;
      for (const std::string& name : option.names) {
        out_ << " \\\n    '(" << names << ')' << name;
        if (!option.value.empty() && name.starts_with("--")) out_ << '=';
        out_ << '[' << Escaped(option.description, "[]:\\") << ']';
        if (!option.value.empty()) {
          out_ << ':' << Escaped(option.value, ":\\") << ':' << Action(option.kind, option.choices);
        }
        out_ << '\'';
      }
    }
  }

  void WriteArgument(const OutlinedArgument& argument, std::size_t place) {
    out_ << " \\\n    '" << (argument.is_repeated ? "*" : std::to_string(place))
         << (argument.is_required || argument.is_repeated ? ":" : "::") << Escaped(argument.name, ":\\")
         << ':' << Action(argument.kind, {}) << '\'';
  }

  void WriteGroup(const OutlinedCommand& group, const std::string& function) {
    out_ << "  local curcontext=$curcontext state\n  local -a line commands\n  _arguments -C";
    WriteOptions(group);
    out_ << " \\\n    '1: :->command' \\\n    '*:: :->arguments'\n  case $state in\n    command)\n      "
            "commands=(\n";
    for (const OutlinedCommand& inner : group.commands) {
      out_ << "        '" << inner.name << ':' << Escaped(inner.description, ":\\") << "'\n";
    }
    out_ << "      )\n      _describe command commands\n      ;;\n    arguments)\n      case $line[1] in\n";
    for (const OutlinedCommand& inner : group.commands) {
      out_ << "        " << inner.name << ") " << FunctionOf(function, inner) << " ;;\n";
    }
    out_ << "      esac\n      ;;\n  esac\n";
  }

  std::ostream& out_;
};

}  // namespace

void WriteZshCompletion(const OutlinedCommand& program, std::ostream& out) {
  out << kBeginning;
  FunctionWriter(out).Write(program, "_ferrowindctl");
  out << "\n_ferrowindctl \"$@\"\n";
}

}  // namespace ferrowind::host
