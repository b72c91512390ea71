# Writes SOURCE, a C++ file that defines the text of the file TEXT under the name SYMBOL (FerrowindEmbedText.cmake).
# As bytes: a string literal may not be long enough, and nothing in a text may be able to end it.

file(READ ${TEXT} bytes HEX)
string(LENGTH "${bytes}" digits)
math(EXPR size "${digits} / 2")
string(REGEX REPLACE "(................................)" "\\1\n" bytes "${bytes}")
string(REGEX REPLACE "([0-9a-f][0-9a-f])" "'\\\\x\\1'," bytes "${bytes}")
file(WRITE ${SOURCE} "#include <string_view>

namespace ferrowind::embedded {
namespace {
constexpr char kBytes[] = {
${bytes}'\\0'};
}  // namespace
extern const std::string_view ${SYMBOL};
const std::string_view ${SYMBOL}(kBytes, ${size});
}  // namespace ferrowind::embedded
")
