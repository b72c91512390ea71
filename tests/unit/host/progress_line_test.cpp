#include "host/admin/progress_line.h"

#include <cstddef>
#include <string>
#include <thread>

#include <fcntl.h>
#include <gmock/gmock.h>
#include <pty.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace ferrowind::host {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

constexpr auto kLongerThanALineStays = std::chrono::milliseconds(150);

/// What has arrived at `descriptor`, which never blocks.
std::string Arrived(int descriptor) {
  std::string text;
  char buffer[4096];
  for (;;) {
    const ssize_t count = read(descriptor, buffer, sizeof buffer);
    if (count <= 0) return text;
    text.append(buffer, static_cast<std::size_t>(count));
  }
}

class Terminal {
 public:
  explicit Terminal(unsigned short columns) {
    winsize size{};
    size.ws_row = 24;
    size.ws_col = columns;
    if (openpty(&screen_, &descriptor_, nullptr, nullptr, &size) != 0)
      throw std::runtime_error("no terminal");
    fcntl(screen_, F_SETFL, O_NONBLOCK);
  }
  Terminal(const Terminal&) = delete;
  Terminal& operator=(const Terminal&) = delete;
  ~Terminal() {
    close(descriptor_);
    close(screen_);
  }

  [[nodiscard]] int Descriptor() const { return descriptor_; }
  [[nodiscard]] std::string Seen() const { return Arrived(screen_); }

 private:
  int screen_ = -1;
  int descriptor_ = -1;
};

TEST(ProgressLine, ShowsHowFarTheWorkIsAndWipesItselfOffAtTheEnd) {
  const Terminal terminal(80);
  {
    ProgressLine line(terminal.Descriptor());
    EXPECT_THAT(terminal.Seen(), IsEmpty());
    line.Show("Copying days", 37, 100);
    EXPECT_EQ(terminal.Seen(), "\r\x1b[KCopying days: 37 %");
  }
  EXPECT_EQ(terminal.Seen(), "\r\x1b[K");
}

TEST(ProgressLine, RewritesItselfButNotMoreOftenThanPeopleSee) {
  const Terminal terminal(80);
  ProgressLine line(terminal.Descriptor());
  line.Show("Copying", 1, 100000);
  static_cast<void>(terminal.Seen());
  for (int i = 2; i < 1000; ++i) line.Show("Copying", i, 100000);
  // A slow machine may see one or two of them.
  EXPECT_LT(terminal.Seen().size(), 100U);
  std::this_thread::sleep_for(kLongerThanALineStays);
  line.Show("Comparing", 99999, 100000);
  EXPECT_EQ(terminal.Seen(), "\r\x1b[KComparing: 99 %");
}

TEST(ProgressLine, StaysOnOneLineOfTheTerminal) {
  const Terminal terminal(12);
  ProgressLine line(terminal.Descriptor());
  line.Show("A work with a long name\n", 1, 2);
  EXPECT_EQ(terminal.Seen(), "\r\x1b[KA work wit…");
}

TEST(ProgressLine, OfNothingToDoIsComplete) {
  const Terminal terminal(80);
  ProgressLine line(terminal.Descriptor());
  line.Show("Copying", 0, 0);
  EXPECT_THAT(terminal.Seen(), HasSubstr("100 %"));
}

TEST(ProgressLine, WritesNothingWhereThereIsNoTerminal) {
  int ends[2];
  ASSERT_EQ(pipe2(ends, O_NONBLOCK), 0);
  {
    ProgressLine line(ends[1]);
    line.Show("Copying", 1, 2);
  }
  EXPECT_THAT(Arrived(ends[0]), IsEmpty());
  close(ends[0]);
  close(ends[1]);
}

TEST(ProgressLine, OfATerminalThatIsClosedMeanwhileIsQuiet) {
  const Terminal terminal(80);
  const int descriptor = dup(terminal.Descriptor());
  ASSERT_GE(descriptor, 0);
  ::testing::internal::CaptureStderr();
  {
    ProgressLine line(descriptor);
    line.Show("Copying", 1, 2);
    EXPECT_THAT(terminal.Seen(), HasSubstr("Copying: 50 %"));
    close(descriptor);
    std::this_thread::sleep_for(kLongerThanALineStays);
    EXPECT_NO_THROW(line.Show("Copying", 2, 2));
  }
  EXPECT_THAT(terminal.Seen(), IsEmpty());
  EXPECT_EQ(::testing::internal::GetCapturedStderr(), "");
}

}  // namespace
}  // namespace ferrowind::host
