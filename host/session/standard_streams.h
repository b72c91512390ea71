#pragma once

namespace ferrowind::host {

/// Takes the places of those of standard input, output and error that the program was started without, so
/// that the next file or connection does not get one of their numbers, and with it the program's texts. Made
/// first thing in `main`. Reading and writing them fails as it does on a stream that is closed.
void HoldStandardStreams();

}  // namespace ferrowind::host
