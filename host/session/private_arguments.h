#pragma once

#include <string>
#include <vector>

namespace ferrowind::host {

/// The arguments of a program, out of the sight of others: whoever may list the processes of a machine sees
/// each one's command line, and in it the password of a database's URL.
///
/// Made first thing in `main`. Takes the arguments over, and then hides every password (in the sense of
/// `ShownConnection`) where the system shows it: in `argv`, and the value of PGPASSWORD in the environment
/// that the program was started with, which `getenv` and child processes keep. What was seen before the
/// program came so far is not undone: a password file has no such moment.
class PrivateArguments {
 public:
  /// `argv` has `argc` arguments, the first of which is the program's name.
  PrivateArguments(int argc, char** argv);
  PrivateArguments(const PrivateArguments&) = delete;
  PrivateArguments& operator=(const PrivateArguments&) = delete;

  /// The arguments as `main` got them, for a library that takes its own out of them; both live as long as
  /// this.
  [[nodiscard]] int& Count() { return count_; }
  [[nodiscard]] char** Values() { return pointers_.data(); }
  /// The arguments behind the program's name.
  [[nodiscard]] std::vector<std::string> BehindName() const;

 private:
  std::vector<std::string> texts_;
  /// To `texts_`, with a null pointer behind the last one.
  std::vector<char*> pointers_;
  int count_;
};

}  // namespace ferrowind::host
