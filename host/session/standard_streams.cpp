#include "host/session/standard_streams.h"

#include <cerrno>
#include <cstdlib>
#include <initializer_list>

#include <fcntl.h>
#include <unistd.h>

namespace ferrowind::host {

void HoldStandardStreams() {
  for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    if (fcntl(stream, F_GETFD) != -1 || errno != EBADF) continue;
    // Opened for what the stream is not used for, so that whoever uses it is told; the number is the lowest
    // that is free.
    const int place = open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY);
    // Nobody is there to tell.
    if (place != stream) std::_Exit(EXIT_FAILURE);
  }
}

}  // namespace ferrowind::host
