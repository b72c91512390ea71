#pragma once

#include <functional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace ferrowind::headless {

/// The test asks of the headless toolkit what no operator could do, or the component does what the test has
/// not scripted.
///
/// No `platform::Failure` on purpose: the component must not mistake a mistake of its test for a failure of
/// its surroundings.
class ScriptError : public std::logic_error {
 public:
  using std::logic_error::logic_error;
};

/// Keeps the script errors of one test, since a handler of the component may swallow the exception that tells
/// of one.
class ScriptErrors {
 public:
  ScriptErrors() = default;
  /// Ends the program with the texts of the errors that nobody took or was told of: the test cannot pass with
  /// them.
  ~ScriptErrors();
  ScriptErrors(const ScriptErrors&) = delete;
  ScriptErrors& operator=(const ScriptErrors&) = delete;

  /// Tells of the error and throws it.
  [[noreturn]] void Raise(const std::string& text);
  /// Is told of every error at once, for example to record it as a failure of the running test.
  void SetListener(std::function<void(const std::string& text)> listener) { listener_ = std::move(listener); }
  /// The errors so far, which are then forgotten.
  [[nodiscard]] std::vector<std::string> Take() { return std::exchange(untold_, {}); }

 private:
  std::function<void(const std::string& text)> listener_;
  std::vector<std::string> untold_;
};

}  // namespace ferrowind::headless
