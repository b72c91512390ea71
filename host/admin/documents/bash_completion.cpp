#include <functional>
#include <ostream>
#include <string>

#include "host/admin/documents/completion.h"

namespace ferrowind::host {
namespace {

constexpr const char* kReading = R"(
_ferrowindctl() {
  local rest=$COMP_LINE words=() index word
  # The shell also splits at ":" and "=", of which URLs and options are full: what nothing separates is one word.
  for ((index = 0; index <= COMP_CWORD; ++index)); do
    word=${COMP_WORDS[index]}
    if ((index > 0)) && [[ $rest != [[:space:]]* ]]; then
      words[-1]+=$word
    else
      words+=("$word")
    fi
    rest=${rest#"${rest%%[![:space:]]*}"}
    rest=${rest#"$word"}
  done

  local current=${words[-1]} path= place=0 option=
  for ((index = 1; index < ${#words[@]} - 1; ++index)); do
    word=${words[index]}
    option=
    if [[ $word == -* ]]; then
      if _ferrowindctl_value "$path $word" >/dev/null; then
        option=$word
        ((++index))
      fi
    elif [[ " $(_ferrowindctl_commands "$path") " == *" $word "* ]]; then
      path+="${path:+ }$word"
    else
      ((++place))
    fi
  done
  # The value of the last option was passed over, unless it is the word at hand.
  ((index == ${#words[@]})) || option=

  local offered partial=$current
  if [[ $option ]]; then
    offered=$(_ferrowindctl_value "$path $option")
  elif [[ $current == --*=* ]]; then
    offered=$(_ferrowindctl_value "$path ${current%%=*}")
    partial=${current#*=}
  elif [[ $current == -* ]]; then
    offered=$(_ferrowindctl_options "$path")
  else
    offered=$(_ferrowindctl_commands "$path")
    [[ $offered ]] || offered=$(_ferrowindctl_argument "$path $place")
  fi

  # What stands before the last ":" or "=" stays on the line by itself.
  local before=
  [[ $COMP_WORDBREAKS == *:* && $partial == *:* ]] && before=${partial%"${partial##*:}"}
  case $offered in
    '<database>')
      if [[ $partial == sqlite:* ]]; then
        compopt -o filenames
        mapfile -t COMPREPLY < <(compgen -P sqlite: -f -- "${partial#sqlite:}")
      else
        compopt -o nospace
        mapfile -t COMPREPLY < <(compgen -W 'sqlite: postgresql://' -- "$partial")
      fi
      ;;
    '<file>')
      compopt -o filenames
      mapfile -t COMPREPLY < <(compgen -f -- "$partial")
      ;;
    *) mapfile -t COMPREPLY < <(compgen -W "$offered" -- "$partial") ;;
  esac
  COMPREPLY=("${COMPREPLY[@]#"$before"}")
}
complete -F _ferrowindctl ferrowindctl
)";

std::string Quoted(const std::string& text) { return "'" + text + "'"; }

/// The words with spaces between them.
template <typename Items, typename ToWord>
std::string Joined(const Items& items, const ToWord& to_word) {
  std::string joined;
  for (const auto& item : items) joined += (joined.empty() ? "" : " ") + to_word(item);
  return joined;
}

std::string Itself(const std::string& word) { return word; }

/// What is offered for a value: words, or a name that the reading part knows.
std::string Offered(ValueKind kind, const std::vector<std::string>& choices) {
  if (kind == ValueKind::kDatabase) return "<database>";
  if (kind == ValueKind::kFile) return "<file>";
  return Joined(choices, Itself);
}

/// A function with a branch for what `write_cases` writes about each command.
class BranchWriter {
 public:
  using WriteCases =
      std::function<void(const OutlinedCommand& command, const std::string& path, std::ostream& out)>;

  BranchWriter(const OutlinedCommand& program, std::ostream& out) : program_(program), out_(out) {}

  void Write(const char* comment, const char* name, const WriteCases& write_cases,
             const char* otherwise = "") {
    out_ << "\n# " << comment << '\n' << name << "() {\n  case $1 in\n";
    WriteWithin(program_, "", write_cases);
    out_ << otherwise << "  esac\n}\n";
  }

 private:
  void WriteWithin(const OutlinedCommand& command, const std::string& path, const WriteCases& write_cases) {
    write_cases(command, path, out_);
    for (const OutlinedCommand& inner : command.commands) {
      std::string inner_path = path;
      if (!path.empty()) inner_path += ' ';
      WriteWithin(inner, inner_path + inner.name, write_cases);
    }
  }

  const OutlinedCommand& program_;
  std::ostream& out_;
};

void WriteCase(const std::string& pattern, const std::string& offered, std::ostream& out) {
  out << "    " << pattern << ") echo " << Quoted(offered) << " ;;\n";
}

void WriteCommands(const OutlinedCommand& command, const std::string& path, std::ostream& out) {
  if (command.commands.empty()) return;
  WriteCase(Quoted(path), Joined(command.commands, [](const OutlinedCommand& inner) { return inner.name; }),
            out);
}

void WriteOptions(const OutlinedCommand& command, const std::string& path, std::ostream& out) {
  WriteCase(
      Quoted(path),
      Joined(command.options, [](const OutlinedOption& option) { return Joined(option.names, Itself); }),
      out);
}

void WriteValues(const OutlinedCommand& command, const std::string& path, std::ostream& out) {
  for (const OutlinedOption& option : command.options) {
    if (option.value.empty()) continue;
    for (const std::string& name : option.names) {
      WriteCase(Quoted(path + " " + name), Offered(option.kind, option.choices), out);
    }
  }
}

void WriteArguments(const OutlinedCommand& command, const std::string& path, std::ostream& out) {
  for (std::size_t place = 0; place < command.arguments.size(); ++place) {
    const OutlinedArgument& argument = command.arguments[place];
    if (argument.kind == ValueKind::kAnything) continue;
    const std::string pattern =
        argument.is_repeated ? Quoted(path + " ") + "*" : Quoted(path + " " + std::to_string(place));
    WriteCase(pattern, Offered(argument.kind, {}), out);
  }
}

}  // namespace

void WriteBashCompletion(const OutlinedCommand& program, std::ostream& out) {
  out << "# bash completion for ferrowindctl, written by its build from the table of its commands.\n";
  BranchWriter branches(program, out);
  branches.Write("The commands behind the words of one.", "_ferrowindctl_commands", WriteCommands);
  branches.Write("The options of a command.", "_ferrowindctl_options", WriteOptions);
  branches.Write("What the value of a command's option can be; fails for an option without one.",
                 "_ferrowindctl_value", WriteValues, "    *) return 1 ;;\n");
  branches.Write("What the argument of a command at a place can be, counted from 0.",
                 "_ferrowindctl_argument", WriteArguments);
  out << kReading;
}

}  // namespace ferrowind::host
