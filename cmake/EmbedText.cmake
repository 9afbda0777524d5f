# Writes SYMBOL.h and SYMBOL.cpp in DIRECTORY, which hold the bytes of INPUT.
file(READ ${INPUT} bytes HEX)
string(LENGTH "${bytes}" digits)
math(EXPR size "${digits} / 2")
string(REGEX REPLACE "([0-9a-f][0-9a-f])" "0x\\1," bytes "${bytes}")
string(REGEX REPLACE "((0x[0-9a-f][0-9a-f],)(0x[0-9a-f][0-9a-f],)(0x[0-9a-f][0-9a-f],)(0x[0-9a-f][0-9a-f],)(0x[0-9a-f][0-9a-f],)(0x[0-9a-f][0-9a-f],)(0x[0-9a-f][0-9a-f],)(0x[0-9a-f][0-9a-f],))" "\\1\n" bytes "${bytes}")
get_filename_component(name ${INPUT} NAME)
file(MAKE_DIRECTORY ${DIRECTORY})
file(WRITE ${DIRECTORY}/${SYMBOL}.h
"// Made by the build from ${name}.
#pragma once
#include <string_view>
namespace qev::embedded {
std::string_view ${SYMBOL}();
}
")
file(WRITE ${DIRECTORY}/${SYMBOL}.cpp
"// Made by the build from ${name}.
#include \"${SYMBOL}.h\"
namespace qev::embedded {
namespace {
constexpr unsigned char bytes[] = {
${bytes}
0};
}
std::string_view ${SYMBOL}() { return {reinterpret_cast<char const*>(bytes), ${size}}; }
}
")
