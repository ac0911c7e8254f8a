#ifndef KELPOWER_TOOLS_COMPILER_H
#define KELPOWER_TOOLS_COMPILER_H

/// The compiler and its version, as pages of measurements name it.
inline const char* Compiler() {
#ifdef __clang__
  return "clang " __clang_version__;
#else
  return "g++ " __VERSION__;
#endif
}

#endif
