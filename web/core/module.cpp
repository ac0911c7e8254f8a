// The module has the functions of the libraries that are linked to it, and the strings that they use: those of
// Emscripten's library are compiled to be small, without inlining, and answers are made of strings.
#define _LIBCPP_DISABLE_EXTERN_TEMPLATE
#include <string>

template class std::basic_string<char>;
