# Writes a C++ source that holds the bytes of a file:
# cmake -DIN=… -DOUT=… -DNAME=… -DNAMESPACE=… -DHEADER=… -DFUNCTION=… -P embed.cmake
file(READ ${IN} hex HEX)
string(REGEX REPLACE "([0-9a-f][0-9a-f])" "0x\\1," bytes "${hex}")
string(REGEX REPLACE "(................................................................................)" "\\1\n" bytes "${bytes}")
file(WRITE ${OUT} "// Made from ${NAME}; do not edit.
#include \"${HEADER}\"

namespace ${NAMESPACE} {

namespace {
constexpr unsigned char kBytes[] = {
${bytes}
};
} // namespace

std::string_view ${FUNCTION}() { return {reinterpret_cast<const char*>(kBytes), sizeof kBytes}; }

} // namespace ${NAMESPACE}
")
