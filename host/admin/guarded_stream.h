#pragma once

#include <ostream>
#include <streambuf>
#include <string>
#include <string_view>

namespace ferrowind::host {

/// Passes on what is written, with what is unsafe (text_escapes.h) escaped. Line breaks pass, as programs
/// write them too.
class GuardingBuffer : public std::streambuf {
 public:
  /// `target` must outlive the buffer.
  explicit GuardingBuffer(std::ostream& target) : target_(target) {}

 protected:
  int_type overflow(int_type byte) override;
  std::streamsize xsputn(const char* bytes, std::streamsize count) override;
  int sync() override;

 private:
  [[nodiscard]] bool Write(std::string_view bytes);

  std::ostream& target_;
  /// The beginning of a character, or of a line break, whose end is still to come.
  std::string begun_;
};

/// A stream for people, to whom nothing that comes from a database can look like something else: no text in
/// it reaches their terminal as anything but text.
class GuardedStream : public std::ostream {
 public:
  /// Writes to `target`, which must outlive the stream, and which may be a terminal.
  GuardedStream(std::ostream& target, bool is_terminal);
  ~GuardedStream() override;

  /// For what programs read back and must not find changed, a table of CSV or the text of a rule book: the
  /// target itself, unless it is a terminal.
  [[nodiscard]] std::ostream& ForPrograms();
  [[nodiscard]] bool IsOnTerminal() const { return is_terminal_; }

 private:
  GuardingBuffer buffer_;
  std::ostream& target_;
  bool is_terminal_;
};

/// Whether `out` is one whose texts people read on a terminal, also where they are meant for programs.
[[nodiscard]] bool IsOnTerminal(const std::ostream& out);

/// What `GuardedStream::ForPrograms` says of `out`; any other stream as it is.
[[nodiscard]] std::ostream& ForPrograms(std::ostream& out);

}  // namespace ferrowind::host
