#include "host/admin/documents/manual_page.h"

#include <algorithm>
#include <ostream>
#include <span>
#include <string_view>
#include <utility>

#include "host/admin/documents/manual_text.h"

namespace ferrowind::host {
namespace {

/// The text as roff prints it: signs as they are typed, so that what is copied from the page works.
std::string Escaped(std::string_view text) {
  std::string escaped;
  for (const char c : text) {
    switch (c) {
      case '\\':
        escaped += "\\e";
        break;
      case '-':
        escaped += "\\-";
        break;
      case '\'':
        escaped += "\\(aq";
        break;
      case '"':
        escaped += "\\(dq";
        break;
      case '`':
        escaped += "\\(ga";
        break;
      case '^':
        escaped += "\\(ha";
        break;
      case '~':
        escaped += "\\(ti";
        break;
      default:
        escaped += c;
    }
  }
  // A line that begins with a point would be a request.
  if (escaped.starts_with('.')) escaped.insert(0, "\\&");
  return escaped;
}

std::string Bold(std::string_view text) { return "\\fB" + Escaped(text) + "\\fR"; }
std::string Italic(std::string_view text) { return "\\fI" + Escaped(text) + "\\fR"; }

std::string WithSmallBeginning(std::string text) {
  if (!text.empty() && text.front() >= 'A' && text.front() <= 'Z') {
    text.front() = static_cast<char>(text.front() - 'A' + 'a');
  }
  return text;
}

std::string WithBigBeginning(std::string_view capitals) {
  std::string text(capitals);
  for (char& c : text) {
    if (&c != text.data() && c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return text;
}

std::string Placeholder(const OutlinedArgument& argument) {
  const std::string name = Italic(argument.name) + (argument.is_repeated ? "..." : "");
  return argument.is_required ? name : "[" + name + "]";
}

std::string Names(const OutlinedOption& option) {
  std::string names;
  for (const std::string& name : option.names) names += (names.empty() ? "" : ", ") + Bold(name);
  return option.value.empty() ? names : names + " " + Italic(option.value);
}

class PageWriter {
 public:
  /// Of `program`, which must outlive it.
  PageWriter(const OutlinedCommand& program, std::ostream& out) : program_(program), out_(out) {}

  void WriteHead(const Release& release) {
    std::string title = program_.name;
    std::transform(title.begin(), title.end(), title.begin(),
                   [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
    out_ << ".TH " << title << " 1 " << release.date << " \"Ferrowind " << release.version
         << "\" \"User commands\"\n"
         // Ragged and without hyphens, as the help is; options must stay whole.
         << ".ad l\n.nh\n"
         << ".SH NAME\n"
         << Escaped(program_.name) << " \\- "
         << Escaped(WithoutPoint(WithSmallBeginning(program_.description))) << "\n.SH SYNOPSIS\n"
         << Bold(program_.name) << ' ' << Italic("COMMAND") << " [" << Italic("OPTION") << "]... ["
         << Italic("ARGUMENT") << "]...\n";
    for (const OutlinedOption& option : program_.options) {
      out_ << ".br\n" << Bold(program_.name) << ' ' << Bold(option.names.back()) << '\n';
    }
  }

  void WriteOverview() {
    out_ << ".SH DESCRIPTION\n" << Escaped(program_.description) << '\n';
    for (const OutlinedCommand& command : program_.commands)
      WriteItem(Bold(command.name), command.description);
    out_ << ".SH OPTIONS\n";
    WriteOptions(program_.options);
  }

  /// The command `path`, the words that call it, and those within it.
  void WriteCommand(const OutlinedCommand& command, const std::string& path) {
    out_ << ".SS \"" << Escaped(path) << "\"\n" << Escaped(command.description) << ".\n";
    if (command.commands.empty()) {
      out_ << ".PP\n" << Bold(program_.name + " " + path) << " [" << Italic("OPTION") << "]...";
      for (const OutlinedArgument& argument : command.arguments) out_ << ' ' << Placeholder(argument);
      out_ << '\n';
      for (const OutlinedArgument& argument : command.arguments) {
        WriteItem(Italic(argument.name), argument.description);
      }
      // Each command has the help that the program has, which is told once.
      WriteOptions(std::span(command.options).subspan(1));
    }
    WriteManual(command.manual, false);
    for (const OutlinedCommand& inner : command.commands) WriteCommand(inner, path + " " + inner.name);
  }

  /// `has_sections`: its headings are those of the page.
  void WriteManual(const std::string& manual, bool has_sections) {
    bool is_verbatim = false;
    bool is_behind_heading = false;
    for (const ManualBlock& block : ReadManual(manual)) {
      const bool was_verbatim = std::exchange(is_verbatim, block.kind == ManualBlock::Kind::kVerbatim);
      if (was_verbatim && !is_verbatim) out_ << ".fi\n.RE\n";
      if (!was_verbatim && is_verbatim) out_ << ".RS 2\n.nf\n";
      is_behind_heading = WriteBlock(block, has_sections, is_behind_heading);
    }
    if (is_verbatim) out_ << ".fi\n.RE\n";
  }

 private:
  static std::string WithoutPoint(std::string text) {
    if (text.ends_with('.')) text.pop_back();
    return text;
  }

  void WriteItem(const std::string& tag, std::string_view text) {
    out_ << ".TP\n" << tag << '\n' << Escaped(text) << '\n';
  }

  void WriteOptions(std::span<const OutlinedOption> options) {
    for (const OutlinedOption& option : options) WriteItem(Names(option), option.description);
  }

  /// Returns whether it is a heading that a paragraph follows without a request of its own.
  bool WriteBlock(const ManualBlock& block, bool has_sections, bool is_behind_heading) {
    switch (block.kind) {
      case ManualBlock::Kind::kHeading:
        if (has_sections) {
          out_ << ".SH "
               << (block.text.find(' ') == std::string::npos ? block.text : "\"" + block.text + "\"") << '\n';
          return true;
        }
        out_ << ".PP\n" << Bold(WithBigBeginning(block.text)) << '\n';
        return false;
      case ManualBlock::Kind::kItem:
        WriteItem(Bold(block.tag), block.text);
        return false;
      case ManualBlock::Kind::kVerbatim:
        out_ << Escaped(block.text.substr(2)) << '\n';
        return false;
      case ManualBlock::Kind::kParagraph:
        out_ << (is_behind_heading ? "" : ".PP\n") << Escaped(block.text) << '\n';
        return false;
    }
    return false;
  }

  const OutlinedCommand& program_;
  std::ostream& out_;
};

}  // namespace

void WriteManualPage(const OutlinedCommand& program, const Release& release, std::ostream& out) {
  PageWriter page(program, out);
  page.WriteHead(release);
  page.WriteOverview();
  out << ".SH COMMANDS\n";
  for (const OutlinedCommand& command : program.commands) page.WriteCommand(command, command.name);
  page.WriteManual(program.manual, true);
  out << ".SH \"SEE ALSO\"\n"
      << Bold("ferrowind") << "(1), " << Bold("psql") << "(1), " << Bold("pg_dump") << "(1)\n";
}

}  // namespace ferrowind::host
